#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "samples/CharacterDesign.h"
#include "samples/Crew.h"
#include "samples/DescriptionWriter.h"
#include "samples/MeshStore.h"
#include "samples/Previews.h"

namespace samples {

/// Makes one character of the repository: its meshes, libraries and pictures. Outlives the crew's work that it plans.
class CharacterMaker {
 public:
  CharacterMaker(CharacterDesign design, std::vector<GlobalAssetDesign> globals, std::filesystem::path root);

  const CharacterDesign& design() const { return m_design; }
  const std::vector<PlacementRow>& placements() const { return m_placements; }

  void planMeshes(Crew& crew, MeshStore& store, double coarseness) const;
  [[nodiscard]] std::string writeLibraries() const;
  /// The meshes must be done.
  void planPictures(Crew& crew, const MeshStore& store, const Previews& previews) const;

 private:
  using BodyPtr = std::shared_ptr<const ImplicitBody>;
  struct Posed {
    Pose pose;
    BodyPtr body;
  };
  struct Dressed {
    const OutfitDesign* outfit;
    const StyleDesign* style;
    const SkinDesign* skin;
  };

  std::string outfitMesh(const OutfitDesign& outfit, const Pose& pose) const;
  std::string assetMesh(const AssetDesign& asset, const Pose& pose) const;
  const AssetDesign* footwear(Footwear kind) const;
  const Posed& seated() const;
  void placeAssets();

  std::vector<host::ViewItem> figure(const Posed& posed, const Dressed& dressed, const MeshStore& store,
                                     const Previews& previews) const;
  void planOutfitPictures(Crew& crew, const OutfitDesign& outfit, const MeshStore& store,
                          const Previews& previews) const;
  void planSkinPictures(Crew& crew, const MeshStore& store, const Previews& previews) const;
  void planPosePictures(Crew& crew, const MeshStore& store, const Previews& previews) const;
  void planAssetPictures(Crew& crew, const MeshStore& store, const Previews& previews) const;

  CharacterDesign m_design;
  std::vector<GlobalAssetDesign> m_globals;
  std::filesystem::path m_root;
  std::vector<Posed> m_poses;
  std::vector<PlacementRow> m_placements;
};

}  // namespace samples
