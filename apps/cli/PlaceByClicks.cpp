#include "apps/cli/PlaceByClicks.h"

#include <maxapi.h>

#include "scene/Placement.h"
#include "scene/UnitFactor.h"

namespace cli {

namespace {

constexpr float RADIANS_PER_DEGREE = 0.017453292F;

Matrix3 placed(const Point3& position, float degrees) {
  const float factor = ZORVEL::UnitFactor();
  Matrix3 tm(TRUE);
  tm.Scale(Point3(factor, factor, factor));
  tm.RotateZ(degrees * RADIANS_PER_DEGREE);
  tm.Translate(position);
  return tm;
}

}  // namespace

void placeByClicks(INode& parent, const Point3& position, float degrees) {
  ZORVEL::Placement::StartPlacement(&parent);
  int points = 0;
  MouseCallBack* mouse = GetCOREInterface()->GetCommandMode()->MouseProc(&points);
  mouse->proc(nullptr, MOUSE_POINT, 0, MOUSE_LBUTTON, IPoint2());
  Matrix3 tm = placed(position, degrees);
  parent.SetNodeTM(0, tm);
  mouse->proc(nullptr, MOUSE_POINT, 1, MOUSE_LBUTTON, IPoint2());
}

}  // namespace cli
