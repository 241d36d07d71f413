#pragma once

#include "samples/repository/CharacterMaker.h"
#include "samples/repository/Previews.h"

namespace samples {

/// Takes the pictures of one character, whose meshes must be done. Outlives the queued work that it plans.
class CharacterPictures {
 public:
  CharacterPictures(const CharacterMaker& maker, const std::vector<GlobalAssetDesign>& globals, const MeshStore& store,
                    const Previews& previews)
      : maker_(maker), globals_(globals), store_(store), previews_(previews) {}

  /// All that the window shows.
  void plan(JobQueue& queue) const;
  /// One picture of all outfits, one below the other, in all poses, with changing styles, skins and assets.
  void planContactSheet(JobQueue& queue, const std::filesystem::path& file);
  /// When the queue is done. Answers an empty text, or what went wrong.
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
  void planOutfitPictures(JobQueue& queue, const OutfitDesign& outfit) const;
  void planSkinPictures(JobQueue& queue) const;
  void planAssetPictures(JobQueue& queue) const;

  const CharacterMaker& maker_;
  const std::vector<GlobalAssetDesign>& globals_;
  const MeshStore& store_;
  const Previews& previews_;
  QImage sheet_;
  std::filesystem::path sheetFile_;
};

}  // namespace samples
