#pragma once

#include <memory>
#include <vector>

#include "host/meshes/Mesh.h"

namespace host {

/// Builds meshes with flat sides, in centimetres.
class SolidMesh {
 public:
  /// A box with sides along the axes.
  void addBox(const Point3& low, const Point3& high);
  /// A shape in the YZ plane, counter-clockwise seen from +X and convex, drawn out along X.
  void addPrism(const std::vector<Point3>& shape, float fromX, float toX);

  std::shared_ptr<const Mesh> finish();

 private:
  /// Convex, counter-clockwise seen from outside.
  void addSide(const std::vector<Point3>& corners);

  Mesh mesh_;
};

}  // namespace host
