#pragma once

#include <cstdint>
#include <vector>

#include "samples/geometry/Surface.h"

namespace samples {

/// Which triangles there are around each vertex, in one block of memory that only grows at its end.
class TriangleFans {
 public:
  explicit TriangleFans(const Surface& surface) : m_fans(surface.positions.size()) {
    for (const Surface::Triangle& triangle : surface.triangles) {
      for (const std::uint32_t v : triangle) ++m_fans[v].count;
    }
    std::size_t first = 0;
    for (Fan& fan : m_fans) {
      fan.first = first;
      first += fan.count;
      fan.count = 0;
    }
    m_items.resize(first);
    m_items.reserve(4 * first);
    for (std::uint32_t t = 0; t < surface.triangles.size(); ++t) {
      for (const std::uint32_t v : surface.triangles[t]) m_items[m_fans[v].first + m_fans[v].count++] = t;
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
    const std::uint32_t* first = m_items.data() + m_fans[vertex].first;
    return {first, first + m_fans[vertex].count};
  }
  std::size_t count(std::uint32_t vertex) const { return m_fans[vertex].count; }

  /// Keeps the triangles that `keep` wants, in their order.
  template <typename Keep>
  void filter(std::uint32_t vertex, Keep keep) {
    Fan& fan = m_fans[vertex];
    std::size_t kept = 0;
    for (std::size_t i = 0; i < fan.count; ++i) {
      const std::uint32_t t = m_items[fan.first + i];
      if (keep(t)) m_items[fan.first + kept++] = t;
    }
    fan.count = kept;
  }

  /// Gives `vertex` the triangles of `other` too; `other` keeps none.
  void join(std::uint32_t vertex, std::uint32_t other) {
    const Fan a = m_fans[vertex], b = m_fans[other];
    m_fans[vertex] = {m_items.size(), a.count + b.count};
    m_fans[other].count = 0;
    for (const Fan& fan : {a, b}) {
      for (std::size_t i = 0; i < fan.count; ++i) m_items.push_back(m_items[fan.first + i]);
    }
  }

 private:
  struct Fan {
    std::size_t first = 0;
    std::size_t count = 0;
  };

  std::vector<Fan> m_fans;
  std::vector<std::uint32_t> m_items;
};

}  // namespace samples
