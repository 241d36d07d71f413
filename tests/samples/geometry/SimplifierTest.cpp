#include "samples/geometry/Simplifier.h"

#include <gtest/gtest.h>

#include "samples/geometry/Mesher.h"
#include "tests/samples/geometry/TestFields.h"

namespace {

using namespace samples;

constexpr std::size_t ALL = 1000000;

Surface dense(const Field& field) {
  MeshDetail detail;
  detail.cell = 0.4;
  detail.triangles = ALL;
  return meshField(field, detail);
}

Surface simplified(Surface surface, const Simplification& how) {
  simplify(surface, how);
  return surface;
}

TEST(Simplifier, LeavesAsManyTrianglesAsWantedClosedFacingOutwardAndNearTheSurface) {
  struct Case {
    FieldPtr field;
    int euler;
    std::size_t triangles;
    double error;
  };
  const Case cases[] = {{support::ball(10), 2, 400, 0.3},
                        {support::ring(10, 3), 0, 600, 0.3},
                        {support::shell(8, 0.8), 4, 1500, 0.3},
                        {support::ball(10), 2, 40, 2.5}};
  for (const Case& one : cases) {
    const Surface before = dense(*one.field);
    const Surface after = simplified(before, {one.triangles, 1e-4, {}});
    EXPECT_GT(before.triangles.size(), 2 * one.triangles);
    EXPECT_LE(after.triangles.size(), one.triangles);
    EXPECT_GE(after.triangles.size() + 2, one.triangles);
    EXPECT_TRUE(support::isClosed(after));
    EXPECT_EQ(support::eulerNumber(after), one.euler);
    EXPECT_LT(support::largestError(after, *one.field), one.error);
    EXPECT_EQ(support::wrongTriangles(after, *one.field), 0);
  }
}

double nearest(const Surface& surface, const Vec3& place) {
  double least = 1e9;
  for (const Vec3& position : surface.positions) least = std::min(least, length(position - place));
  return least;
}

TEST(Simplifier, KeepsSharpEdgesAndCornersOfABlock) {
  const Vec3 half{6, 4, 9};
  const Surface before = dense(*support::block(half));
  const Surface after = simplified(before, {200, 1e-4, {}});
  EXPECT_NEAR(support::volume(after), support::volume(before), 0.005 * support::volume(before));
  for (unsigned corner = 0; corner < 8; ++corner) {
    const auto side = [corner](unsigned bit, double length) { return (corner & bit) != 0 ? length : -length; };
    const Vec3 place{side(1, half.x), side(2, half.y), side(4, half.z)};
    EXPECT_LT(nearest(after, place), nearest(before, place) + 0.05);
  }
}

TEST(Simplifier, SpendsTrianglesWhereTheyAreWorthMore) {
  const Surface before = dense(*support::ball(10));
  const auto upper = [](const Surface& surface) {
    return static_cast<double>(std::count_if(surface.triangles.begin(), surface.triangles.end(),
                                             [&](const auto& t) { return surface.positions[t[0]].z > 0; })) /
           static_cast<double>(surface.triangles.size());
  };
  EXPECT_NEAR(upper(simplified(before, {600, 1e-4, {}})), 0.5, 0.06);
  EXPECT_GT(upper(simplified(before, {600, 1e-4, [](const Vec3& p) { return p.z > 0 ? 64.0 : 1.0; }})), 0.7);
}

TEST(Simplifier, StopsBeforeNothingIsLeftAndLeavesAloneWhatIsCoarseEnough) {
  const Surface before = dense(*support::ring(6, 2));
  const Surface least = simplified(before, {0, 1e-4, {}});
  EXPECT_TRUE(support::isClosed(least));
  EXPECT_EQ(support::eulerNumber(least), 0);
  EXPECT_LT(least.triangles.size(), 60U);
  EXPECT_EQ(simplified(before, {before.triangles.size(), 1e-4, {}}).triangles.size(), before.triangles.size());
  EXPECT_TRUE(simplified({}, {10, 1e-4, {}}).triangles.empty());
}

}  // namespace
