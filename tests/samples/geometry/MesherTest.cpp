#include "samples/geometry/Mesher.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "samples/geometry/FieldOctree.h"
#include "samples/geometry/MarchingCubes.h"
#include "tests/samples/geometry/TestFields.h"

namespace {

using namespace samples;

MeshDetail detailOf(double cell) {
  MeshDetail detail;
  detail.cell = cell;
  detail.triangles = 1000000;
  return detail;
}

using Segments = std::set<std::pair<unsigned, unsigned>>;

/// The segments of the loops that run over one side of the cell, from edge to edge. An edge is named by its two corners
/// without the bit of the side's axis, so that both cells at a side name it alike.
Segments segmentsOn(unsigned inside, unsigned axis, bool upper) {
  const auto name = [&](std::uint8_t edge) -> int {
    const auto [a, b] = MarchingCubes::corners(edge);
    if (((a & axis) != 0) != upper || ((b & axis) != 0) != upper) return -1;
    return static_cast<int>((a & ~axis) * 8 + (b & ~axis));
  };
  Segments segments;
  for (const MarchingCubes::Loop& loop : MarchingCubes::instance().loops(inside)) {
    for (std::size_t i = 0; i < loop.size(); ++i) {
      const int from = name(loop[i]), to = name(loop[(i + 1) % loop.size()]);
      if (from >= 0 && to >= 0) segments.emplace(from, to);
    }
  }
  return segments;
}

/// The corners of one side that lie inside, as the cell beyond that side sees them.
unsigned patternOf(unsigned inside, unsigned axis, bool upper) {
  unsigned pattern = 0;
  for (unsigned corner = 0; corner < 8; ++corner) {
    if (((corner & axis) != 0) == upper && (inside >> corner & 1U) != 0) pattern |= 1U << (corner & ~axis);
  }
  return pattern;
}

TEST(MarchingCubes, CrossesEveryCutEdgeOnceAndContinuesInTheCellBeyondEverySide) {
  for (const unsigned axis : {1U, 2U, 4U}) {
    std::map<unsigned, Segments> known;
    for (unsigned inside = 0; inside < 256; ++inside) {
      const Segments ahead = segmentsOn(inside, axis, true);
      EXPECT_EQ(known.try_emplace(patternOf(inside, axis, true), ahead).first->second, ahead) << inside;
    }
    for (unsigned inside = 0; inside < 256; ++inside) {
      Segments back;
      for (const auto& [from, to] : segmentsOn(inside, axis, false)) back.emplace(to, from);
      EXPECT_EQ(known.at(patternOf(inside, axis, false)), back) << inside;
    }
  }
  for (unsigned inside = 0; inside < 256; ++inside) {
    std::multiset<unsigned> crossed;
    for (const auto& loop : MarchingCubes::instance().loops(inside)) crossed.insert(loop.begin(), loop.end());
    for (std::uint8_t edge = 0; edge < 12; ++edge) {
      const auto [a, b] = MarchingCubes::corners(edge);
      EXPECT_EQ(crossed.count(edge), (inside >> a & 1U) != (inside >> b & 1U) ? 1U : 0U);
    }
  }
}

TEST(Mesher, MakesClosedSurfacesThatFaceOutwardAndLieOnTheField) {
  // Folded so that the surface passes through cells in every way.
  const FieldPtr folded = support::field(
      [](const Vec3& p) {
        const double g = std::sin(p.x) * std::cos(p.y) + std::sin(p.y) * std::cos(p.z) + std::sin(p.z) * std::cos(p.x);
        return std::max(g / 1.8, length(p) - 8);
      },
      8);
  struct Case {
    FieldPtr field;
    double cell;
    double volume;
    double error;
  };
  const Case cases[] = {{support::ball(10), 0.5, 4188.8, 0.06},
                        {support::ring(10, 3), 0.5, 1776.5, 0.15},
                        {support::shell(8, 0.8), 0.5, 643.8, 0.15},
                        {support::block({6, 4, 9}), 0.5, 1728, 0.4},
                        {folded, 0.4, 1072, 0.3}};
  for (const Case& one : cases) {
    const Surface surface = meshField(*one.field, detailOf(one.cell));
    EXPECT_GT(surface.triangles.size(), 1000U);
    EXPECT_TRUE(support::isClosed(surface));
    for (const Vec3& position : surface.positions) EXPECT_LT(std::abs(one.field->distance(position)), one.error);
    EXPECT_GT(support::volume(surface), 0.97 * one.volume);
    EXPECT_LT(support::volume(surface), 1.03 * one.volume);
  }
}

TEST(Mesher, LeavesOutBubblesSmallerThanItsCells) {
  const FieldPtr withBubble = support::field(
      [](const Vec3& p) {
        return std::min(length(p) - 6, length(p - Vec3{8, 0, 0}) - 0.5);
      },
      9);
  EXPECT_EQ(support::eulerNumber(meshField(*withBubble, detailOf(0.5))), 2);
  EXPECT_EQ(support::eulerNumber(meshField(*withBubble, detailOf(0.2))), 4);
}

/// How many cells there are, all of them checked to lie on both sides of the surface.
int cellsOf(const Field& field, const FieldOctree::Sizes& sizes) {
  const FieldOctree tree(field, sizes);
  int cells = 0;
  tree.forEachCell([&](const FieldOctree::Cell& cell, unsigned inside) {
    ++cells;
    EXPECT_TRUE(inside != 0 && inside != 255);
    for (unsigned i = 0; i < 8; ++i) {
      EXPECT_EQ((inside >> i & 1U) != 0, tree.value(cell[i]) < 0);
      EXPECT_NEAR(static_cast<double>(tree.value(cell[i])), field.distance(tree.centre(cell[i])), 2e-5);
    }
  });
  return cells;
}

TEST(FieldOctree, SavesCellsWhereTheFieldIsStraightAndMissesNoThinWall) {
  const FieldPtr block = support::block({8, 8, 8});
  const int all = cellsOf(*block, {0.5, 0.5, 0.1, 1, {}});
  EXPECT_NEAR(all, 6 * 32 * 32, 600);
  EXPECT_LT(cellsOf(*block, {0.5, 2, 0.1, 1, {}}), 2 * all / 3);
  EXPECT_GT(cellsOf(*block, {0.5, 2, 0.1, 1, [](const Vec3& p) { return p.x > 0 ? 1e9 : 1.0; }}),
            cellsOf(*block, {0.5, 2, 0.1, 1, {}}));
  const FieldPtr plate = support::field(
      [](const Vec3& p) {
        return std::min(boxDistance(p - Vec3{-4, 0, 0}, {4, 8, 8}, 0),
                        boxDistance(p - Vec3{1.5, 0, 0}, {0.4, 8, 8}, 0));
      },
      8.5);
  EXPECT_EQ(support::eulerNumber(meshField(*plate, detailOf(0.5))), 4);
}

}  // namespace
