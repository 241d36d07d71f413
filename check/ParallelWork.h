#pragma once

#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace check {

/// Goes through items with many threads, each of which waits for a disk most of the time: a share answers slowly, but
/// many at once.
template <class Item>
class ParallelWork {
 public:
  /// What it appends to `more` is gone through as well.
  using Work = std::function<void(Item item, std::vector<Item>& more)>;
  /// Told in the calling thread, a few times a second.
  using Progress = std::function<void(std::size_t done, std::size_t known)>;

  ParallelWork(Work work, Progress progress) : work_(std::move(work)), progress_(std::move(progress)) {}

  /// Returns when all is done. What the work throws comes out here, once.
  void run(std::vector<Item> items) {
    waiting_ = std::move(items);
    known_ = waiting_.size();
    std::vector<std::thread> threads;
    for (int i = 0; i < THREADS; ++i) threads.emplace_back([this] { workOn(); });
    watch();
    for (std::thread& thread : threads) thread.join();
    if (thrown_) std::rethrow_exception(thrown_);
  }

 private:
  static constexpr int THREADS = 32;

  using Lock = std::unique_lock<std::mutex>;

  bool isFinished() const { return done_ == known_ || thrown_; }

  void watch() {
    Lock lock(mutex_);
    while (!changed_.wait_for(lock, std::chrono::milliseconds(250), [this] { return isFinished(); })) {
      const std::size_t done = done_;
      const std::size_t known = known_;
      lock.unlock();
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

  std::exception_ptr doOne(Item item, std::vector<Item>& more) const {
    try {
      work_(std::move(item), more);
      return nullptr;
    } catch (...) {
      return std::current_exception();
    }
  }

  void finish(std::vector<Item> more, std::exception_ptr thrown) {
    ++done_;
    known_ += more.size();
    for (Item& item : more) waiting_.push_back(std::move(item));
    if (thrown && !thrown_) thrown_ = std::move(thrown);
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
  std::vector<Item> waiting_;
  std::size_t known_ = 0;
  std::size_t done_ = 0;
  std::exception_ptr thrown_;
};

}  // namespace check
