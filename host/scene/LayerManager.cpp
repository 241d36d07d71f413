#include "host/scene/LayerManager.h"

#include <algorithm>
#include <cwctype>

#include "host/services/Change.h"

namespace host {

namespace {

bool sameName(const MSTR& a, const MSTR& b) {
  const std::wstring left = a.data();
  const std::wstring right = b.data();
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](wchar_t x, wchar_t y) { return std::towlower(x) == std::towlower(y); });
}

}  // namespace

LayerManager::LayerManager(Scene& scene) : scene_(scene) { layers_.emplace_back(new Layer(scene, L"0")); }

ILayer* LayerManager::GetLayer(const MSTR& name) const {
  for (const Ref<Layer>& layer : layers_) {
    if (sameName(layer->GetName(), name)) return layer.get();
  }
  return nullptr;
}

ILayer* LayerManager::CreateLayer(MSTR& name) {
  if (GetLayer(name) != nullptr) return nullptr;
  const Ref<Layer> layer(new Layer(scene_, name));
  applyChange([this, layer] { layers_.erase(std::remove(layers_.begin(), layers_.end(), layer), layers_.end()); },
              [this, layer] { layers_.push_back(layer); });
  return layer.get();
}

void LayerManager::clear() { layers_.resize(1); }

}  // namespace host
