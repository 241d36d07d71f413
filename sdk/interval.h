#pragma once

#include <maxtypes.h>

#include <limits>

class Interval {
 public:
  Interval() = default;
  Interval(TimeValue start, TimeValue end) : start_(start), end_(end) {}
  TimeValue Start() const { return start_; }
  TimeValue End() const { return end_; }

 private:
  TimeValue start_ = std::numeric_limits<TimeValue>::min();
  TimeValue end_ = std::numeric_limits<TimeValue>::max();
};

const Interval FOREVER = Interval();
