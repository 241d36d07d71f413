#include "samples/repository/JobQueue.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "host/services/Threads.h"

namespace samples {

JobQueue::JobQueue(unsigned threads)
    : threads_(threads > 0 ? threads : std::max(1U, std::thread::hardware_concurrency())) {}

std::string JobQueue::run(const Progress& progress) {
  const std::vector<Job> jobs = std::move(jobs_);
  jobs_.clear();
  std::vector<std::string> errors(jobs.size());
  std::atomic<std::size_t> next{0};
  std::mutex mutex;
  std::condition_variable finished;
  std::size_t done = 0;
  const auto work = [&] {
    for (std::size_t i = next++; i < jobs.size(); i = next++) {
      errors[i] = jobs[i]();
      const std::lock_guard<std::mutex> lock(mutex);
      ++done;
      finished.notify_one();
    }
  };
  std::vector<std::thread> threads;
  host::startThreads(threads, threads_, work);
  if (threads.empty()) work();
  std::unique_lock<std::mutex> lock(mutex);
  for (std::size_t told = 0; told < jobs.size();) {
    finished.wait(lock, [&] { return done > told; });
    told = done;
    if (!progress) continue;
    lock.unlock();
    progress(static_cast<double>(told) / static_cast<double>(jobs.size()));
    lock.lock();
  }
  lock.unlock();
  for (std::thread& thread : threads) thread.join();
  const auto failed =
      std::find_if(errors.begin(), errors.end(), [](const std::string& error) { return !error.empty(); });
  return failed == errors.end() ? std::string() : *failed;
}

}  // namespace samples
