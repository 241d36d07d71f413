#pragma once

#include <maxapi.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "host/view/Viewport.h"

namespace host {

/// The open viewports by window handle.
class Viewports {
 public:
  Viewports();
  ~Viewports();

  /// Stays good until it is closed.
  Viewport& open(int width, int height);
  /// Does nothing for an unknown window.
  void close(HWND window);
  /// Null for a window that is no viewport.
  Viewport* find(HWND window) const;
  /// For a window that is no viewport, one that is not alive and whose rays go nowhere.
  ViewExp& view(HWND window) const;
  const std::vector<std::unique_ptr<Viewport>>& all() const { return open_; }

 private:
  std::vector<std::unique_ptr<Viewport>> open_;
  std::unique_ptr<ViewExp> none_;
  std::uintptr_t lastWindow_ = 0;
};

}  // namespace host
