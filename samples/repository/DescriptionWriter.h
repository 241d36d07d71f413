#pragma once

#include <map>
#include <string>
#include <vector>

#include "samples/people/CharacterDesign.h"

namespace samples {

/// Where a body has a prop, as a row of the asset matrix.
struct PlacementRow {
  std::string poseId;
  std::string assetId;
  Frame frame;
};

/// Writes the description of a repository.
class DescriptionWriter {
 public:
  void addGlobalAssets(const std::vector<GlobalAssetDesign>& assets);
  void addCharacter(const CharacterDesign& character, const std::vector<PlacementRow>& placements);
  /// The finished document.
  std::string text() const;

 private:
  using Attributes = std::vector<std::pair<std::string, std::string>>;

  void open(const std::string& element, const Attributes& attributes = {});
  void close(const std::string& element);
  void empty(const std::string& element, const Attributes& attributes);
  void start(const std::string& element, const Attributes& attributes);

  void addSkins(const CharacterDesign& character);
  void addOutfit(const CharacterDesign& character, const OutfitDesign& outfit);
  void addPoses(const CharacterDesign& character);
  void addCategories(const CharacterDesign& character);
  void addAsset(const CharacterDesign& character, const AssetDesign& asset);
  /// The first of the attributes is the id.
  void addAssetWithStyles(Attributes attributes, const std::vector<StyleDesign>& styles, const StyleDesign& plain);
  void addStyles(const std::string& ownerId, const std::vector<StyleDesign>& styles);
  void addMatrix(const std::vector<PlacementRow>& placements);

  std::string text_;
  int depth_ = 1;
};

}  // namespace samples
