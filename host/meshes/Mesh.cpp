#include "host/meshes/Mesh.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

bool hasLength(const Point3& normal) {
  const float square = normal % normal;
  return std::isfinite(square) && square > 1e-12F;
}

/// Scaled by its largest part first, so that edges of a nanometre still have a direction.
Point3 unit(const Point3& p) {
  const float largest = std::max({std::abs(p.x), std::abs(p.y), std::abs(p.z)});
  if (!(largest > 0.0F) || !std::isfinite(largest)) return {};
  return (p / largest).Normalize();
}

float angleBetween(const Point3& a, const Point3& b) { return std::acos(std::clamp(a % b, -1.0F, 1.0F)); }

/// Weighted by the angle at each corner, so that how a face was cut into triangles does not show.
std::vector<Point3> smoothNormals(const Mesh& mesh) {
  std::vector<Point3> sums(mesh.positions.size());
  for (const Mesh::Triangle& triangle : mesh.triangles) {
    std::array<Point3, 3> edges;
    for (std::size_t corner = 0; corner < 3; ++corner) {
      edges[corner] = unit(mesh.positions[triangle[(corner + 1) % 3]] - mesh.positions[triangle[corner]]);
    }
    const Point3 normal = unit(edges[0] ^ edges[1]);
    for (std::size_t corner = 0; corner < 3; ++corner) {
      sums[triangle[corner]] += normal * angleBetween(edges[corner], -edges[(corner + 2) % 3]);
    }
  }
  return sums;
}

}  // namespace

void completeMesh(Mesh& mesh) {
  mesh.bounds.Init();
  for (const Point3& position : mesh.positions) mesh.bounds += position;

  mesh.normals.resize(mesh.positions.size());
  if (!std::all_of(mesh.normals.begin(), mesh.normals.end(), hasLength)) {
    const std::vector<Point3> smooth = smoothNormals(mesh);
    for (std::size_t i = 0; i < smooth.size(); ++i) {
      if (hasLength(mesh.normals[i])) continue;
      mesh.normals[i] = hasLength(smooth[i]) ? smooth[i] : Point3(0, 0, 1);
    }
  }
  for (Point3& normal : mesh.normals) normal = unit(normal);
  for (TexCoord& coord : mesh.texCoords) {
    if (!std::isfinite(coord.u) || !std::isfinite(coord.v)) coord = {};
  }
}

}  // namespace host
