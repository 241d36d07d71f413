#pragma once

#include <dlfcn.h>

namespace faults {

/// The function of the same name that the program would have called.
template <class Function>
class Real {
 public:
  explicit constexpr Real(const char* name) : name_(name) {}
  Function* operator*() {
    Function* found = __atomic_load_n(&found_, __ATOMIC_RELAXED);
    if (found == nullptr) {
      found = reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name_));
      __atomic_store_n(&found_, found, __ATOMIC_RELAXED);
    }
    return found;
  }

 private:
  const char* name_;
  Function* found_ = nullptr;
};

}  // namespace faults

// A function of the C library that this library stands in for; `real` is the one behind it.
#define STANDS_IN(result, name, ...)                             \
  static ::faults::Real<result(__VA_ARGS__)> real_##name(#name); \
  extern "C" __attribute__((visibility("default"))) result name(__VA_ARGS__)
