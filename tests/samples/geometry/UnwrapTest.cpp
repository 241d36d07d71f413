#include "samples/geometry/Unwrap.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "samples/geometry/BoxUnwrap.h"
#include "samples/geometry/Mesher.h"
#include "tests/samples/geometry/TestFields.h"

namespace {

using namespace samples;

constexpr double RADIUS = 5;
constexpr double GIRTH = 40;

/// One panel wound around the Z axis.
class RoundUnwrap : public Unwrap {
 public:
  int panel(const Vec3&, const Vec3&) const override { return 0; }
  Wrapped wrap(int, const Vec3& p) const override { return wrapAround(p.x, -p.y, p.z, GIRTH); }
};

host::Mesh unwrapped(const Field& field, const Unwrap& unwrap) {
  MeshDetail detail;
  detail.triangles = 3000;
  host::Mesh mesh;
  appendSurface(mesh, meshField(field, detail), field, 0.2, unwrap, 7);
  return mesh;
}

/// How many vertices lie in one place.
std::map<std::array<float, 3>, int> copies(const host::Mesh& mesh) {
  std::map<std::array<float, 3>, int> result;
  for (const Point3& p : mesh.positions) ++result[{p.x, p.y, p.z}];
  return result;
}

Vec3 toVec(const Point3& p) { return {p.x, p.y, p.z}; }

TEST(Unwrap, OpensARoundClothAlongOneSeamAndTearsNoTriangleAcrossIt) {
  const FieldPtr tube = support::field([](const Vec3& p) { return cylinderDistance(p, RADIUS, 12, 1); }, 12);
  const host::Mesh mesh = unwrapped(*tube, RoundUnwrap());
  for (const auto& triangle : mesh.triangles) {
    const Vec3 middle =
        (toVec(mesh.positions[triangle[0]]) + toVec(mesh.positions[triangle[1]]) + toVec(mesh.positions[triangle[2]])) *
        (1.0 / 3);
    if (std::abs(middle.z) > 10) continue;
    for (std::size_t i = 0; i < 3; ++i) {
      const auto a = triangle[i], b = triangle[(i + 1) % 3];
      const double edge = length(toVec(mesh.positions[a]) - toVec(mesh.positions[b]));
      const auto across = static_cast<double>(mesh.texCoords[a].u - mesh.texCoords[b].u);
      const auto along = static_cast<double>(mesh.texCoords[a].v - mesh.texCoords[b].v);
      EXPECT_LT(std::hypot(across, along) * TILE, 1.6 * edge + 0.01);
    }
  }
  for (const auto& [place, count] : copies(mesh)) {
    if (count == 1 || std::abs(place[2]) > 10) continue;
    EXPECT_GT(place[1], 0.8 * RADIUS) << "doubled away from the seam";
  }
}

TEST(Unwrap, LaysABlockFlatAtOneScaleAndDoublesVerticesWherePanelsMeetOnly) {
  const Vec3 half{6, 4, 9};
  const FieldPtr block = support::block(half);
  const host::Mesh mesh = unwrapped(*block, BoxUnwrap());
  for (const auto& triangle : mesh.triangles) {
    const Vec3 a = toVec(mesh.positions[triangle[0]]);
    const Vec3 normal = cross(toVec(mesh.positions[triangle[1]]) - a, toVec(mesh.positions[triangle[2]]) - a);
    const host::TexCoord s = mesh.texCoords[triangle[0]], t = mesh.texCoords[triangle[1]],
                         r = mesh.texCoords[triangle[2]];
    const double flat = static_cast<double>((t.u - s.u) * (r.v - s.v) - (t.v - s.v) * (r.u - s.u)) * TILE * TILE;
    // Not mirrored, and no smaller than a face seen askew at an edge.
    EXPECT_GT(flat, 0.5 * length(normal) - 1e-3);
    EXPECT_LT(flat, length(normal) + 1e-3);
  }
  for (const auto& [place, count] : copies(mesh)) {
    // A triangle across an edge may reach as far as the largest cell.
    const int sides = (std::abs(place[0]) > 4) + (std::abs(place[1]) > 2) + (std::abs(place[2]) > 7);
    EXPECT_LE(count, std::max(sides, 1));
  }
  EXPECT_EQ(mesh.materialIds, std::vector<std::uint16_t>(mesh.triangles.size(), 7));
}

}  // namespace
