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
      : surface_(surface),
        evenness_(how.evenness),
        quadrics_(surface.positions.size()),
        stamps_(surface.positions.size()),
        became_(surface.positions.size()),
        around_(surface),
        marks_(surface.positions.size()) {
    std::iota(became_.begin(), became_.end(), 0U);
    alive_.assign(surface.triangles.size(), 1);
    for (std::uint32_t t = 0; t < surface.triangles.size(); ++t) addTriangle(t, how.weight);
    left_ = surface.triangles.size();
  }

  void run(std::size_t target) {
    // What could not be merged at first may be once its surroundings have changed.
    for (std::size_t before = left_ + 1; left_ > target && left_ < before;) {
      before = left_;
      proposeAll();
      collapseBest(target);
    }
    compact();
  }

 private:
  void addTriangle(std::uint32_t t, const std::function<double(const Vec3&)>& weight) {
    const Surface::Triangle& triangle = surface_.triangles[t];
    const Vec3 normal = surface_.areaNormal(triangle);
    const Vec3 unit = normalized(normal);
    const Vec3& corner = surface_.positions[triangle[0]];
    const double w = length(normal) * (weight ? weight(corner) : 1.0);
    for (const std::uint32_t v : triangle) quadrics_[v].addPlane(unit, -dot(unit, corner), w);
  }

  void proposeAll() {
    queue_ = {};
    for (std::uint32_t t = 0; t < alive_.size(); ++t) {
      if (alive_[t] == 0) continue;
      const Surface::Triangle& triangle = surface_.triangles[t];
      for (std::size_t i = 0; i < 3; ++i) {
        const std::uint32_t a = triangle[i], b = triangle[(i + 1) % 3];
        if (a < b) queue_.push(cost(a, b), {a, b, stamps_[a] + stamps_[b]});
      }
    }
  }

  // A place that turns no triangle over may change the shape more than the best one, and waits for its turn then.
  void tryCollapse(std::uint32_t a, std::uint32_t b) {
    dropDead(a);
    dropDead(b);
    if (!keepsClosed(a, b)) return;
    const Vec3 middle = (surface_.positions[a] + surface_.positions[b]) * 0.5;
    for (const Vec3& place : {placeFor(a, b).place, middle, surface_.positions[a], surface_.positions[b]}) {
      if (turnsOver(a, b, place) || turnsOver(b, a, place)) continue;
      const auto now = static_cast<float>(costAt(a, b, place));
      if (queue_.mustWait(now)) return queue_.push(now, {a, b, stamps_[a] + stamps_[b]});
      collapse(a, b, place);
      left_ -= 2;
      return;
    }
  }

  struct Merge {
    Vec3 place;
    double cost;
  };

  Merge placeFor(std::uint32_t a, std::uint32_t b) const {
    Quadric sum = quadrics_[a];
    sum.add(quadrics_[b]);
    const Vec3 middle = (surface_.positions[a] + surface_.positions[b]) * 0.5;
    Vec3 place = sum.minimum().value_or(middle);
    const double edge = length(surface_.positions[a] - surface_.positions[b]);
    if (length(place - middle) > edge) place = middle;
    return {place, costOf(sum, place, edge)};
  }

  double costAt(std::uint32_t a, std::uint32_t b, const Vec3& place) const {
    Quadric sum = quadrics_[a];
    sum.add(quadrics_[b]);
    return costOf(sum, place, length(surface_.positions[a] - surface_.positions[b]));
  }

  // The edge's length breaks the tie on flat parts, so that triangles there stay of a kind.
  double costOf(const Quadric& sum, const Vec3& place, double edge) const {
    return sum.at(place) + evenness_ * edge * edge * (sum.xx + sum.yy + sum.zz);
  }

  // A candidate's cost is brought up to date only when its turn comes: merging makes its surroundings dearer, so until
  // then it could only have waited longer.
  void collapseBest(std::size_t target) {
    Candidate best;
    while (left_ > target && queue_.pop(best)) {
      const std::uint32_t a = std::min(current(best.a), current(best.b));
      const std::uint32_t b = std::max(current(best.a), current(best.b));
      if (a == b) continue;
      const std::uint32_t stamp = stamps_[a] + stamps_[b];
      const float now = best.stamp == stamp ? 0 : cost(a, b);
      if (queue_.mustWait(now))
        queue_.push(now, {a, b, stamp});
      else
        tryCollapse(a, b);
    }
  }

  // The vertex that `v` has become.
  std::uint32_t current(std::uint32_t v) {
    while (became_[v] != v) v = became_[v] = became_[became_[v]];
    return v;
  }

  float cost(std::uint32_t a, std::uint32_t b) const { return static_cast<float>(placeFor(a, b).cost); }

  // Two vertices may become one only when just the two triangles at their edge vanish by it.
  bool keepsClosed(std::uint32_t a, std::uint32_t b) {
    ++mark_;
    for (const std::uint32_t t : around_[a]) {
      for (const std::uint32_t v : surface_.triangles[t]) marks_[v] = mark_;
    }
    marks_[a] = marks_[b] = 0;
    int shared = 0;
    for (const std::uint32_t t : around_[b]) {
      for (const std::uint32_t v : surface_.triangles[t]) {
        if (marks_[v] != mark_) continue;
        marks_[v] = 0;
        ++shared;
      }
    }
    return shared == 2 && around_.count(a) + around_.count(b) > 7;
  }

  bool turnsOver(std::uint32_t moved, std::uint32_t other, const Vec3& place) const {
    for (const std::uint32_t t : around_[moved]) {
      const Surface::Triangle& triangle = surface_.triangles[t];
      if (triangle[0] == other || triangle[1] == other || triangle[2] == other) continue;
      std::array<Vec3, 3> corners;
      for (std::size_t i = 0; i < 3; ++i) {
        corners[i] = triangle[i] == moved ? place : surface_.positions[triangle[i]];
      }
      const Vec3 before = surface_.areaNormal(triangle);
      const Vec3 after = cross(corners[1] - corners[0], corners[2] - corners[0]);
      // A sliver's direction means little, so it may turn; a sound triangle may neither turn nor become a sliver.
      const double shapeBefore =
          shape({surface_.positions[triangle[0]], surface_.positions[triangle[1]], surface_.positions[triangle[2]]});
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
    surface_.positions[a] = place;
    quadrics_[a].add(quadrics_[b]);
    for (const std::uint32_t t : around_[a]) {
      if (has(t, b)) alive_[t] = 0;
    }
    dropDead(a);
    dropDead(b);
    for (const std::uint32_t t : around_[b]) {
      for (std::uint32_t& v : surface_.triangles[t]) v = v == b ? a : v;
    }
    around_.join(a, b);
    stamps_[a] += stamps_[b] + 1;
    became_[b] = a;
  }

  void dropDead(std::uint32_t v) {
    around_.filter(v, [this](std::uint32_t t) { return alive_[t] != 0; });
  }

  bool has(std::uint32_t t, std::uint32_t v) const {
    const Surface::Triangle& triangle = surface_.triangles[t];
    return triangle[0] == v || triangle[1] == v || triangle[2] == v;
  }

  void compact() {
    Surface result;
    std::vector<std::uint32_t> numbers(surface_.positions.size(), UINT32_MAX);
    for (std::size_t t = 0; t < surface_.triangles.size(); ++t) {
      if (alive_[t] == 0) continue;
      Surface::Triangle triangle = surface_.triangles[t];
      for (std::uint32_t& v : triangle) {
        if (numbers[v] == UINT32_MAX) {
          numbers[v] = static_cast<std::uint32_t>(result.positions.size());
          result.positions.push_back(surface_.positions[v]);
        }
        v = numbers[v];
      }
      result.triangles.push_back(triangle);
    }
    surface_ = std::move(result);
  }

  Surface& surface_;
  double evenness_;
  std::vector<Quadric> quadrics_;
  std::vector<std::uint32_t> stamps_;
  std::vector<std::uint32_t> became_;
  TriangleFans around_;
  std::vector<std::uint32_t> marks_;
  std::uint32_t mark_ = 0;
  std::size_t left_ = 0;
  std::vector<char> alive_;
  BucketQueue<Candidate> queue_;
};

}  // namespace

void simplify(Surface& surface, const Simplification& how) {
  Collapser collapser(surface, how);
  collapser.run(how.triangles);
}

}  // namespace samples
