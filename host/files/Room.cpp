#include "host/files/Room.h"

namespace host {

Room::Share Room::take(std::size_t amount) {
  std::size_t left = *left_;
  do {
    if (amount > left) return nullptr;
  } while (!left_->compare_exchange_weak(left, left - amount));
  return Share(left_.get(), [there = left_, amount](const void* /*room*/) { *there += amount; });
}

}  // namespace host
