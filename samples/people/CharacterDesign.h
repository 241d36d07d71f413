#pragma once

#include <string>
#include <vector>

#include "samples/body/HeadShape.h"
#include "samples/body/Proportions.h"
#include "samples/clothing/Wardrobe.h"
#include "samples/clothing/WornThings.h"
#include "samples/people/Face.h"
#include "samples/people/Material.h"
#include "samples/props/Props.h"

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
  Face face;
  QColor hair;
  std::string texture = {};  ///< file name in the repository's maps; `claimed` fills it
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
  /// A prop is one mesh that matrix rows place, a worn thing has a mesh for each pose, a global one stands for an asset
  /// that all characters share.
  enum class Kind { Prop, Worn, Global };

  Kind kind = Kind::Prop;
  std::string key;
  std::string name;
  std::string category;  ///< empty for what only a pose brings along
  Worn worn = Worn::Sneakers;
  Prop prop = Prop::Handbag;
  std::string global;  ///< id of the global asset
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
  std::string post;  ///< what a leaning pose leans against

  /// Null when there is none.
  const AssetDesign* asset(const std::string& assetKey) const;
  /// What the pose cannot do without; null when it stands by itself.
  const AssetDesign* support(const Pose& pose) const;
};

struct GlobalAssetDesign {
  std::string key;
  std::string name;
  Prop prop = Prop::Suitcase;
  std::vector<StyleDesign> styles;
  StyleDesign plain;  ///< of an asset without styles
  bool hasFolder = true;
};

std::vector<GlobalAssetDesign> globalAssetDesigns();

}  // namespace samples
