#include "host/materials/BitmapTexture.h"

#include "host/services/Change.h"
#include "host/services/LookChanges.h"
#include "host/services/Ref.h"

namespace host {

void BitmapTexture::SetMap(const Asset& map) {
  // One that nobody refers to yet is its maker's: a step that referred to it would end it.
  if (HasDependents() == FALSE) {
    map_ = map;
    return;
  }
  const Ref<BitmapTexture> self(this);
  const Asset before = map_;
  const auto store = [self](const Asset& asset) {
    self->map_ = asset;
    self->ReloadBitmapAndUpdate();
  };
  applyChange([store, before] { store(before); }, [store, map] { store(map); });
}

void BitmapTexture::ReloadBitmapAndUpdate() { LookChanges::instance().tell(); }

}  // namespace host
