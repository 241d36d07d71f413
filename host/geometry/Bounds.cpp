#include "host/geometry/Bounds.h"

namespace host {

Box3 transformed(const Box3& box, const Matrix3& tm) {
  Box3 result;
  if (box.IsEmpty()) return result;
  for (int corner = 0; corner < 8; ++corner) {
    result +=
        tm.PointTransform({(corner & 1) != 0 ? box.pmax.x : box.pmin.x, (corner & 2) != 0 ? box.pmax.y : box.pmin.y,
                           (corner & 4) != 0 ? box.pmax.z : box.pmin.z});
  }
  return result;
}

}  // namespace host
