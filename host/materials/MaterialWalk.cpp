#include "host/materials/MaterialWalk.h"

#include "host/materials/MaterialClasses.h"

namespace host {

namespace {

template <class Owner>
void visitMaps(Owner& owner, const std::function<void(BitmapTex&)>& visit) {
  for (int slot = 0; slot < owner.NumSubTexmaps(); ++slot) forEachBitmapIn(owner.GetSubTexmap(slot), visit);
  for (int i = 0; i < owner.NumParamBlocks(); ++i) {
    IParamBlock2& block = *owner.GetParamBlock(i);
    for (int j = 0; j < block.NumParams(); ++j) {
      Texmap* map = nullptr;
      Interval valid = FOREVER;
      if (block.GetValue(block.IndextoID(j), 0, map, valid) != FALSE) forEachBitmapIn(map, visit);
    }
  }
}

}  // namespace

void forEachBitmap(Mtl& material, const std::function<void(BitmapTex&)>& visit) { visitMaps(material, visit); }

void forEachBitmapIn(Texmap* map, const std::function<void(BitmapTex&)>& visit) {
  if (map == nullptr) return;
  if (map->ClassID() == BITMAP_TEXTURE) {
    visit(static_cast<BitmapTex&>(*map));
  } else {
    visitMaps(*map, visit);
  }
}

}  // namespace host
