#include "apps/support/ProgramStart.h"

#include <fcntl.h>
#include <libxml/xmlmemory.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <initializer_list>
#include <new>

#include "apps/support/ExitStatus.h"
#include "host/files/SignalWatch.h"
#include "host/files/TemporaryFolder.h"

namespace apps {

namespace {

const char* programName = "";

/// Where nothing can be allocated and a stream may be in the middle of something.
void tell(const char* text) {
  // Nobody is left who could be told that this failed.
  if (::write(STDERR_FILENO, text, std::strlen(text)) < 0) return;
}

/// As far as there is memory for that.
void removeTemporaryFolders() {
  std::set_new_handler(nullptr);
  try {
    host::TemporaryFolder::removeAll();
  } catch (const std::exception&) {
    tell("a temporary folder stays\n");
  }
}

/// For one thread; others that come here in the meantime wait for the end.
[[noreturn]] void end(const char* reason) {
  static std::atomic<bool> isEnding{false};
  thread_local bool isMine = false;
  if (isMine) ::_exit(EXIT_INTERNAL);
  while (isEnding.exchange(true)) ::pause();
  isMine = true;
  for (const char* part : {programName, ": internal error: ", reason, "\n"}) tell(part);
  removeTemporaryFolders();
  ::_exit(EXIT_INTERNAL);
}

[[noreturn]] void endWithoutMemory() { end("there is not enough memory"); }

[[noreturn]] void endUncaught() {
  try {
    if (std::current_exception()) std::rethrow_exception(std::current_exception());
  } catch (const std::bad_alloc&) {
    endWithoutMemory();
  } catch (const std::exception& error) {
    end(error.what());
  } catch (...) {
  }
  end("an exception of an unknown kind");
}

void endAborted(int /*signal*/) { end("a library has given up"); }

void* orEnd(void* memory) {
  if (memory == nullptr) endWithoutMemory();
  return memory;
}

// libxml2 goes on without what it had no memory for, and leaves out an attribute or two.
void* allocate(std::size_t size) { return orEnd(std::malloc(size)); }
void* reallocate(void* memory, std::size_t size) { return orEnd(std::realloc(memory, size)); }
char* duplicate(const char* text) { return static_cast<char*>(orEnd(::strdup(text))); }

/// Reading from what stands in answers nothing, writing to it is an error.
void occupyStandardStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(stream, F_GETFD) < 0 && ::open("/dev/null", O_RDONLY) != stream) ::_exit(EXIT_INTERNAL);
  }
}

}  // namespace

void startProgram(const char* name) {
  programName = name;
  occupyStandardStreams();
  std::set_new_handler(endWithoutMemory);
  std::set_terminate(endUncaught);
  std::signal(SIGABRT, endAborted);
  xmlMemSetup(std::free, allocate, reallocate, duplicate);
  host::watchSignals();
}

}  // namespace apps
