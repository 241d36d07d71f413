#include "samples/Simplifier.h"

#include <optional>
#include <queue>

namespace samples {
namespace {

// The sum of squared distances to planes, as a function of the place.
struct Quadric {
  double xx = 0, xy = 0, xz = 0, yy = 0, yz = 0, zz = 0;
  Vec3 linear;
  double constant = 0;

  void addPlane(const Vec3& n, double offset, double weight) {
    xx += weight * n.x * n.x;
    xy += weight * n.x * n.y;
    xz += weight * n.x * n.z;
    yy += weight * n.y * n.y;
    yz += weight * n.y * n.z;
    zz += weight * n.z * n.z;
    linear = linear + n * (weight * offset);
    constant += weight * offset * offset;
  }
  void add(const Quadric& q) {
    xx += q.xx;
    xy += q.xy;
    xz += q.xz;
    yy += q.yy;
    yz += q.yz;
    zz += q.zz;
    linear = linear + q.linear;
    constant += q.constant;
  }
  Vec3 apply(const Vec3& p) const {
    return {xx * p.x + xy * p.y + xz * p.z, xy * p.x + yy * p.y + yz * p.z, xz * p.x + yz * p.y + zz * p.z};
  }
  double at(const Vec3& p) const { return std::max(dot(p, apply(p)) + 2 * dot(linear, p) + constant, 0.0); }

  // Where the sum is least; nothing where that is not one place.
  std::optional<Vec3> minimum() const {
    const double a = yy * zz - yz * yz;
    const double b = xz * yz - xy * zz;
    const double c = xy * yz - xz * yy;
    const double determinant = xx * a + xy * b + xz * c;
    const double size = xx + yy + zz;
    if (std::abs(determinant) < 1e-4 * size * size * size) return std::nullopt;
    const double d = xx * zz - xz * xz;
    const double e = xy * xz - xx * yz;
    const double f = xx * yy - xy * xy;
    const Vec3 r = -linear;
    return Vec3{a * r.x + b * r.y + c * r.z, b * r.x + d * r.y + e * r.z, c * r.x + e * r.y + f * r.z} *
           (1.0 / determinant);
  }
};

struct Candidate {
  float cost;
  std::uint32_t a;
  std::uint32_t b;
  std::uint32_t stamp;

  bool operator<(const Candidate& other) const {
    if (cost != other.cost) return cost > other.cost;
    return a != other.a ? a > other.a : b > other.b;
  }
};

class Collapser {
 public:
  Collapser(Surface& surface, const Simplification& how)
      : m_surface(surface),
        m_evenness(how.evenness),
        m_quadrics(surface.positions.size()),
        m_stamps(surface.positions.size()),
        m_around(surface.positions.size()),
        m_marks(surface.positions.size()) {
    m_alive.assign(surface.triangles.size(), 1);
    for (std::uint32_t t = 0; t < surface.triangles.size(); ++t) addTriangle(t, how.weight);
    m_left = surface.triangles.size();
  }

  // Merges vertices nearer to each other than `edge` without looking for the best first: cheap, and most of them go so.
  void mergeNear(double edge, std::size_t target) {
    for (std::uint32_t a = 0; a < m_around.size() && m_left > target; ++a) {
      bool merged = true;
      while (merged && !m_around[a].empty()) {
        const auto b = nearestNeighbour(a, edge);
        merged = b && tryCollapse(std::min(a, *b), std::max(a, *b));
      }
    }
  }

  void run(std::size_t target) {
    proposeAll();
    while (m_left > target && !m_queue.empty()) {
      const Candidate best = m_queue.top();
      m_queue.pop();
      if (best.stamp != m_stamps[best.a] + m_stamps[best.b] || m_around[best.a].empty() || m_around[best.b].empty()) {
        continue;
      }
      if (tryCollapse(best.a, best.b)) refreshAround(best.a);
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
    for (const std::uint32_t v : triangle) {
      m_quadrics[v].addPlane(unit, -dot(unit, corner), w);
      m_around[v].push_back(t);
    }
  }

  void proposeAll() {
    for (std::uint32_t t = 0; t < m_alive.size(); ++t) {
      if (m_alive[t] == 0) continue;
      const Surface::Triangle& triangle = m_surface.triangles[t];
      for (std::size_t i = 0; i < 3; ++i) {
        if (triangle[i] < triangle[(i + 1) % 3]) propose(triangle[i], triangle[(i + 1) % 3]);
      }
    }
  }

  std::optional<std::uint32_t> nearestNeighbour(std::uint32_t a, double edge) const {
    std::optional<std::uint32_t> nearest;
    double best = edge * edge;
    for (const std::uint32_t t : m_around[a]) {
      if (m_alive[t] == 0) continue;
      for (const std::uint32_t v : m_surface.triangles[t]) {
        const Vec3 d = m_surface.positions[v] - m_surface.positions[a];
        if (v == a || dot(d, d) >= best) continue;
        best = dot(d, d);
        nearest = v;
      }
    }
    return nearest;
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

  void propose(std::uint32_t a, std::uint32_t b) {
    m_queue.push({static_cast<float>(placeFor(a, b).cost), a, b, m_stamps[a] + m_stamps[b]});
  }

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
    return shared == 2 && m_around[a].size() + m_around[b].size() > 7;
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
    std::vector<std::uint32_t> around;
    for (const std::uint32_t t : m_around[a]) {
      if (has(t, b))
        m_alive[t] = 0;
      else
        around.push_back(t);
    }
    for (const std::uint32_t t : m_around[b]) {
      if (m_alive[t] == 0) continue;
      for (std::uint32_t& v : m_surface.triangles[t]) v = v == b ? a : v;
      around.push_back(t);
    }
    m_around[b].clear();
    m_around[a] = std::move(around);
    ++m_stamps[a];
  }

  void refreshAround(std::uint32_t a) {
    ++m_mark;
    m_marks[a] = m_mark;
    for (const std::uint32_t t : m_around[a]) {
      for (const std::uint32_t v : m_surface.triangles[t]) {
        if (m_marks[v] == m_mark) continue;
        m_marks[v] = m_mark;
        dropDead(v);
        propose(std::min(a, v), std::max(a, v));
      }
    }
  }

  void dropDead(std::uint32_t v) {
    auto& around = m_around[v];
    around.erase(std::remove_if(around.begin(), around.end(), [this](std::uint32_t t) { return m_alive[t] == 0; }),
                 around.end());
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
  std::vector<std::vector<std::uint32_t>> m_around;
  std::vector<std::uint32_t> m_marks;
  std::uint32_t m_mark = 0;
  std::size_t m_left = 0;
  std::vector<char> m_alive;
  std::priority_queue<Candidate> m_queue;
};

}  // namespace

void simplify(Surface& surface, const Simplification& how) {
  Collapser collapser(surface, how);
  for (const double part : {0.35, 0.6, 0.85}) collapser.mergeNear(part * how.smallestEdge, how.triangles);
  collapser.run(how.triangles);
}

}  // namespace samples
