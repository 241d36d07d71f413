#pragma once

#include <string>
#include <vector>

#include "samples/Material.h"
#include "samples/Props.h"
#include "samples/Textures.h"
#include "samples/Wardrobe.h"

namespace samples {

/// Which library file holds a material.
enum class Library { Own, Character, Props, Global };

struct StyleDesign {
  std::string key;
  std::string name;
  Material material;
  Library library = Library::Own;
};

struct SkinDesign {
  std::string key;
  std::string name;
  Textures::Face face;
  QColor hair;
};

struct OutfitDesign {
  /// An asset, and when `style` is not empty one of its styles, that goes with the outfit.
  struct Selected {
    std::string asset;
    std::string style;
  };

  std::string key;
  std::string name;
  Outfit outfit = Outfit::Casual;
  std::vector<StyleDesign> styles;
  std::vector<std::string> excludes;
  std::vector<Selected> selects;
  Footwear shownWith = Footwear::Sneakers;
  bool hasFolder = true;
  std::string missingPose;  ///< the pose without a mesh; empty for none
};

struct CategoryDesign {
  std::string key;
  std::string name;
  bool multiple = false;
  bool required = false;
};

struct AssetDesign {
  std::string key;
  std::string name;
  std::string category;     ///< empty for what only a pose brings along
  bool isFootwear = false;  ///< modelled for every pose
  Footwear footwear = Footwear::Sneakers;
  Prop prop = Prop::Handbag;
  std::string global;  ///< id of the global asset that it stands for; empty for the character's own
  std::vector<StyleDesign> styles;
  StyleDesign plain;     ///< of an asset without styles
  std::string onlyPose;  ///< empty for every pose
};

struct CharacterDesign {
  std::string key;
  std::string name;
  Proportions proportions;
  HairStyle hair = HairStyle::Short;
  std::vector<SkinDesign> skins;
  std::vector<OutfitDesign> outfits;
  std::vector<CategoryDesign> categories;
  std::vector<AssetDesign> assets;
  std::string seat;  ///< the asset that seated poses cannot do without
};

struct GlobalAssetDesign {
  std::string key;
  std::string name;
  Prop prop = Prop::Suitcase;
  std::vector<StyleDesign> styles;
  bool hasFolder = true;
};

CharacterDesign annaDesign();
CharacterDesign brunoDesign();
std::vector<GlobalAssetDesign> globalAssetDesigns();

}  // namespace samples
