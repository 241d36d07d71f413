#include "samples/Mesher.h"

#include <limits>
#include <unordered_map>

#include "samples/Simplifier.h"

namespace samples {
namespace {

constexpr int kBlock = 6;

struct Cell {
  int x;
  int y;
  int z;
};

// The field sampled at the corners of a grid, only in the blocks that the surface may pass through.
class Grid {
 public:
  Grid(const Field& field, double cell) : m_field(field), m_cell(cell) {
    const Box box = field.bounds().grown(2 * cell);
    // An odd offset keeps flat cuts at round heights off the grid's planes.
    m_low = box.low - Vec3{0.137, 0.171, 0.113} * cell;
    const Vec3 size = box.high - m_low;
    const double block = cell * kBlock;
    m_blocks = {static_cast<int>(size.x / block) + 2, static_cast<int>(size.y / block) + 2,
                static_cast<int>(size.z / block) + 2};
    m_corners = {m_blocks.x * kBlock + 1, m_blocks.y * kBlock + 1, m_blocks.z * kBlock + 1};
    m_values.assign(static_cast<std::size_t>(m_corners.x) * static_cast<std::size_t>(m_corners.y) *
                        static_cast<std::size_t>(m_corners.z),
                    std::numeric_limits<float>::quiet_NaN());
    sample();
  }

  const std::vector<Cell>& active() const { return m_active; }
  std::size_t index(int x, int y, int z) const {
    return (static_cast<std::size_t>(z) * static_cast<std::size_t>(m_corners.y) + static_cast<std::size_t>(y)) *
               static_cast<std::size_t>(m_corners.x) +
           static_cast<std::size_t>(x);
  }
  double value(std::size_t corner) const { return static_cast<double>(m_values[corner]); }
  Vec3 place(int x, int y, int z) const {
    return m_low + Vec3{static_cast<double>(x), static_cast<double>(y), static_cast<double>(z)} * m_cell;
  }

 private:
  void sample() {
    const double reach = m_cell * kBlock * 0.5 * 1.7321 * 1.35 + 0.5;
    const double half = kBlock * 0.5;
    for (int bz = 0; bz < m_blocks.z; ++bz) {
      for (int by = 0; by < m_blocks.y; ++by) {
        for (int bx = 0; bx < m_blocks.x; ++bx) {
          const Vec3 centre = m_low + Vec3{bx * kBlock + half, by * kBlock + half, bz * kBlock + half} * m_cell;
          if (std::abs(m_field.distance(centre)) < reach) sampleBlock({bx * kBlock, by * kBlock, bz * kBlock});
        }
      }
    }
  }

  void sampleBlock(const Cell& from) {
    m_active.push_back(from);
    for (int z = from.z; z <= from.z + kBlock; ++z) {
      for (int y = from.y; y <= from.y + kBlock; ++y) {
        for (int x = from.x; x <= from.x + kBlock; ++x) {
          float& value = m_values[index(x, y, z)];
          if (!std::isnan(value)) continue;
          const double d = m_field.distance(place(x, y, z));
          value = static_cast<float>(std::abs(d) < 1e-5 ? 1e-5 : d);
        }
      }
    }
  }

  const Field& m_field;
  double m_cell;
  Vec3 m_low;
  Cell m_blocks{};
  Cell m_corners{};
  std::vector<float> m_values;
  std::vector<Cell> m_active;
};

// Cuts every cube into six tetrahedra around its diagonal. Unlike cubes, tetrahedra leave no doubt about how the
// surface passes through them, so it always closes.
class Tetrahedra {
 public:
  explicit Tetrahedra(const Grid& grid) : m_grid(grid) {}

  Surface run() {
    for (const Cell& block : m_grid.active()) {
      for (int z = block.z; z < block.z + kBlock; ++z) {
        for (int y = block.y; y < block.y + kBlock; ++y) {
          for (int x = block.x; x < block.x + kBlock; ++x) cube(x, y, z);
        }
      }
    }
    return std::move(m_surface);
  }

 private:
  struct Corner {
    std::size_t index;
    double value;
    Vec3 place;
  };

  void cube(int x, int y, int z) {
    std::array<Corner, 8> corners;
    int inside = 0;
    for (int i = 0; i < 8; ++i) {
      const int cx = x + (i & 1), cy = y + ((i >> 1) & 1), cz = z + ((i >> 2) & 1);
      Corner& corner = corners[static_cast<std::size_t>(i)];
      corner.index = m_grid.index(cx, cy, cz);
      corner.value = m_grid.value(corner.index);
      inside += corner.value < 0;
    }
    if (inside == 0 || inside == 8) return;
    for (int i = 0; i < 8; ++i) {
      corners[static_cast<std::size_t>(i)].place = m_grid.place(x + (i & 1), y + ((i >> 1) & 1), z + ((i >> 2) & 1));
    }
    constexpr std::array<std::array<std::size_t, 2>, 6> middles = {{{1, 3}, {3, 2}, {2, 6}, {6, 4}, {4, 5}, {5, 1}}};
    for (const auto& middle : middles) tetrahedron({corners[0], corners[middle[0]], corners[middle[1]], corners[7]});
  }

  void tetrahedron(const std::array<Corner, 4>& corners) {
    std::array<std::size_t, 4> in{};
    std::array<std::size_t, 4> out{};
    std::size_t ins = 0;
    std::size_t outs = 0;
    for (std::size_t i = 0; i < 4; ++i) {
      if (corners[i].value < 0)
        in[ins++] = i;
      else
        out[outs++] = i;
    }
    if (ins == 0 || outs == 0) return;
    const Vec3 outward = middleOf(corners, out, outs) - middleOf(corners, in, ins);
    const auto cut = [&](std::size_t a, std::size_t b) { return vertex(corners[in[a]], corners[out[b]]); };
    if (ins == 1) {
      add(cut(0, 0), cut(0, 1), cut(0, 2), outward);
    } else if (ins == 3) {
      add(cut(0, 0), cut(1, 0), cut(2, 0), outward);
    } else {
      add(cut(0, 0), cut(0, 1), cut(1, 1), outward);
      add(cut(0, 0), cut(1, 1), cut(1, 0), outward);
    }
  }

  static Vec3 middleOf(const std::array<Corner, 4>& corners, const std::array<std::size_t, 4>& which, std::size_t n) {
    Vec3 sum;
    for (std::size_t i = 0; i < n; ++i) sum = sum + corners[which[i]].place;
    return sum * (1.0 / static_cast<double>(n));
  }

  std::uint32_t vertex(const Corner& a, const Corner& b) {
    const std::size_t low = std::min(a.index, b.index);
    const std::uint64_t key = (static_cast<std::uint64_t>(low) << 24U) ^ (std::max(a.index, b.index) - low);
    const auto [found, added] = m_vertices.try_emplace(key, static_cast<std::uint32_t>(m_surface.positions.size()));
    if (added) {
      const double t = std::clamp(a.value / (a.value - b.value), 0.04, 0.96);
      m_surface.positions.push_back(mix(a.place, b.place, t));
    }
    return found->second;
  }

  void add(std::uint32_t a, std::uint32_t b, std::uint32_t c, const Vec3& outward) {
    const Surface::Triangle triangle{a, b, c};
    if (dot(m_surface.areaNormal(triangle), outward) >= 0)
      m_surface.triangles.push_back(triangle);
    else
      m_surface.triangles.push_back({a, c, b});
  }

  const Grid& m_grid;
  Surface m_surface;
  std::unordered_map<std::uint64_t, std::uint32_t> m_vertices;
};

// Brings vertices back onto the surface after simplifying; never far, so that no triangle turns over.
void project(Surface& surface, const Field& field, double cell) {
  for (Vec3& position : surface.positions) {
    for (int i = 0; i < 2; ++i) {
      const double d = field.distance(position);
      position = position - field.normal(position) * std::clamp(d, -0.3 * cell, 0.3 * cell);
    }
  }
}

}  // namespace

Surface meshField(const Field& field, const MeshDetail& detail) {
  Surface surface = Tetrahedra(Grid(field, detail.cell)).run();
  simplify(surface, {detail.triangles, 0.9 * detail.cell, detail.evenness, detail.weight});
  project(surface, field, detail.cell);
  return surface;
}

}  // namespace samples
