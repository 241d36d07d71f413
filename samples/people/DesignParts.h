#pragma once

#include "samples/people/CharacterDesign.h"

namespace samples {

// What the people's designs are put together from. Names of materials are given without the person's; `claimed` adds
// it, since a scene knows materials by their names only.

/// A cloth without a name, to be put into `parts`.
Material fabric(const QColor& color, const std::string& texture = "weave.png", double roughness = 0.9);
/// A cloth whose texture brings its colours along.
Material pattern(const std::string& texture, double roughness = 0.9);
/// Of the class whose softness is a length.
Material soft(const QColor& color, double softness, const std::string& texture);
/// One material for each material id of an outfit.
Material parts(std::vector<std::pair<std::string, Material>> named);

StyleDesign style(const std::string& key, const std::string& name, Material material, Library library = Library::Own);

OutfitDesign outfit(const std::string& key, const std::string& name, Outfit kind, std::vector<StyleDesign> styles,
                    std::vector<OutfitDesign::Selected> selects = {});

AssetDesign prop(const std::string& key, const std::string& name, const std::string& category, Prop kind,
                 std::vector<StyleDesign> styles);
AssetDesign worn(const std::string& key, const std::string& name, const std::string& category, Worn kind,
                 std::vector<StyleDesign> styles);
/// Main part and detail in two colours.
StyleDesign twoTone(const std::string& key, const std::string& name, const QColor& first, const QColor& second,
                    const std::string& texture, double roughness = 0.6);
AssetDesign glasses();
AssetDesign stool(const QColor& color);
/// Suitcase, bench, bicycle, lamp post and the umbrella that is missing.
std::vector<AssetDesign> sharedAssets();

std::vector<CategoryDesign> usualCategories();
Face face(const QColor& skin, const QColor& lips, const QColor& brows, const QColor& iris);

/// With the character's name before the names of all materials, and the names of the skins' pictures.
CharacterDesign claimed(CharacterDesign character);
GlobalAssetDesign claimed(GlobalAssetDesign asset);

}  // namespace samples
