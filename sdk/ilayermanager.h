#pragma once

#include <ilayer.h>

/// Layer names are compared without regard to case. Layers belong to the scene.
class ILayerManager : public ReferenceTarget {
 public:
  /// Null when there is none of that name.
  virtual ILayer* GetLayer(const MSTR& name) const = 0;
  /// Null when the name is taken.
  virtual ILayer* CreateLayer(MSTR& name) = 0;
  /// The layer "0", where new nodes start.
  virtual ILayer* GetRootLayer() const = 0;
};
