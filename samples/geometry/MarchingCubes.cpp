#include "samples/geometry/MarchingCubes.h"

namespace samples {
namespace {

constexpr std::array<std::array<std::uint8_t, 2>, 12> EDGES = {
    {{0, 1}, {2, 3}, {4, 5}, {6, 7}, {0, 2}, {1, 3}, {4, 6}, {5, 7}, {0, 4}, {1, 5}, {2, 6}, {3, 7}}};

// Counter-clockwise seen from outside the cell.
constexpr std::array<std::array<std::uint8_t, 4>, 6> SIDES = {
    {{0, 4, 6, 2}, {1, 3, 7, 5}, {0, 1, 5, 4}, {2, 6, 7, 3}, {0, 2, 3, 1}, {4, 5, 7, 6}}};

constexpr std::uint8_t NONE = 255;

std::uint8_t edgeBetween(std::uint8_t a, std::uint8_t b) {
  for (std::uint8_t e = 0; e < std::uint8_t{EDGES.size()}; ++e) {
    if ((EDGES[e][0] == a && EDGES[e][1] == b) || (EDGES[e][0] == b && EDGES[e][1] == a)) return e;
  }
  return NONE;
}

// For each edge that the surface crosses, the next one around its loop.
std::array<std::uint8_t, 12> followers(unsigned inside) {
  std::array<std::uint8_t, 12> next{};
  next.fill(NONE);
  const auto isIn = [inside](std::uint8_t corner) { return (inside >> corner & 1U) != 0; };
  for (const auto& side : SIDES) {
    for (std::size_t i = 0; i < 4; ++i) {
      if (isIn(side[i]) || !isIn(side[(i + 1) % 4])) continue;
      std::size_t last = i + 1;
      while (isIn(side[(last + 1) % 4])) ++last;
      next[edgeBetween(side[i], side[(i + 1) % 4])] = edgeBetween(side[last % 4], side[(last + 1) % 4]);
    }
  }
  return next;
}

}  // namespace

MarchingCubes::MarchingCubes() {
  for (unsigned inside = 1; inside < 255; ++inside) {
    std::array<std::uint8_t, 12> next = followers(inside);
    for (std::uint8_t start = 0; start < std::uint8_t{next.size()}; ++start) {
      Loop loop;
      for (std::uint8_t edge = start; next[edge] != NONE;) {
        loop.push_back(edge);
        const std::uint8_t following = next[edge];
        next[edge] = NONE;
        edge = following;
      }
      if (!loop.empty()) loops_[inside].push_back(loop);
    }
  }
}

const MarchingCubes& MarchingCubes::instance() {
  static const MarchingCubes cuts;
  return cuts;
}

std::array<std::uint8_t, 2> MarchingCubes::corners(std::uint8_t edge) { return EDGES[edge]; }
const std::array<std::array<std::uint8_t, 4>, 6>& MarchingCubes::sides() { return SIDES; }

}  // namespace samples
