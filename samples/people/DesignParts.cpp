#include "samples/people/DesignParts.h"

namespace samples {
namespace {

AssetDesign shared(const std::string& key, const std::string& name, Prop kind) {
  AssetDesign design;
  design.kind = AssetDesign::Kind::Global;
  design.key = key;
  design.name = name;
  design.category = "around";
  design.prop = kind;
  design.global = "global_" + key;
  return design;
}

void rename(Material& material, const std::string& prefix) {
  material.name = material.name.empty() ? prefix : prefix + " " + material.name;
  for (Material& part : material.parts) rename(part, material.name);
}

void rename(StyleDesign& style, const std::string& owner) {
  rename(style.material, style.name.empty() ? owner : owner + " " + style.name);
}

}  // namespace

Material fabric(const QColor& color, const std::string& texture, double roughness) {
  return plain("", color, roughness, texture);
}

Material pattern(const std::string& texture, double roughness) { return plain("", Qt::white, roughness, texture); }

Material soft(const QColor& color, double softness, const std::string& texture) {
  Material material = plain("", color, 0.9, texture);
  material.kind = Material::Kind::Scaled;
  material.softness = softness;
  return material;
}

Material parts(std::vector<std::pair<std::string, Material>> named) {
  std::vector<Material> materials;
  for (auto& one : named) {
    one.second.name = one.first;
    materials.push_back(std::move(one.second));
  }
  return multi("", std::move(materials));
}

StyleDesign style(const std::string& key, const std::string& name, Material material, Library library) {
  return {key, name, std::move(material), library};
}

OutfitDesign outfit(const std::string& key, const std::string& name, Outfit kind, std::vector<StyleDesign> styles,
                    std::vector<OutfitDesign::Selected> selects) {
  OutfitDesign design;
  design.key = key;
  design.name = name;
  design.outfit = kind;
  design.styles = std::move(styles);
  design.selects = std::move(selects);
  return design;
}

AssetDesign prop(const std::string& key, const std::string& name, const std::string& category, Prop kind,
                 std::vector<StyleDesign> styles) {
  AssetDesign design;
  design.key = key;
  design.name = name;
  design.category = category;
  design.prop = kind;
  if (styles.size() == 1)
    design.plain = std::move(styles.front());
  else
    design.styles = std::move(styles);
  return design;
}

AssetDesign worn(const std::string& key, const std::string& name, const std::string& category, Worn kind,
                 std::vector<StyleDesign> styles) {
  AssetDesign design = prop(key, name, category, Prop::Handbag, std::move(styles));
  design.kind = AssetDesign::Kind::Worn;
  design.worn = kind;
  return design;
}

StyleDesign twoTone(const std::string& key, const std::string& name, const QColor& first, const QColor& second,
                    const std::string& texture, double roughness) {
  return style(key, name, parts({{"Main", fabric(first, texture, roughness)}, {"Detail", fabric(second, "", 0.5)}}));
}

AssetDesign glasses() {
  const auto frames = [](const std::string& key, const std::string& name, const QColor& frame, const QColor& lens,
                         double opacity) {
    Material glass = fabric(lens, "", 0.05);
    glass.opacity = opacity;
    return style(key, name, parts({{"Frame", fabric(frame, "", 0.3)}, {"Lens", glass}}), Library::Character);
  };
  return prop("glasses", "Glasses", "accessories", Prop::Glasses,
              {frames("reading", "Reading", QColor(58, 42, 34), QColor(200, 214, 222), 0.08),
               frames("sun", "Sun", QColor(24, 24, 26), QColor(28, 26, 24), 0.9)});
}

AssetDesign stool(const QColor& color) {
  AssetDesign design =
      prop("stool", "Stool", "", Prop::Stool, {style("", "", fabric(color, "wood.png", 0.55), Library::Props)});
  design.onlyPose = "sitting";
  return design;
}

std::vector<AssetDesign> sharedAssets() {
  AssetDesign lamp = shared("lamp", "Lamp Post", Prop::LampPost);
  lamp.category.clear();
  lamp.onlyPose = "leaning";
  return {shared("suitcase", "Suitcase", Prop::Suitcase), shared("bicycle", "Bicycle", Prop::Bicycle),
          shared("bench", "Bench", Prop::Bench), shared("umbrella", "Umbrella", Prop::Umbrella), lamp};
}

std::vector<CategoryDesign> usualCategories() {
  return {{"shoes", "Shoes", false, true},
          {"hand", "In the Hand", false, false},
          {"bags", "Bags", false, false},
          {"headwear", "Headwear", false, false},
          {"accessories", "Accessories", true, false},
          {"around", "Around", true, false}};
}

Face face(const QColor& skin, const QColor& lips, const QColor& brows, const QColor& iris) {
  Face face;
  face.skin = skin;
  face.lips = lips;
  face.brows = brows;
  face.iris = iris;
  return face;
}

CharacterDesign claimed(CharacterDesign character) {
  for (SkinDesign& skin : character.skins) {
    if (skin.texture.empty()) skin.texture = character.key + "_skin_" + skin.key + ".png";
  }
  for (OutfitDesign& outfit : character.outfits) {
    for (StyleDesign& style : outfit.styles) rename(style, character.name + " " + outfit.name);
  }
  for (AssetDesign& asset : character.assets) {
    for (StyleDesign& style : asset.styles) rename(style, character.name + " " + asset.name);
    rename(asset.plain, character.name + " " + asset.name);
  }
  return character;
}

GlobalAssetDesign claimed(GlobalAssetDesign asset) {
  for (StyleDesign& style : asset.styles) rename(style, asset.name);
  rename(asset.plain, asset.name);
  return asset;
}

}  // namespace samples
