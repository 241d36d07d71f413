#include "host/materials/TextureMap.h"

#include "host/materials/Slots.h"

namespace host {

IParamBlock2* TextureMap::GetParamBlock(int index) { return slotAt(blocks_, index); }

Texmap* TextureMap::GetSubTexmap(int slot) { return slotAt(subTextures_, slot); }

void TextureMap::SetSubTexmap(int slot, Texmap* map) { setSlot(subTextures_, slot, map); }

}  // namespace host
