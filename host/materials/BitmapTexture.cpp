#include "host/materials/BitmapTexture.h"

#include "host/application/Application.h"
#include "host/scene/Ref.h"
#include "host/scene/Scene.h"
#include "host/undo/UndoStack.h"

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

void BitmapTexture::ReloadBitmapAndUpdate() { Application::instance().scene().touchAppearance(); }

}  // namespace host
