#pragma once

#include <functional>
#include <string>
#include <vector>

namespace samples {

/// Jobs that do not depend on one another, done by several threads.
class JobQueue {
 public:
  /// Answers an empty text, or what went wrong; may not throw.
  using Job = std::function<std::string()>;
  using Progress = std::function<void(double share)>;

  explicit JobQueue(unsigned threads);

  void add(Job job) { jobs_.push_back(std::move(job)); }
  /// Does all jobs and forgets them. Answers the error of the first job, in the order in which they were added, that
  /// had one. Progress is told in the calling thread.
  [[nodiscard]] std::string run(const Progress& progress);

 private:
  unsigned threads_;
  std::vector<Job> jobs_;
};

}  // namespace samples
