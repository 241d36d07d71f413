// Tells in which library a program crashes, or waits when it is asked.
#include <dlfcn.h>
#include <execinfo.h>

#include <csignal>
#include <cstring>
#include <initializer_list>

#include "tests/faults/library/Plan.h"

namespace {

constexpr int MOST_FRAMES = 64;

/// Those that are called by everybody, and this one.
bool isInnocent(const char* library) {
  for (const char* name : {"libc.so", "libstdc++", "libgcc_s", "ld-linux", "libm.so", "zorvel_faults"}) {
    if (std::strstr(library, name) != nullptr) return true;
  }
  return false;
}

void tellPlace() {
  void* frames[MOST_FRAMES];
  const int count = ::backtrace(frames, MOST_FRAMES);
  for (int i = 0; i < count; ++i) {
    Dl_info found;
    if (::dladdr(frames[i], &found) == 0 || found.dli_fname == nullptr || isInnocent(found.dli_fname)) continue;
    return faults::tellPlace(found.dli_fname);
  }
}

void crashed(int signal) {
  std::signal(signal, SIG_DFL);
  tellPlace();
  std::raise(signal);
}

void asked(int /*signal*/) { tellPlace(); }

__attribute__((constructor)) void prepare() {
  // The first call loads a library, which is not to happen in the middle of a crash.
  void* frame = nullptr;
  ::backtrace(&frame, 1);
  for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL}) std::signal(signal, crashed);
  std::signal(SIGUSR2, asked);
}

}  // namespace
