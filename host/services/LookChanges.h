#pragma once

#include <functional>

namespace host {

/// Parameters, slots and maps know no scene. When one of them looks different, by whatever way, it tells here, and the
/// application has the scene listen. Main thread only.
class LookChanges {
 public:
  static LookChanges& instance();

  void tell() const {
    if (listener) listener();
  }

  /// Empty while there is nobody to show anything.
  std::function<void()> listener;
};

}  // namespace host
