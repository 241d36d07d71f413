#include "samples/geometry/Mesher.h"

#include <numeric>
#include <unordered_map>

#include "samples/geometry/FieldOctree.h"
#include "samples/geometry/MarchingCubes.h"
#include "samples/geometry/Simplifier.h"

namespace samples {
namespace {

// How near a cut may come to a sample, in parts of the way to the next.
constexpr double LEAST = 0.03;

// Joins the places where the surface cuts the lines between neighbouring samples.
class Cutter {
 public:
  Cutter(const Field& field, const FieldOctree& tree) : field_(field), tree_(tree), cuts_(MarchingCubes::instance()) {
    vertices_.reserve(60000);
  }

  Surface run() {
    tree_.forEachCell([this](const FieldOctree::Cell& cell, unsigned inside) {
      for (const MarchingCubes::Loop& loop : cuts_.loops(inside)) addLoop(cell, loop);
    });
    return std::move(surface_);
  }

 private:
  struct Cut {
    std::uint32_t a;
    std::uint32_t b;
    std::uint32_t vertex;
  };

  void addLoop(const FieldOctree::Cell& cell, const MarchingCubes::Loop& loop) {
    loop_.clear();
    for (const std::uint8_t edge : loop) {
      const auto [first, second] = MarchingCubes::corners(edge);
      const Cut cut = cutBetween(cell[first], cell[second]);
      if (loop_.empty() || loop_.back().vertex != cut.vertex) loop_.push_back(cut);
    }
    while (loop_.size() > 1 && loop_.front().vertex == loop_.back().vertex) loop_.pop_back();
    if (loop_.size() < 3) return;
    if (loop_.size() == 3) return add(0, 1, 2);
    if (loop_.size() == 4 && addSquare(cell)) return;
    addFan();
  }

  // A diagonal may not lie in a side of the cell, where the neighbour could have the same one.
  bool addSquare(const FieldOctree::Cell& cell) {
    const bool first = !onOneSide(cell, loop_[0], loop_[2]);
    const bool second = !onOneSide(cell, loop_[1], loop_[3]);
    if (!first && !second) return false;
    const auto diagonal = [this](std::size_t i) { return length(place(i) - place(i + 2)); };
    const bool useFirst = first && (!second || diagonal(0) <= diagonal(1));
    if (useFirst) {
      add(0, 1, 2);
      add(0, 2, 3);
    } else {
      add(1, 2, 3);
      add(1, 3, 0);
    }
    return true;
  }

  static bool onOneSide(const FieldOctree::Cell& cell, const Cut& p, const Cut& q) {
    for (const auto& side : MarchingCubes::sides()) {
      const auto has = [&](std::uint32_t cube) {
        return std::any_of(side.begin(), side.end(), [&](std::uint8_t corner) { return cell[corner] == cube; });
      };
      if (has(p.a) && has(p.b) && has(q.a) && has(q.b)) return true;
    }
    return false;
  }

  void addFan() {
    Vec3 sum;
    for (std::size_t i = 0; i < loop_.size(); ++i) sum = sum + place(i);
    const auto middle = static_cast<std::uint32_t>(surface_.positions.size());
    surface_.positions.push_back(sum * (1.0 / static_cast<double>(loop_.size())));
    for (std::size_t i = 0; i < loop_.size(); ++i) {
      surface_.triangles.push_back({loop_[i].vertex, loop_[(i + 1) % loop_.size()].vertex, middle});
    }
  }

  const Vec3& place(std::size_t i) const { return surface_.positions[loop_[i].vertex]; }

  void add(std::size_t a, std::size_t b, std::size_t c) {
    surface_.triangles.push_back({loop_[a].vertex, loop_[b].vertex, loop_[c].vertex});
  }

  Cut cutBetween(std::uint32_t a, std::uint32_t b) {
    if (a > b) std::swap(a, b);
    const std::uint64_t key = static_cast<std::uint64_t>(a) << 32U | b;
    const auto [found, added] = vertices_.try_emplace(key, static_cast<std::uint32_t>(surface_.positions.size()));
    if (added) surface_.positions.push_back(crossing(a, b));
    return {a, b, found->second};
  }

  // One more sample brings the place much nearer to the surface than straight interpolation does. It keeps away from
  // the samples, where the cuts of several lines would make triangles too small for a file's precision.
  Vec3 crossing(std::uint32_t a, std::uint32_t b) const {
    double from = 0, to = 1;
    auto valueFrom = static_cast<double>(tree_.value(a)), valueTo = static_cast<double>(tree_.value(b));
    const auto guess = [&] { return mix(from, to, std::clamp(valueFrom / (valueFrom - valueTo), 0.05, 0.95)); };
    const double t = guess();
    const double value = field_.distance(mix(tree_.centre(a), tree_.centre(b), t));
    const bool isFar = (value < 0) == (valueFrom < 0);
    (isFar ? from : to) = t;
    (isFar ? valueFrom : valueTo) = value;
    return mix(tree_.centre(a), tree_.centre(b), std::clamp(guess(), LEAST, 1 - LEAST));
  }

  const Field& field_;
  const FieldOctree& tree_;
  const MarchingCubes& cuts_;
  Surface surface_;
  std::vector<Cut> loop_;
  std::unordered_map<std::uint64_t, std::uint32_t> vertices_;
};

// Leaves out what is so small that it shows nothing but how the samples lay: bubbles where parts of a field meet.
class SpeckRemover {
 public:
  explicit SpeckRemover(Surface& surface) : surface_(surface), joined_(surface.positions.size()) {
    std::iota(joined_.begin(), joined_.end(), 0U);
    for (const Surface::Triangle& triangle : surface.triangles) {
      for (const std::uint32_t v : triangle) joined_[whole(v)] = whole(triangle[0]);
    }
  }

  void removeSmallerThan(double size) {
    std::vector<Box> boxes(joined_.size());
    for (std::uint32_t v = 0; v < joined_.size(); ++v) boxes[whole(v)].add(surface_.positions[v]);
    const auto isSpeck = [&](const Surface::Triangle& triangle) {
      const Box& box = boxes[whole(triangle[0])];
      return length(box.high - box.low) < size;
    };
    std::vector<Surface::Triangle>& all = surface_.triangles;
    if (std::all_of(all.begin(), all.end(), isSpeck)) return;
    all.erase(std::remove_if(all.begin(), all.end(), isSpeck), all.end());
  }

 private:
  std::uint32_t whole(std::uint32_t v) {
    while (joined_[v] != v) v = joined_[v] = joined_[joined_[v]];
    return v;
  }

  Surface& surface_;
  std::vector<std::uint32_t> joined_;
};

// Brings vertices back onto the surface after simplifying; never far, so that no triangle turns over.
void project(Surface& surface, const Field& field, double reach) {
  for (Vec3& position : surface.positions) {
    const Field::Slope slope = field.slope(position);
    position = position - slope.normal * std::clamp(slope.distance, -reach, reach);
  }
}

}  // namespace

Surface meshField(const Field& field, const MeshDetail& detail) {
  const FieldOctree tree(field,
                         {detail.cell, 4 * detail.cell, 0.25 * detail.cell, detail.hollow ? 1.0 : 0.5, detail.weight});
  Surface surface = Cutter(field, tree).run();
  SpeckRemover(surface).removeSmallerThan(4 * detail.cell);
  simplify(surface, {detail.triangles, detail.evenness, detail.weight});
  project(surface, field, 0.4 * detail.cell);
  return surface;
}

}  // namespace samples
