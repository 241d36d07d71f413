#include "host/services/Units.h"

#include <units.h>

#include <array>
#include <cmath>

namespace host {

namespace {

constexpr std::array<double, 7> CENTIMETRES = {2.54, 30.48, 160934.4, 0.1, 1.0, 100.0, 100000.0};

bool isKnown(int type) { return type >= UNITS_INCHES && type <= UNITS_KILOMETERS; }

double centimetres(int type) { return CENTIMETRES[static_cast<std::size_t>(type)]; }

}  // namespace

bool Units::set(int type, float scale) {
  if (!isKnown(type) || !std::isfinite(scale) || scale <= 0.0F) return false;
  type_ = type;
  scale_ = scale;
  return true;
}

double Units::sceneUnitIn(int type) const {
  return isKnown(type) ? scale_ * centimetres(type_) / centimetres(type) : -1.0;
}

}  // namespace host
