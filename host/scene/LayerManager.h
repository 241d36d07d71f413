#pragma once

#include <ilayermanager.h>

#include <vector>

#include "host/scene/Layer.h"
#include "host/services/Ref.h"

namespace host {

class LayerManager final : public ILayerManager {
 public:
  explicit LayerManager(Scene& scene);

  ILayer* GetLayer(const MSTR& name) const override;
  ILayer* CreateLayer(MSTR& name) override;
  ILayer* GetRootLayer() const override { return layers_.front().get(); }

  const std::vector<Ref<Layer>>& layers() const { return layers_; }
  /// Of a name that no layer has; nothing is recorded.
  void add(const MSTR& name) { layers_.emplace_back(new Layer(scene_, name)); }
  /// Leaves the default layer alone.
  void clear();

 private:
  Scene& scene_;
  /// The default layer "0" first.
  std::vector<Ref<Layer>> layers_;
};

}  // namespace host
