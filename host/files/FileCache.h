#pragma once

#include <cstddef>
#include <filesystem>
#include <iterator>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace host {

/// Changes whenever the file does (its size or time); empty for a file that is not there.
std::string fileStamp(const std::filesystem::path& file);

/// What was made from files, each read once while anybody uses it: nothing is kept alive here. A file that was changed
/// is read anew; one that could not be read is not tried again before it changes, unless the reason may pass. `Result`
/// is made of a shared pointer to a constant Value, of one line that says why there is none, and of whether that may
/// pass. May be used from several threads.
template <class Value, class Result>
class FileCache {
 public:
  using Read = Result (*)(const std::filesystem::path&);

  explicit FileCache(Read read) : read_(read) {}

  /// `file` is a path on this machine.
  Result get(const std::filesystem::path& file) {
    const std::lock_guard<std::mutex> lock(mutex_);
    std::string stamp = fileStamp(file);
    const auto known = entries_.find(file);
    if (known != entries_.end() && known->second.stamp == stamp) {
      if (auto value = known->second.value.lock()) return {std::move(value), {}, false};
      if (!known->second.error.empty()) return {nullptr, known->second.error, false};
    }
    if (entries_.size() >= sweepAt_) forgetTheDead();
    Result result = read_(file);
    const auto& [value, error, mayPass] = result;
    if (mayPass) {
      entries_.erase(file);
    } else {
      entries_[file] = Entry{std::move(stamp), value, error};
    }
    return result;
  }

 private:
  struct Entry {
    std::string stamp;
    std::weak_ptr<const Value> value;
    std::string error;
  };

  void forgetTheDead() {
    for (auto entry = entries_.begin(); entry != entries_.end();) {
      const bool dead = entry->second.value.expired() && entry->second.error.empty();
      entry = dead ? entries_.erase(entry) : std::next(entry);
    }
    sweepAt_ = FEWEST_SWEPT + 2 * entries_.size();
  }

  static constexpr std::size_t FEWEST_SWEPT = 16;

  Read read_;
  std::mutex mutex_;
  std::map<std::filesystem::path, Entry> entries_;
  /// How many there have to be before it is worth the while to look for dead ones.
  std::size_t sweepAt_ = FEWEST_SWEPT;
};

}  // namespace host
