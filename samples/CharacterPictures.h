#pragma once

#include "samples/CharacterMaker.h"
#include "samples/Previews.h"

namespace samples {

/// Takes the pictures of one character, whose meshes must be done. Outlives the crew's work that it plans.
class CharacterPictures {
 public:
  CharacterPictures(const CharacterMaker& maker, const std::vector<GlobalAssetDesign>& globals, const MeshStore& store,
                    const Previews& previews)
      : m_maker(maker), m_globals(globals), m_store(store), m_previews(previews) {}

  /// All that the window shows.
  void plan(Crew& crew) const;
  /// One picture of all outfits, one below the other, in all poses, with changing styles, skins and assets.
  void planContactSheet(Crew& crew, const std::filesystem::path& file);
  /// When the crew has done it. Answers an empty text, or what went wrong.
  [[nodiscard]] std::string writeContactSheet() const;

 private:
  struct Dressed {
    const OutfitDesign* outfit;
    const StyleDesign* style;
    const SkinDesign* skin;
    std::vector<OutfitDesign::Selected> assets;
  };
  using Items = std::vector<host::ViewItem>;

  Items figure(const CharacterMaker::Posed& posed, const Dressed& dressed) const;
  Dressed usual(const OutfitDesign& outfit) const;
  void addAsset(Items& items, const CharacterMaker::Posed& posed, const AssetDesign& asset,
                const std::string& style) const;
  Dressed sheetDress(std::size_t row, std::size_t column) const;

  std::vector<std::filesystem::path> stylePictures(const OutfitDesign& outfit, const StyleDesign& style) const;
  void planOutfitPictures(Crew& crew, const OutfitDesign& outfit) const;
  void planSkinPictures(Crew& crew) const;
  void planAssetPictures(Crew& crew) const;

  const CharacterMaker& m_maker;
  const std::vector<GlobalAssetDesign>& m_globals;
  const MeshStore& m_store;
  const Previews& m_previews;
  QImage m_sheet;
  std::filesystem::path m_sheetFile;
};

}  // namespace samples
