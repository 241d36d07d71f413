#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "host/meshes/Mesh.h"

namespace shapes {

inline void expectNear(const Point3& actual, const Point3& expected, float tolerance = 1e-4F) {
  EXPECT_NEAR(actual.x, expected.x, tolerance);
  EXPECT_NEAR(actual.y, expected.y, tolerance);
  EXPECT_NEAR(actual.z, expected.z, tolerance);
}

/// A square of side 2 around the origin in the plane Z = 0, facing up; two triangles, the second of material id 1;
/// texture coordinates from 0 to 1 with v along Y.
inline host::Mesh square() {
  host::Mesh mesh;
  mesh.positions = {{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}};
  mesh.texCoords = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
  mesh.triangles = {{0, 1, 2}, {0, 2, 3}};
  mesh.materialIds = {0, 1};
  completeMesh(mesh);
  return mesh;
}

/// A sphere around `middle`; smooth normals, no texture coordinates.
inline std::shared_ptr<const host::Mesh> sphere(float radius, const Point3& middle, int rings = 32) {
  constexpr float pi = 3.14159265F;
  auto mesh = std::make_shared<host::Mesh>();
  for (int j = 0; j <= rings; ++j) {
    for (int i = 0; i <= 2 * rings; ++i) {
      const float around = pi * static_cast<float>(i) / static_cast<float>(rings);
      const float up = pi * static_cast<float>(j) / static_cast<float>(rings) - pi / 2;
      const Point3 normal(std::cos(up) * std::cos(around), std::cos(up) * std::sin(around), std::sin(up));
      mesh->positions.push_back(middle + normal * radius);
      mesh->normals.push_back(normal);
    }
  }
  for (int j = 0; j < rings; ++j) {
    for (int i = 0; i < 2 * rings; ++i) {
      const auto a = static_cast<std::uint32_t>(j * (2 * rings + 1) + i);
      const std::uint32_t c = a + static_cast<std::uint32_t>(2 * rings) + 1;
      mesh->triangles.push_back({a, a + 1, c + 1});
      mesh->triangles.push_back({a, c + 1, c});
    }
  }
  completeMesh(*mesh);
  return mesh;
}

}  // namespace shapes
