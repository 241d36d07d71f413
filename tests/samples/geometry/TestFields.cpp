#include "tests/samples/geometry/TestFields.h"

#include <set>

namespace support {

using samples::Field;
using samples::Surface;
using samples::Vec3;

namespace {

using Edges = std::multiset<std::pair<std::uint32_t, std::uint32_t>>;

Edges edgesOf(const Surface& surface) {
  Edges edges;
  for (const Surface::Triangle& triangle : surface.triangles) {
    for (std::size_t i = 0; i < 3; ++i) edges.emplace(triangle[i], triangle[(i + 1) % 3]);
  }
  return edges;
}

Vec3 middle(const Surface& surface, const Surface::Triangle& triangle) {
  return (surface.positions[triangle[0]] + surface.positions[triangle[1]] + surface.positions[triangle[2]]) * (1.0 / 3);
}

}  // namespace

bool isClosed(const Surface& surface) {
  const Edges edges = edgesOf(surface);
  return std::all_of(edges.begin(), edges.end(), [&](const auto& edge) {
    return edges.count(edge) == 1 && edges.count({edge.second, edge.first}) == 1;
  });
}

int eulerNumber(const Surface& surface) {
  std::set<std::uint32_t> used;
  for (const Surface::Triangle& triangle : surface.triangles) used.insert(triangle.begin(), triangle.end());
  return static_cast<int>(used.size()) - static_cast<int>(surface.triangles.size()) / 2;
}

double volume(const Surface& surface) {
  double sum = 0;
  for (const Surface::Triangle& triangle : surface.triangles) {
    sum += dot(surface.positions[triangle[0]], surface.areaNormal(triangle)) / 6;
  }
  return sum;
}

double largestError(const Surface& surface, const Field& field) {
  double largest = 0;
  for (const Vec3& position : surface.positions) largest = std::max(largest, std::abs(field.distance(position)));
  for (const Surface::Triangle& triangle : surface.triangles) {
    largest = std::max(largest, std::abs(field.distance(middle(surface, triangle))));
  }
  return largest;
}

int wrongTriangles(const Surface& surface, const Field& field) {
  const auto isWrong = [&](const Surface::Triangle& triangle) {
    return dot(surface.areaNormal(triangle), field.normal(middle(surface, triangle))) < 1e-9;
  };
  return static_cast<int>(std::count_if(surface.triangles.begin(), surface.triangles.end(), isWrong));
}

}  // namespace support
