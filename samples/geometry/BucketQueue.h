#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

namespace samples {

/// Items waiting by cost, the cheapest first; those whose costs differ by less than an eighth wait together, in the
/// order in which they came.
template <typename Item>
class BucketQueue {
 public:
  BucketQueue() : buckets_(bucketOf(HIGHEST_COST) + 1) {}

  /// The item waits as if it were no cheaper than the last one taken.
  void push(float cost, const Item& item) { buckets_[std::max(bucketOf(cost), first_)].push_back(item); }

  /// Whether an item of this cost would have to wait for others.
  bool mustWait(float cost) const { return bucketOf(cost) > first_; }

  /// False when nobody waits; the queue is spent then.
  bool pop(Item& item) {
    while (first_ < buckets_.size() && taken_ == buckets_[first_].size()) {
      buckets_[first_] = {};
      taken_ = 0;
      ++first_;
    }
    if (first_ == buckets_.size()) return false;
    item = buckets_[first_][taken_++];
    return true;
  }

 private:
  static constexpr float LOWEST_COST = 1e-14F;
  static constexpr float HIGHEST_COST = 1e10F;

  // Eight buckets for each doubling of the cost.
  static std::size_t bucketOf(float cost) {
    static const int lowest = eighths(LOWEST_COST);
    return static_cast<std::size_t>(eighths(std::clamp(cost, LOWEST_COST, HIGHEST_COST)) - lowest);
  }
  static int eighths(float cost) {
    int doublings = 0;
    const float fraction = std::frexp(cost, &doublings);
    return 8 * doublings + static_cast<int>(16 * fraction);
  }

  std::vector<std::vector<Item>> buckets_;
  std::size_t first_ = 0;
  std::size_t taken_ = 0;
};

}  // namespace samples
