// Stands in for the calls that start threads, programs and connections, and for the one that starts the program itself.
#undef _FORTIFY_SOURCE
#include <pthread.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "tests/faults/library/Plan.h"
#include "tests/faults/library/Real.h"

using Main = int(int, char**, char**);

namespace {

Main* programMain = nullptr;

int mainCounted(int count, char** arguments, char** environment) {
  faults::begin();
  return programMain(count, arguments, environment);
}

void watchStarted(const char* program) {
  if (faults::counts()) faults::watch('X', program);
}

}  // namespace

STANDS_IN(int, __libc_start_main, Main* main, int count, char** arguments, void (*init)(), void (*fini)(),
          void (*rtldFini)(), void* stackEnd) {
  programMain = main;
  return (*real___libc_start_main)(mainCounted, count, arguments, init, fini, rtldFini, stackEnd);
}

STANDS_IN(int, pthread_create, pthread_t* thread, const pthread_attr_t* attributes, void* (*run)(void*), void* data) {
  if (faults::isOwn(__builtin_return_address(0)) && faults::decide(faults::THREAD, nullptr) != faults::Fate::Normal) {
    return EAGAIN;
  }
  return (*real_pthread_create)(thread, attributes, run, data);
}

STANDS_IN(int, execve, const char* path, char* const* arguments, char* const* environment) {
  watchStarted(path);
  return (*real_execve)(path, arguments, environment);
}
STANDS_IN(int, execv, const char* path, char* const* arguments) {
  watchStarted(path);
  return (*real_execv)(path, arguments);
}
STANDS_IN(int, execvp, const char* path, char* const* arguments) {
  watchStarted(path);
  return (*real_execvp)(path, arguments);
}
STANDS_IN(int, posix_spawn, pid_t* process, const char* path, const posix_spawn_file_actions_t* actions,
          const posix_spawnattr_t* attributes, char* const* arguments, char* const* environment) {
  watchStarted(path);
  return (*real_posix_spawn)(process, path, actions, attributes, arguments, environment);
}
STANDS_IN(int, posix_spawnp, pid_t* process, const char* path, const posix_spawn_file_actions_t* actions,
          const posix_spawnattr_t* attributes, char* const* arguments, char* const* environment) {
  watchStarted(path);
  return (*real_posix_spawnp)(process, path, actions, attributes, arguments, environment);
}
STANDS_IN(int, system, const char* command) {
  watchStarted(command);
  return (*real_system)(command);
}
STANDS_IN(std::FILE*, popen, const char* command, const char* mode) {
  watchStarted(command);
  return (*real_popen)(command, mode);
}
STANDS_IN(pid_t, fork) {
  watchStarted("fork");
  return (*real_fork)();
}
// What calls it goes on in two processes, which no function in between survives: it is only told, and refused.
extern "C" __attribute__((visibility("default"))) pid_t vfork() {
  watchStarted("vfork");
  errno = EPERM;
  return -1;
}

STANDS_IN(int, socket, int domain, int type, int protocol) {
  if (faults::counts()) faults::watch('S', "socket");
  return (*real_socket)(domain, type, protocol);
}
STANDS_IN(int, connect, int descriptor, const sockaddr* address, socklen_t size) {
  if (faults::counts()) faults::watch('S', "connect");
  return (*real_connect)(descriptor, address, size);
}
STANDS_IN(void*, dlopen, const char* path, int flags) {
  if (path != nullptr && faults::counts()) faults::watch('L', path);
  return (*real_dlopen)(path, flags);
}
