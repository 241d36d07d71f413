#pragma once

#include <cstdint>
#include <vector>

#include "samples/geometry/Surface.h"

namespace samples {

/// Which triangles there are around each vertex, in one block of memory that only grows at its end.
class TriangleFans {
 public:
  explicit TriangleFans(const Surface& surface) : fans_(surface.positions.size()) {
    for (const Surface::Triangle& triangle : surface.triangles) {
      for (const std::uint32_t v : triangle) ++fans_[v].count;
    }
    std::size_t first = 0;
    for (Fan& fan : fans_) {
      fan.first = first;
      first += fan.count;
      fan.count = 0;
    }
    items_.resize(first);
    items_.reserve(4 * first);
    for (std::uint32_t t = 0; t < surface.triangles.size(); ++t) {
      for (const std::uint32_t v : surface.triangles[t]) items_[fans_[v].first + fans_[v].count++] = t;
    }
  }

  struct Range {
    const std::uint32_t* first;
    const std::uint32_t* last;
    const std::uint32_t* begin() const { return first; }
    const std::uint32_t* end() const { return last; }
  };
  /// Valid until the next change.
  Range operator[](std::uint32_t vertex) const {
    const std::uint32_t* first = items_.data() + fans_[vertex].first;
    return {first, first + fans_[vertex].count};
  }
  std::size_t count(std::uint32_t vertex) const { return fans_[vertex].count; }

  /// Keeps the triangles that `keep` wants, in their order.
  template <typename Keep>
  void filter(std::uint32_t vertex, Keep keep) {
    Fan& fan = fans_[vertex];
    std::size_t kept = 0;
    for (std::size_t i = 0; i < fan.count; ++i) {
      const std::uint32_t t = items_[fan.first + i];
      if (keep(t)) items_[fan.first + kept++] = t;
    }
    fan.count = kept;
  }

  /// Gives `vertex` the triangles of `other` too; `other` keeps none.
  void join(std::uint32_t vertex, std::uint32_t other) {
    const Fan a = fans_[vertex], b = fans_[other];
    fans_[vertex] = {items_.size(), a.count + b.count};
    fans_[other].count = 0;
    for (const Fan& fan : {a, b}) {
      for (std::size_t i = 0; i < fan.count; ++i) items_.push_back(items_[fan.first + i]);
    }
  }

 private:
  struct Fan {
    std::size_t first = 0;
    std::size_t count = 0;
  };

  std::vector<Fan> fans_;
  std::vector<std::uint32_t> items_;
};

}  // namespace samples
