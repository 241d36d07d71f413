#pragma once

#include <maxtypes.h>

#include <vector>

/// The SDK's table of plain values; never ends what its elements point to.
template <class T>
class Tab {
 public:
  virtual ~Tab() = default;
  int Count() const { return static_cast<int>(items_.size()); }
  void SetCount(int count, BOOL /*resize*/ = TRUE) { items_.resize(static_cast<std::size_t>(count)); }
  int Append(int count, T* elements, int /*extra*/ = 0) {
    for (int i = 0; i < count; ++i) items_.push_back(elements[i]);
    return Count() - count;
  }
  int Delete(int start, int count) {
    items_.erase(items_.begin() + start, items_.begin() + start + count);
    return Count();
  }
  void ZeroCount() { items_.clear(); }
  T* Addr(int index) { return &items_[static_cast<std::size_t>(index)]; }
  T& operator[](int index) { return items_[static_cast<std::size_t>(index)]; }
  const T& operator[](int index) const { return items_[static_cast<std::size_t>(index)]; }

 private:
  std::vector<T> items_;
};
