#pragma once

#include <chrono>
#include <string>

namespace cli {

/// Lines on standard error about something that takes longer than a second; silent before that.
class Progress {
 public:
  explicit Progress(std::string what) : what_(std::move(what)) {}
  /// From 0 to 1. At most one line a second.
  void report(double done);

 private:
  using Clock = std::chrono::steady_clock;

  std::string what_;
  Clock::time_point last_ = Clock::now();
};

}  // namespace cli
