#include "host/view/Viewports.h"

#include <algorithm>

namespace host {

namespace {

class NoViewport final : public ViewExp {
 public:
  void MapScreenToWorldRay(float /*sx*/, float /*sy*/, Ray& ray) override { ray = Ray(); }
  HWND GetHWnd() override { return nullptr; }
  bool IsAlive() override { return false; }
};

}  // namespace

Viewports::Viewports() : none_(std::make_unique<NoViewport>()) {}

Viewports::~Viewports() = default;

Viewport& Viewports::open(int width, int height) {
  // A number that is never used again and leads nowhere, so that a late message cannot meet another viewport.
  open_.push_back(std::make_unique<Viewport>(reinterpret_cast<HWND>(++lastWindow_)));
  open_.back()->resize(width, height);
  return *open_.back();
}

void Viewports::close(HWND window) {
  open_.erase(
      std::remove_if(open_.begin(), open_.end(), [window](const auto& one) { return one->GetHWnd() == window; }),
      open_.end());
}

Viewport* Viewports::find(HWND window) const {
  for (const auto& one : open_) {
    if (one->GetHWnd() == window) return one.get();
  }
  return nullptr;
}

ViewExp& Viewports::view(HWND window) const {
  Viewport* found = find(window);
  return found != nullptr ? static_cast<ViewExp&>(*found) : *none_;
}

}  // namespace host
