#pragma once

#include <cstddef>
#include <vector>

#include "host/services/Ref.h"

namespace host {

/// Null for an empty slot and for one outside the range.
template <class T>
T* slotAt(const std::vector<Ref<T>>& slots, int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= slots.size()) return nullptr;
  return slots[static_cast<std::size_t>(index)].get();
}

/// A slot outside the range takes nothing.
template <class T>
void setSlot(std::vector<Ref<T>>& slots, int index, T* value) {
  if (index < 0 || static_cast<std::size_t>(index) >= slots.size()) return;
  slots[static_cast<std::size_t>(index)] = Ref<T>(value);
}

}  // namespace host
