#include "apps/stage/viewport/Bounds.h"

namespace stage {

Box3 boundsWithChildren(host::Node& node) {
  Box3 box = node.worldBounds();
  for (const auto& child : node.children()) box += boundsWithChildren(*child);
  return box;
}

Point3 cornerOf(const Box3& box, unsigned number) {
  return {(number & 1U) != 0 ? box.pmax.x : box.pmin.x, (number & 2U) != 0 ? box.pmax.y : box.pmin.y,
          (number & 4U) != 0 ? box.pmax.z : box.pmin.z};
}

}  // namespace stage
