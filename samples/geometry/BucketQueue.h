#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

namespace samples {

/// Items waiting by cost, the cheapest first; those whose costs differ by less than an eighth wait in line as they
/// came.
template <typename Item>
class BucketQueue {
 public:
  BucketQueue() : m_lines(kLines) {}

  /// The item waits as if it were no cheaper than the last one taken.
  void push(float cost, const Item& item) { m_lines[std::max(lineOf(cost), m_line)].push_back(item); }

  /// Whether an item of this cost would have to wait for others.
  bool mustWait(float cost) const { return lineOf(cost) > m_line; }

  /// False when nobody waits.
  bool pop(Item& item) {
    while (m_line < kLines && m_taken == m_lines[m_line].size()) {
      m_lines[m_line] = {};
      m_taken = 0;
      ++m_line;
    }
    if (m_line == kLines) return false;
    item = m_lines[m_line][m_taken++];
    return true;
  }

 private:
  // Eight lines for each doubling of the cost: the upper bits of a positive float count just so.
  static constexpr std::size_t kLines = 640;
  static std::size_t lineOf(float cost) {
    const float low = 1e-14F;
    const auto bits = [](float value) {
      std::uint32_t word = 0;
      std::memcpy(&word, &value, sizeof word);
      return word >> 20U;
    };
    const std::size_t line = bits(std::max(cost, low)) - bits(low);
    return std::min(line, kLines - 1);
  }

  std::vector<std::vector<Item>> m_lines;
  std::size_t m_line = 0;
  std::size_t m_taken = 0;
};

}  // namespace samples
