#pragma once

#include "samples/people/CharacterDesign.h"

namespace samples {

// The ids of elements, which are the names of files too.

inline std::string poseId(const CharacterDesign& character, const Pose& pose) { return character.key + "_" + pose.id; }
inline std::string skinId(const CharacterDesign& character, const SkinDesign& skin) {
  return character.key + "_skin_" + skin.key;
}
inline std::string outfitId(const CharacterDesign& character, const OutfitDesign& outfit) {
  return character.key + "_" + outfit.key;
}
inline std::string assetId(const CharacterDesign& character, const std::string& assetKey) {
  return character.key + "_" + assetKey;
}
inline std::string categoryId(const CharacterDesign& character, const std::string& categoryKey) {
  return character.key + "_category_" + categoryKey;
}
inline std::string globalId(const GlobalAssetDesign& asset) { return "global_" + asset.key; }
inline std::string styleId(const std::string& ownerId, const StyleDesign& style) { return ownerId + "_" + style.key; }
inline std::string previewName(const std::string& id) { return "preview_" + id + ".png"; }
inline std::string skinMaterialName(const CharacterDesign& character, const SkinDesign& skin) {
  return character.name + " Skin " + skin.name;
}

/// The skin and the hair of one complexion.
inline Material skinMaterial(const CharacterDesign& character, const SkinDesign& skin) {
  const std::string name = skinMaterialName(character, skin);
  return multi(name, {plain(name + " Complexion", Qt::white, 0.55, skin.texture),
                      plain(name + " Hair", skin.hair, 0.5, "hair.png")});
}

}  // namespace samples
