#pragma once

#include <functional>

namespace host {

/// The host's one-key shortcuts, which a window of a plug-in holds off while something is typed into it. Counted: they
/// act again when each hold was given back.
class Accelerators {
 public:
  bool enabled() const { return holds_ == 0; }
  void disable();
  /// One too many does nothing.
  void enable();

  /// Called after they went off or on; none to begin with.
  std::function<void()> changed;

 private:
  int holds_ = 0;
};

}  // namespace host
