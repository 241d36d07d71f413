#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "fuzz/Mutation.h"
#include "fuzz/Targets.h"

// What libFuzzer calls and offers; each program has one target.

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::ZORVEL_FUZZ_TARGET({reinterpret_cast<const char*>(data), size});
  return 0;
}

/// Every other change is one of bytes.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most, unsigned seed) {
  if (seed % 2 == 0) return LLVMFuzzerMutate(data, size, most);
  const std::string text = fuzz::mutated({reinterpret_cast<const char*>(data), size}, seed);
  const std::size_t count = std::min(text.size(), most);
  std::copy_n(text.begin(), count, data);
  return count;
}
