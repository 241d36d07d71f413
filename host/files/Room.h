#pragma once

#include <atomic>
#include <cstddef>
#include <memory>

namespace host {

/// So much of something that many share, such as memory. May be used from several threads, and outlives all that was
/// taken.
class Room {
 public:
  /// Gives back what it stands for with its last copy.
  using Share = std::shared_ptr<const void>;

  explicit Room(std::size_t most) : most_(most), left_(std::make_shared<std::atomic<std::size_t>>(most)) {}

  std::size_t left() const { return *left_; }
  std::size_t taken() const { return most_ - left(); }
  /// Null where so much is not left.
  Share take(std::size_t amount);

 private:
  std::size_t most_;
  std::shared_ptr<std::atomic<std::size_t>> left_;
};

}  // namespace host
