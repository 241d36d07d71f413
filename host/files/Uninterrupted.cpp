#include "host/files/Uninterrupted.h"

#include <condition_variable>
#include <mutex>

namespace host {

namespace {

struct Gate {
  std::mutex mutex;
  std::condition_variable changed;
  int inside = 0;
  bool isClosed = false;
};

/// Never destroyed: a signal may come while the program ends by itself.
Gate& gate() {
  static Gate& gate = *new Gate;
  return gate;
}

thread_local int depth = 0;

}  // namespace

Uninterrupted::Uninterrupted() {
  if (depth++ > 0) return;
  std::unique_lock lock(gate().mutex);
  gate().changed.wait(lock, [] { return !gate().isClosed; });
  ++gate().inside;
}

Uninterrupted::~Uninterrupted() {
  if (--depth > 0) return;
  const std::lock_guard lock(gate().mutex);
  --gate().inside;
  gate().changed.notify_all();
}

void Uninterrupted::endAll(std::chrono::milliseconds longest) {
  std::unique_lock lock(gate().mutex);
  gate().isClosed = true;
  gate().changed.wait_for(lock, longest, [] { return gate().inside == 0; });
}

}  // namespace host
