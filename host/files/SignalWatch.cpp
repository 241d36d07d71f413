#include "host/files/SignalWatch.h"

#include <pthread.h>

#include <csignal>
#include <system_error>
#include <thread>

#include "host/files/TemporaryFolder.h"
#include "host/files/Uninterrupted.h"

namespace host {

namespace {

/// A share that answers no more keeps nobody longer from ending the program.
constexpr std::chrono::milliseconds LONGEST_WAIT{5000};

bool isIgnored(int signal) {
  struct sigaction action {};
  return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

sigset_t findWatched() {
  sigset_t watched;
  sigemptyset(&watched);
  for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGXCPU}) {
    if (!isIgnored(signal)) sigaddset(&watched, signal);
  }
  return watched;
}

const sigset_t& watchedSignals() {
  static const sigset_t watched = findWatched();
  return watched;
}

void unblock() { ::pthread_sigmask(SIG_UNBLOCK, &watchedSignals(), nullptr); }

void watch() {
  int signal = 0;
  if (::sigwait(&watchedSignals(), &signal) != 0) return;
  Uninterrupted::endAll(LONGEST_WAIT);
  TemporaryFolder::removeAll();
  std::signal(signal, SIG_DFL);
  unblock();
  std::raise(signal);
}

}  // namespace

void watchSignals() {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  // Threads made later are born so, and the signal is left to the one that waits for it.
  ::pthread_sigmask(SIG_BLOCK, &watchedSignals(), nullptr);
  // A program that is started here is not.
  ::pthread_atfork(nullptr, nullptr, &unblock);
  try {
    std::thread(&watch).detach();
  } catch (const std::system_error&) {
    unblock();
  }
}

}  // namespace host
