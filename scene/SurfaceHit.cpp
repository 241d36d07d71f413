#include "scene/SurfaceHit.h"

#include <maxapi.h>

#include "scene/PlacementPickMode.h"

namespace ZORVEL {

namespace {

Ray WorldRay(HWND window, const IPoint2& m) {
  Ray ray;
  GetCOREInterface()->GetViewExp(window).MapScreenToWorldRay(static_cast<float>(m.x), static_cast<float>(m.y), ray);
  return ray;
}

bool OnSurface(HWND window, const IPoint2& m, Point3& position) {
  Interface* host = GetCOREInterface();
  PlacementPickMode filter;
  INode* node = host->PickNode(window, m, &filter);
  if (node == nullptr) return false;
  Object* object = node->EvalWorldState(host->GetTime(), TRUE).obj;
  if (object == nullptr || object->SuperClassID() != GEOMOBJECT_CLASS_ID) return false;
  const Matrix3 toObject = Inverse(node->GetObjectTM(host->GetTime()));
  const Ray world = WorldRay(window, m);
  Ray local;
  local.p = world.p * toObject;
  local.dir = VectorTransform(toObject, world.dir);
  float at = 0.0F;
  Point3 normal;
  if (object->IntersectRay(host->GetTime(), local, at, normal) == 0) return false;
  // A parameter along the ray means the same in both spaces, as long as neither direction is brought to another length.
  position = world.p + world.dir * at;
  return true;
}

bool OnGround(HWND window, const IPoint2& m, Point3& position) {
  const Ray ray = WorldRay(window, m);
  const bool down = ray.dir.z < 0.0F;
  const bool up = ray.dir.z > 0.0F;
  // Neither of the two for a level ray and for one that is not a number.
  if (!down && !up) return false;
  if ((ray.p.z > 0.0F && up) || (ray.p.z < 0.0F && down)) return false;
  const float t = -(ray.p.z / ray.dir.z);
  position = Point3(ray.p.x + ray.dir.x * t, ray.p.y + ray.dir.y * t, 0.0F);
  return true;
}

}  // namespace

bool SurfaceHit::Find(HWND window, const IPoint2& m, Point3& position) {
  return OnSurface(window, m, position) || OnGround(window, m, position);
}

}  // namespace ZORVEL
