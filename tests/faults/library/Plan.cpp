#include "tests/faults/library/Plan.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

// Nothing here allocates or calls what the library stands in for: files are asked by system calls.

namespace faults {

namespace {

constexpr std::size_t MOST_DESCRIPTORS = 4096;

enum class Action { Fail, CutShort, Drop, Vanish, Signal };

/// From the environment: "kinds=2 from=5 count=1 error=5 action=drop signal=15 path=/folder".
struct Plan {
  unsigned kinds = 0;
  unsigned long from = 0;
  /// 0 for all that follow.
  unsigned long count = 1;
  int error = EIO;
  Action action = Action::Fail;
  int signal = SIGTERM;
  /// Empty for all paths.
  char path[2048] = "";
  int watched = -1;
  Tally* tally = nullptr;
};

Plan plan;
Tally uncounted = {};
std::atomic<bool> begun{false};
std::atomic<bool> isDropped{false};
std::atomic<unsigned long> position{0};
/// By descriptor: whether it was opened on a path that counts.
std::atomic<bool> counted[MOST_DESCRIPTORS];

void add(unsigned long& number) { __atomic_add_fetch(&number, 1, __ATOMIC_RELAXED); }

unsigned long numberOf(const char* text, const char* name, unsigned long otherwise) {
  const char* found = std::strstr(text, name);
  return found != nullptr ? std::strtoul(found + std::strlen(name), nullptr, 10) : otherwise;
}

Action actionOf(const char* text) {
  if (std::strstr(text, "action=short") != nullptr) return Action::CutShort;
  if (std::strstr(text, "action=drop") != nullptr) return Action::Drop;
  if (std::strstr(text, "action=vanish") != nullptr) return Action::Vanish;
  if (std::strstr(text, "action=signal") != nullptr) return Action::Signal;
  return Action::Fail;
}

int openRaw(const char* path, int flags) {
  return static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags | O_CLOEXEC, 0600));
}

void readPlan() {
  const char* text = std::getenv("FAULT_PLAN");
  if (text == nullptr) return;
  plan.kinds = static_cast<unsigned>(numberOf(text, "kinds=", 0));
  plan.from = numberOf(text, "from=", 0);
  plan.count = numberOf(text, "count=", 1);
  plan.error = static_cast<int>(numberOf(text, "error=", EIO));
  plan.signal = static_cast<int>(numberOf(text, "signal=", SIGTERM));
  plan.action = actionOf(text);
  // Last, for paths may hold anything.
  if (const char* path = std::strstr(text, "path=")) std::strncpy(plan.path, path + 5, sizeof plan.path - 1);
}

void mapTally() {
  plan.tally = &uncounted;
  const char* file = std::getenv("FAULT_TALLY");
  const int descriptor = file != nullptr ? openRaw(file, O_RDWR) : -1;
  if (descriptor < 0) return;
  const long mapped = ::syscall(SYS_mmap, nullptr, sizeof(Tally), PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
  ::syscall(SYS_close, descriptor);
  if (mapped > 0) plan.tally = reinterpret_cast<Tally*>(mapped);
}

void openWatch() {
  const char* file = std::getenv("FAULT_WATCH");
  const int descriptor = file != nullptr ? openRaw(file, O_WRONLY | O_CREAT | O_APPEND) : -1;
  // Far from the numbers that the program uses.
  if (descriptor >= 0) plan.watched = static_cast<int>(::syscall(SYS_fcntl, descriptor, F_DUPFD_CLOEXEC, 1000));
}

bool isBelow(const char* path) {
  if (plan.path[0] == '\0') return true;
  if (path == nullptr) return false;
  const std::size_t length = std::strlen(plan.path);
  return std::strncmp(path, plan.path, length) == 0 && (path[length] == '/' || path[length] == '\0');
}

void vanish() {
  char gone[sizeof plan.path + 8];
  std::snprintf(gone, sizeof gone, "%s.gone", plan.path);
  ::syscall(SYS_renameat2, AT_FDCWD, plan.path, AT_FDCWD, gone, 0);
}

std::size_t indexOf(Kind kind) {
  std::size_t index = 0;
  while ((1U << index) != kind) ++index;
  return index;
}

/// What becomes of a call that the plan has chosen.
Fate strike() {
  add(plan.tally->failed);
  switch (plan.action) {
    case Action::Fail:
      return Fate::Fails;
    case Action::CutShort:
      return Fate::CutShort;
    case Action::Drop:
      drop();
      return Fate::CutShort;
    case Action::Vanish:
      vanish();
      return Fate::Normal;
    case Action::Signal:
      ::syscall(SYS_kill, ::syscall(SYS_getpid), plan.signal);
      return Fate::Normal;
  }
  return Fate::Normal;
}

Fate decideCounted(Kind kind) {
  add(plan.tally->ofKind[indexOf(kind)]);
  if (isDropped && (kind & (OPEN | READ | STATUS | LIST)) != 0) return Fate::Fails;
  if ((plan.kinds & kind) == 0) return Fate::Normal;
  add(plan.tally->calls);
  const unsigned long number = ++position;
  const bool isChosen = plan.from != 0 && number >= plan.from && (plan.count == 0 || number < plan.from + plan.count);
  return isChosen ? strike() : Fate::Normal;
}

}  // namespace

__attribute__((constructor(101))) static void prepare() {
  readPlan();
  mapTally();
  openWatch();
}

void begin() { begun = true; }
bool counts() { return begun; }

Fate decide(Kind kind, const char* path) {
  if (!begun || !(kind == MEMORY || kind == THREAD || kind == MAP || isBelow(path))) return Fate::Normal;
  return decideCounted(kind);
}

Fate decideOn(Kind kind, int descriptor) {
  const bool isKnown = descriptor >= 0 && static_cast<std::size_t>(descriptor) < MOST_DESCRIPTORS;
  if (!begun || !isKnown || !counted[descriptor]) return Fate::Normal;
  return decideCounted(kind);
}

int errorOf(Kind kind) {
  if (kind == MEMORY || kind == MAP) return ENOMEM;
  return kind == THREAD ? EAGAIN : plan.error;
}

bool isOwn(const void* caller) {
  Dl_info found;
  if (::dladdr(caller, &found) == 0 || found.dli_fname == nullptr) return true;
  if (std::strstr(found.dli_fname, "/libtbb") == nullptr) return true;
  if (begun) add(plan.tally->ofOthers);
  return false;
}

void noteOpened(int descriptor, const char* path) {
  if (descriptor >= 0 && static_cast<std::size_t>(descriptor) < MOST_DESCRIPTORS) {
    counted[descriptor] = begun && path != nullptr && isBelow(path);
  }
}

void noteDuplicate(int descriptor, int original) {
  const auto isKnown = [](int one) { return one >= 0 && static_cast<std::size_t>(one) < MOST_DESCRIPTORS; };
  if (isKnown(descriptor) && isKnown(original)) counted[descriptor] = counted[original].load();
}

void drop() { isDropped = true; }

const char* wholePath(int folder, const char* path, char (&buffer)[4096]) {
  if (path == nullptr || path[0] == '/') return path;
  char link[64] = "/proc/self/cwd";
  if (folder != AT_FDCWD) std::snprintf(link, sizeof link, "/proc/self/fd/%d", folder);
  const long length = ::syscall(SYS_readlinkat, AT_FDCWD, link, buffer, sizeof buffer - 2);
  if (length <= 0) return path;
  if (path[0] == '\0') {
    buffer[length] = '\0';
  } else {
    std::snprintf(buffer + length, sizeof buffer - static_cast<std::size_t>(length), "/%s", path);
  }
  return buffer;
}

void watch(char what, const char* path) {
  if (plan.watched < 0) return;
  char line[4200];
  const int length = std::snprintf(line, sizeof line - 1, "%c %s\n", what, path != nullptr ? path : "");
  if (length > 0) ::syscall(SYS_write, plan.watched, line, static_cast<std::size_t>(length));
}

bool isWatching() { return plan.watched >= 0; }

}  // namespace faults
