#include "samples/geometry/Simplifier.h"

#include <numeric>

#include "samples/geometry/BucketQueue.h"
#include "samples/geometry/Quadric.h"
#include "samples/geometry/TriangleFans.h"

namespace samples {
namespace {

struct Candidate {
  std::uint32_t a = 0;
  std::uint32_t b = 0;
  std::uint32_t stamp = 0;
};

class Collapser {
 public:
  Collapser(Surface& surface, const Simplification& how)
      : m_surface(surface),
        m_evenness(how.evenness),
        m_quadrics(surface.positions.size()),
        m_stamps(surface.positions.size()),
        m_became(surface.positions.size()),
        m_around(surface),
        m_marks(surface.positions.size()) {
    std::iota(m_became.begin(), m_became.end(), 0U);
    m_alive.assign(surface.triangles.size(), 1);
    for (std::uint32_t t = 0; t < surface.triangles.size(); ++t) addTriangle(t, how.weight);
    m_left = surface.triangles.size();
  }

  void run(std::size_t target) {
    // What could not be merged at first may be once its surroundings have changed.
    for (std::size_t before = m_left + 1; m_left > target && m_left < before;) {
      before = m_left;
      proposeAll();
      collapseBest(target);
    }
    compact();
  }

 private:
  void addTriangle(std::uint32_t t, const std::function<double(const Vec3&)>& weight) {
    const Surface::Triangle& triangle = m_surface.triangles[t];
    const Vec3 normal = m_surface.areaNormal(triangle);
    const Vec3 unit = normalized(normal);
    const Vec3& corner = m_surface.positions[triangle[0]];
    const double w = length(normal) * (weight ? weight(corner) : 1.0);
    for (const std::uint32_t v : triangle) m_quadrics[v].addPlane(unit, -dot(unit, corner), w);
  }

  void proposeAll() {
    m_queue = {};
    for (std::uint32_t t = 0; t < m_alive.size(); ++t) {
      if (m_alive[t] == 0) continue;
      const Surface::Triangle& triangle = m_surface.triangles[t];
      for (std::size_t i = 0; i < 3; ++i) {
        const std::uint32_t a = triangle[i], b = triangle[(i + 1) % 3];
        if (a < b) m_queue.push(cost(a, b), {a, b, m_stamps[a] + m_stamps[b]});
      }
    }
  }

  bool tryCollapse(std::uint32_t a, std::uint32_t b) {
    dropDead(a);
    dropDead(b);
    const Vec3 place = placeFor(a, b).place;
    if (!keepsClosed(a, b)) return false;
    const Vec3 middle = (m_surface.positions[a] + m_surface.positions[b]) * 0.5;
    for (const Vec3& candidate : {place, middle, m_surface.positions[a], m_surface.positions[b]}) {
      if (turnsOver(a, b, candidate) || turnsOver(b, a, candidate)) continue;
      collapse(a, b, candidate);
      m_left -= 2;
      return true;
    }
    return false;
  }

  struct Merge {
    Vec3 place;
    double cost;
  };

  Merge placeFor(std::uint32_t a, std::uint32_t b) const {
    Quadric sum = m_quadrics[a];
    sum.add(m_quadrics[b]);
    const Vec3 middle = (m_surface.positions[a] + m_surface.positions[b]) * 0.5;
    const double edge = length(m_surface.positions[a] - m_surface.positions[b]);
    Vec3 place = sum.minimum().value_or(middle);
    if (length(place - middle) > edge) place = middle;
    // The edge's length breaks the tie on flat parts, so that triangles there stay of a kind.
    return {place, sum.at(place) + m_evenness * edge * edge * (sum.xx + sum.yy + sum.zz)};
  }

  // A candidate's cost is brought up to date only when its turn comes: merging makes its surroundings dearer, so until
  // then it could only have waited longer.
  void collapseBest(std::size_t target) {
    Candidate best;
    while (m_left > target && m_queue.pop(best)) {
      const std::uint32_t a = std::min(current(best.a), current(best.b));
      const std::uint32_t b = std::max(current(best.a), current(best.b));
      if (a == b) continue;
      const std::uint32_t stamp = m_stamps[a] + m_stamps[b];
      const float now = best.stamp == stamp ? 0 : cost(a, b);
      if (m_queue.mustWait(now))
        m_queue.push(now, {a, b, stamp});
      else
        tryCollapse(a, b);
    }
  }

  // The vertex that `v` has become.
  std::uint32_t current(std::uint32_t v) {
    while (m_became[v] != v) v = m_became[v] = m_became[m_became[v]];
    return v;
  }

  float cost(std::uint32_t a, std::uint32_t b) const { return static_cast<float>(placeFor(a, b).cost); }

  // Two vertices may become one only when just the two triangles at their edge vanish by it.
  bool keepsClosed(std::uint32_t a, std::uint32_t b) {
    ++m_mark;
    for (const std::uint32_t t : m_around[a]) {
      for (const std::uint32_t v : m_surface.triangles[t]) m_marks[v] = m_mark;
    }
    m_marks[a] = m_marks[b] = 0;
    int shared = 0;
    for (const std::uint32_t t : m_around[b]) {
      for (const std::uint32_t v : m_surface.triangles[t]) {
        if (m_marks[v] != m_mark) continue;
        m_marks[v] = 0;
        ++shared;
      }
    }
    return shared == 2 && m_around.count(a) + m_around.count(b) > 7;
  }

  bool turnsOver(std::uint32_t moved, std::uint32_t other, const Vec3& place) const {
    for (const std::uint32_t t : m_around[moved]) {
      const Surface::Triangle& triangle = m_surface.triangles[t];
      if (triangle[0] == other || triangle[1] == other || triangle[2] == other) continue;
      std::array<Vec3, 3> corners;
      for (std::size_t i = 0; i < 3; ++i) {
        corners[i] = triangle[i] == moved ? place : m_surface.positions[triangle[i]];
      }
      const Vec3 before = m_surface.areaNormal(triangle);
      const Vec3 after = cross(corners[1] - corners[0], corners[2] - corners[0]);
      // A sliver's direction means little, so it may turn; a sound triangle may neither turn nor become a sliver.
      const double shapeBefore =
          shape({m_surface.positions[triangle[0]], m_surface.positions[triangle[1]], m_surface.positions[triangle[2]]});
      const double shapeAfter = shape(corners);
      const double least = shapeBefore < 0.1 ? -0.2 : 0.25;
      if (dot(before, after) <= least * length(before) * length(after)) return true;
      if (shapeAfter < 0.04 && shapeAfter < shapeBefore) return true;
    }
    return false;
  }

  // Twice the area in parts of the longest edge's square.
  static double shape(const std::array<Vec3, 3>& corners) {
    const auto square = [](const Vec3& v) { return dot(v, v); };
    const double longest =
        std::max({square(corners[1] - corners[0]), square(corners[2] - corners[0]), square(corners[2] - corners[1])});
    return length(cross(corners[1] - corners[0], corners[2] - corners[0])) / std::max(longest, 1e-12);
  }

  void collapse(std::uint32_t a, std::uint32_t b, const Vec3& place) {
    m_surface.positions[a] = place;
    m_quadrics[a].add(m_quadrics[b]);
    for (const std::uint32_t t : m_around[a]) {
      if (has(t, b)) m_alive[t] = 0;
    }
    dropDead(a);
    dropDead(b);
    for (const std::uint32_t t : m_around[b]) {
      for (std::uint32_t& v : m_surface.triangles[t]) v = v == b ? a : v;
    }
    m_around.join(a, b);
    m_stamps[a] += m_stamps[b] + 1;
    m_became[b] = a;
  }

  void dropDead(std::uint32_t v) {
    m_around.filter(v, [this](std::uint32_t t) { return m_alive[t] != 0; });
  }

  bool has(std::uint32_t t, std::uint32_t v) const {
    const Surface::Triangle& triangle = m_surface.triangles[t];
    return triangle[0] == v || triangle[1] == v || triangle[2] == v;
  }

  void compact() {
    Surface result;
    std::vector<std::uint32_t> numbers(m_surface.positions.size(), UINT32_MAX);
    for (std::size_t t = 0; t < m_surface.triangles.size(); ++t) {
      if (m_alive[t] == 0) continue;
      Surface::Triangle triangle = m_surface.triangles[t];
      for (std::uint32_t& v : triangle) {
        if (numbers[v] == UINT32_MAX) {
          numbers[v] = static_cast<std::uint32_t>(result.positions.size());
          result.positions.push_back(m_surface.positions[v]);
        }
        v = numbers[v];
      }
      result.triangles.push_back(triangle);
    }
    m_surface = std::move(result);
  }

  Surface& m_surface;
  double m_evenness;
  std::vector<Quadric> m_quadrics;
  std::vector<std::uint32_t> m_stamps;
  std::vector<std::uint32_t> m_became;
  TriangleFans m_around;
  std::vector<std::uint32_t> m_marks;
  std::uint32_t m_mark = 0;
  std::size_t m_left = 0;
  std::vector<char> m_alive;
  BucketQueue<Candidate> m_queue;
};

}  // namespace

void simplify(Surface& surface, const Simplification& how) {
  Collapser collapser(surface, how);
  collapser.run(how.triangles);
}

}  // namespace samples
