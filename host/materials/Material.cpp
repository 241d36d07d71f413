#include "host/materials/Material.h"

#include "host/materials/Slots.h"
#include "host/services/LookChanges.h"

namespace host {

IParamBlock2* Material::GetParamBlock(int index) { return slotAt(content_.blocks, index); }

Mtl* Material::GetSubMtl(int slot) { return slotAt(content_.subMaterials, slot); }

void Material::SetSubMtl(int slot, Mtl* material) {
  setSlot(content_.subMaterials, slot, material);
  LookChanges::instance().tell();
}

Texmap* Material::GetSubTexmap(int slot) { return slotAt(content_.subTextures, slot); }

void Material::SetSubTexmap(int slot, Texmap* map) {
  setSlot(content_.subTextures, slot, map);
  LookChanges::instance().tell();
}

}  // namespace host
