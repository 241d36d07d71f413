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
  BucketQueue() : lines_(LINES) {}

  /// The item waits as if it were no cheaper than the last one taken.
  void push(float cost, const Item& item) { lines_[std::max(lineOf(cost), line_)].push_back(item); }

  /// Whether an item of this cost would have to wait for others.
  bool mustWait(float cost) const { return lineOf(cost) > line_; }

  /// False when nobody waits.
  bool pop(Item& item) {
    while (line_ < LINES && taken_ == lines_[line_].size()) {
      lines_[line_] = {};
      taken_ = 0;
      ++line_;
    }
    if (line_ == LINES) return false;
    item = lines_[line_][taken_++];
    return true;
  }

 private:
  // Eight lines for each doubling of the cost: the upper bits of a positive float count just so.
  static constexpr std::size_t LINES = 640;
  static std::size_t lineOf(float cost) {
    const float low = 1e-14F;
    const auto bits = [](float value) {
      std::uint32_t word = 0;
      std::memcpy(&word, &value, sizeof word);
      return word >> 20U;
    };
    const std::size_t line = bits(std::max(cost, low)) - bits(low);
    return std::min(line, LINES - 1);
  }

  std::vector<std::vector<Item>> lines_;
  std::size_t line_ = 0;
  std::size_t taken_ = 0;
};

}  // namespace samples
