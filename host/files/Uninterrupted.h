#pragma once

#include <chrono>

namespace host {

/// While one lives, in any thread, a signal that would end the program waits: for what must not be left half done.
/// They may lie within each other. Whoever has one waits for no other thread that may want one.
class Uninterrupted {
 public:
  Uninterrupted();
  ~Uninterrupted();
  Uninterrupted(const Uninterrupted&) = delete;
  Uninterrupted& operator=(const Uninterrupted&) = delete;

  /// From now on none begins: whoever tries waits for ever. Waits for those that live, but no longer than so.
  static void endAll(std::chrono::milliseconds longest);
};

}  // namespace host
