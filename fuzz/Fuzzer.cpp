#include <cstddef>
#include <cstdint>

#include "fuzz/Targets.h"

/// What libFuzzer calls; each program has one target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::ZORVEL_FUZZ_TARGET({reinterpret_cast<const char*>(data), size});
  return 0;
}
