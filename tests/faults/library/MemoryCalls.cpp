// Stands in for the calls that allocate. Operator new asks malloc.
#include <cerrno>
#include <cstddef>

#include "tests/faults/library/Plan.h"

// NOLINTBEGIN(readability-identifier-naming): names of the C library
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
}

namespace {

bool isRefused() {
  if (faults::decide(faults::MEMORY, nullptr) == faults::Fate::Normal) return false;
  errno = ENOMEM;
  return true;
}

}  // namespace

#define STANDS_IN_FOR extern "C" __attribute__((visibility("default")))

STANDS_IN_FOR void* malloc(std::size_t size) { return isRefused() ? nullptr : __libc_malloc(size); }
STANDS_IN_FOR void* calloc(std::size_t count, std::size_t size) {
  return isRefused() ? nullptr : __libc_calloc(count, size);
}
STANDS_IN_FOR void* realloc(void* memory, std::size_t size) {
  return isRefused() ? nullptr : __libc_realloc(memory, size);
}
STANDS_IN_FOR void* memalign(std::size_t alignment, std::size_t size) {
  return isRefused() ? nullptr : __libc_memalign(alignment, size);
}
STANDS_IN_FOR void* aligned_alloc(std::size_t alignment, std::size_t size) {
  return isRefused() ? nullptr : __libc_memalign(alignment, size);
}
STANDS_IN_FOR int posix_memalign(void** memory, std::size_t alignment, std::size_t size) {
  if (isRefused()) return ENOMEM;
  *memory = __libc_memalign(alignment, size);
  return *memory != nullptr ? 0 : ENOMEM;
}
// NOLINTEND(readability-identifier-naming)
