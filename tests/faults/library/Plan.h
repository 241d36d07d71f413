#pragma once

#include <cstddef>

namespace faults {

/// What the calls that can fail are about.
enum Kind : unsigned {
  MEMORY = 1U << 0U,
  OPEN = 1U << 1U,
  READ = 1U << 2U,
  WRITE = 1U << 3U,
  RENAME = 1U << 4U,
  STATUS = 1U << 5U,
  MAP = 1U << 6U,
  THREAD = 1U << 7U,
  LIST = 1U << 8U
};
constexpr std::size_t KIND_COUNT = 9;

/// What is to become of one call.
enum class Fate { Normal, Fails, CutShort };

/// Shared with the driver: a file of this size that it maps, so that it can be read however the program ended.
struct Tally {
  /// Of the kinds that were asked for, on the paths that were asked for, since the beginning of main.
  unsigned long calls;
  unsigned long failed;
  unsigned long ofKind[KIND_COUNT];
  /// Calls that are told apart, see isOwn.
  unsigned long ofOthers;
};

/// Whether calls count: since main has begun, and not in the library itself.
void begin();
bool counts();

/// Decides and counts. `path` is null for calls on none.
Fate decide(Kind kind, const char* path);
/// Of a call on an open file; only those that were opened on a path that was asked for count.
Fate decideOn(Kind kind, int descriptor);
/// The error number for errno of a call that fails.
int errorOf(Kind kind);

/// Whether a caller is not the library that runs the ray caster's tasks (TBB). That one waits for ever when it is
/// refused a thread, or memory in one; its calls are only counted.
bool isOwn(const void* caller);

/// Remembers whether calls on the descriptor count.
void noteOpened(int descriptor, const char* path);
void noteDuplicate(int descriptor, int original);
/// The share behind the descriptor is gone from now on.
void drop();

/// The whole path, in `buffer` where it is made from a folder's descriptor.
const char* wholePath(int folder, const char* path, char (&buffer)[4096]);

/// Writes a line for whoever watches: what is done, and on what.
void watch(char what, const char* path);
bool isWatching();

}  // namespace faults
