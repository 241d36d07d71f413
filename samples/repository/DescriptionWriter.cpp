#include "samples/repository/DescriptionWriter.h"

#include <locale>
#include <sstream>

#include "samples/repository/Naming.h"

namespace samples {
namespace {

std::string escaped(const std::string& text) {
  std::string result;
  for (const char c : text) {
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '"':
        result += "&quot;";
        break;
      default:
        result += c;
    }
  }
  return result;
}

std::string number(double value) {
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  stream.precision(4);
  stream << std::fixed << (std::abs(value) < 0.00005 ? 0.0 : value);
  return stream.str();
}

std::string shop(const std::string& id) { return "https://shop.example.com/item?id=" + id; }

}  // namespace

void DescriptionWriter::start(const std::string& element, const Attributes& attributes) {
  text_ += std::string(static_cast<std::size_t>(depth_) * 2, ' ') + "<" + element;
  for (const auto& [name, value] : attributes) text_ += " " + name + "=\"" + escaped(value) + "\"";
}

void DescriptionWriter::open(const std::string& element, const Attributes& attributes) {
  start(element, attributes);
  text_ += ">\n";
  ++depth_;
}

void DescriptionWriter::close(const std::string& element) {
  --depth_;
  text_ += std::string(static_cast<std::size_t>(depth_) * 2, ' ') + "</" + element + ">\n";
}

void DescriptionWriter::empty(const std::string& element, const Attributes& attributes) {
  start(element, attributes);
  text_ += "/>\n";
}

void DescriptionWriter::addGlobalAssets(const std::vector<GlobalAssetDesign>& assets) {
  open("globalAssets");
  for (const GlobalAssetDesign& asset : assets) {
    const std::string id = globalId(asset);
    Attributes attributes = {{"id", id}, {"name", asset.name}, {"folder", asset.key}, {"type", "global"}};
    addAssetWithStyles(std::move(attributes), asset.styles, asset.plain);
  }
  close("globalAssets");
}

void DescriptionWriter::addCharacter(const CharacterDesign& character, const std::vector<PlacementRow>& placements) {
  open("character", {{"id", character.key}, {"name", character.name}, {"folder", character.key}});
  addSkins(character);
  open("cloth", {{"name", "Clothing"}});
  for (const OutfitDesign& outfit : character.outfits) addOutfit(character, outfit);
  close("cloth");
  addPoses(character);
  addCategories(character);
  open("assets");
  for (const AssetDesign& asset : character.assets) addAsset(character, asset);
  close("assets");
  addMatrix(placements);
  close("character");
}

void DescriptionWriter::addSkins(const CharacterDesign& character) {
  open("skins", {{"name", "Skin"}});
  for (const SkinDesign& skin : character.skins) {
    const std::string id = skinId(character, skin);
    empty("skin", {{"id", id},
                   {"name", skin.name},
                   {"preview", previewName(id)},
                   {"material", skinMaterialName(character, skin)}});
  }
  close("skins");
}

void DescriptionWriter::addOutfit(const CharacterDesign& character, const OutfitDesign& outfit) {
  const std::string id = outfitId(character, outfit);
  open("clothing", {{"id", id}, {"name", outfit.name}, {"folder", outfit.key}});
  addStyles(id, outfit.styles);
  for (const std::string& excluded : outfit.excludes) empty("exclude", {{"id", assetId(character, excluded)}});
  for (const OutfitDesign::Selected& selected : outfit.selects) {
    const std::string asset = assetId(character, selected.asset);
    Attributes attributes = {{"asset_id", asset}};
    if (!selected.style.empty()) attributes.emplace_back("material_id", asset + "_" + selected.style);
    empty("select", attributes);
  }
  close("clothing");
}

void DescriptionWriter::addPoses(const CharacterDesign& character) {
  open("poses", {{"name", "Pose"}});
  for (const Pose& pose : samplePoses(character.proportions.femininity)) {
    const std::string id = poseId(character, pose);
    const Attributes attributes = {{"id", id}, {"name", pose.name}, {"folder", pose.id}, {"url", shop(id)}};
    const AssetDesign* support = character.support(pose);
    if (support == nullptr) {
      empty("pose", attributes);
      continue;
    }
    open("pose", attributes);
    empty("asset", {{"id", assetId(character, support->key)}, {"name", support->name}});
    close("pose");
  }
  close("poses");
}

void DescriptionWriter::addCategories(const CharacterDesign& character) {
  open("categories");
  for (const CategoryDesign& category : character.categories) {
    empty("category", {{"id", categoryId(character, category.key)},
                       {"name", category.name},
                       {"selection", category.multiple ? "multiple" : "single"},
                       {"required", category.required ? "true" : "false"}});
  }
  close("categories");
}

void DescriptionWriter::addAsset(const CharacterDesign& character, const AssetDesign& asset) {
  const std::string id = assetId(character, asset.key);
  Attributes attributes = {{"id", id}, {"name", asset.name}};
  if (!asset.category.empty()) attributes.emplace_back("category", categoryId(character, asset.category));
  if (asset.kind == AssetDesign::Kind::Global) {
    attributes.insert(attributes.end(), {{"type", "global"}, {"globalID", asset.global}});
    empty("asset", attributes);
    return;
  }
  const bool worn = asset.kind == AssetDesign::Kind::Worn;
  attributes.insert(attributes.end(), {{"folder", asset.key}, {"type", worn ? "specific" : "common"}});
  addAssetWithStyles(std::move(attributes), asset.styles, asset.plain);
}

void DescriptionWriter::addAssetWithStyles(Attributes attributes, const std::vector<StyleDesign>& styles,
                                           const StyleDesign& plain) {
  if (styles.empty()) {
    attributes.emplace_back("material", plain.material.name);
    empty("asset", attributes);
    return;
  }
  const std::string id = attributes.front().second;
  open("asset", attributes);
  addStyles(id, styles);
  close("asset");
}

void DescriptionWriter::addStyles(const std::string& ownerId, const std::vector<StyleDesign>& styles) {
  for (const StyleDesign& style : styles) {
    const std::string id = styleId(ownerId, style);
    empty("material",
          {{"id", id}, {"name", style.name}, {"preview", previewName(id)}, {"material", style.material.name}});
  }
}

void DescriptionWriter::addMatrix(const std::vector<PlacementRow>& placements) {
  open("AssetMatrix");
  for (const PlacementRow& row : placements) {
    const Vec3& place = row.frame.origin;
    const Vec3 angles = row.frame.angles();
    empty("matrix", {{"poseID", row.poseId},
                     {"assetID", row.assetId},
                     {"xpos", number(place.x)},
                     {"ypos", number(place.y)},
                     {"zpos", number(place.z)},
                     {"xrot", number(angles.x)},
                     {"yrot", number(angles.y)},
                     {"zrot", number(angles.z)}});
  }
  close("AssetMatrix");
}

std::string DescriptionWriter::text() const {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<zorvel>\n" + text_ + "</zorvel>\n";
}

}  // namespace samples
