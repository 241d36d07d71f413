#include "host/materials/Material.h"

#include "host/application/Application.h"
#include "host/materials/Slots.h"
#include "host/scene/Scene.h"

namespace host {

IParamBlock2* Material::GetParamBlock(int index) { return slotAt(content_.blocks, index); }

Mtl* Material::GetSubMtl(int slot) { return slotAt(content_.subMaterials, slot); }

void Material::SetSubMtl(int slot, Mtl* material) {
  setSlot(content_.subMaterials, slot, material);
  Application::instance().scene().touchAppearance();
}

Texmap* Material::GetSubTexmap(int slot) { return slotAt(content_.subTextures, slot); }

void Material::SetSubTexmap(int slot, Texmap* map) {
  setSlot(content_.subTextures, slot, map);
  Application::instance().scene().touchAppearance();
}

}  // namespace host
