#pragma once

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <ctime>
#include <exception>
#include <functional>
#include <mutex>
#include <new>
#include <thread>
#include <utility>
#include <vector>

#include "host/services/Threads.h"

namespace check {

/// Goes through items with as many threads as run at once, and with many more as soon as these turn out to wait for a
/// disk most of the time: a share answers slowly, but many at once.
template <class Item>
class ParallelWork {
 public:
  /// What it appends to `more` is gone through as well.
  using Work = std::function<void(Item item, std::vector<Item>& more)>;
  /// Told in the calling thread, often.
  using Progress = std::function<void(std::size_t done, std::size_t known)>;

  ParallelWork(Work work, Progress progress) : work_(std::move(work)), progress_(std::move(progress)) {}

  /// Returns when all is done. What the work throws comes out here, once, unless memory has run out, which ends the
  /// program.
  void run(std::vector<Item> items) {
    waiting_ = std::move(items);
    known_ = waiting_.size();
    startThreads(std::max(2U, std::thread::hardware_concurrency()));
    if (threads_.empty()) workOn();
    watch();
    for (std::thread& thread : threads_) thread.join();
    if (thrown_) std::rethrow_exception(thrown_);
  }

 private:
  static constexpr std::size_t MANY = 128;

  using Lock = std::unique_lock<std::mutex>;
  using Clock = std::chrono::steady_clock;

  bool isFinished() const { return done_ == known_ || thrown_; }

  /// As many as the machine allows, where it allows fewer.
  void startThreads(std::size_t count) {
    if (!isRefused_) isRefused_ = !host::startThreads(threads_, count, [this] { workOn(); });
  }

  void watch() {
    const Clock::time_point begin = Clock::now();
    const std::clock_t used = std::clock();
    Lock lock(mutex_);
    while (!finished_.wait_for(lock, std::chrono::milliseconds(10), [this] { return isFinished(); })) {
      const std::size_t done = done_;
      const std::size_t known = known_;
      lock.unlock();
      const std::chrono::duration<double> passed = Clock::now() - begin;
      // Of all threads together.
      const double working = static_cast<double>(std::clock() - used) / CLOCKS_PER_SEC;
      if (working < passed.count() / 2) startThreads(MANY);
      if (progress_) progress_(done, known);
      lock.lock();
    }
  }

  void workOn() {
    Lock lock(mutex_);
    while (true) {
      changed_.wait(lock, [this] { return isFinished() || !waiting_.empty(); });
      if (isFinished()) return;
      Item item = std::move(waiting_.back());
      waiting_.pop_back();
      lock.unlock();
      std::vector<Item> more;
      std::exception_ptr thrown = doOne(std::move(item), more);
      lock.lock();
      finish(std::move(more), std::move(thrown));
    }
  }

  /// Who runs out of memory ends here: a library that was left by an exception may keep its locks for ever, and the
  /// others would wait for it.
  std::exception_ptr doOne(Item item, std::vector<Item>& more) const {
    try {
      work_(std::move(item), more);
      return nullptr;
    } catch (const std::bad_alloc&) {
      std::terminate();
    } catch (...) {
      return std::current_exception();
    }
  }

  void finish(std::vector<Item> more, std::exception_ptr thrown) {
    ++done_;
    known_ += more.size();
    for (Item& item : more) waiting_.push_back(std::move(item));
    if (thrown && !thrown_) thrown_ = std::move(thrown);
    if (isFinished()) finished_.notify_one();
    if (isFinished() || more.size() > 1) {
      changed_.notify_all();
    } else if (!more.empty()) {
      changed_.notify_one();
    }
  }

  Work work_;
  Progress progress_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::condition_variable finished_;
  std::vector<std::thread> threads_;
  bool isRefused_ = false;
  std::vector<Item> waiting_;
  std::size_t known_ = 0;
  std::size_t done_ = 0;
  std::exception_ptr thrown_;
};

}  // namespace check
