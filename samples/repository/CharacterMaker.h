#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "samples/people/CharacterDesign.h"
#include "samples/repository/DescriptionWriter.h"
#include "samples/repository/JobQueue.h"
#include "samples/repository/MeshStore.h"

namespace samples {

/// Makes the meshes and libraries of one character. Outlives the queued work that it plans.
class CharacterMaker {
 public:
  using BodyPtr = std::shared_ptr<const ImplicitBody>;
  struct Posed {
    Pose pose;
    BodyPtr body;
  };

  CharacterMaker(CharacterDesign design, std::filesystem::path root);

  const CharacterDesign& design() const { return design_; }
  const std::vector<Posed>& poses() const { return poses_; }
  const std::vector<PlacementRow>& placements() const { return placements_; }
  std::filesystem::path folder() const { return root_ / design_.key; }

  // Paths of meshes below the repository, which the store knows them by.
  std::string bodyMesh(const Pose& pose) const { return design_.key + "/" + pose.id + "/pose.vrmesh"; }
  std::string outfitMesh(const OutfitDesign& outfit, const Pose& pose) const;
  std::string assetMesh(const AssetDesign& asset, const Pose& pose) const;

  void planMeshes(JobQueue& queue, MeshStore& store, double coarseness) const;
  [[nodiscard]] std::string writeLibraries() const;

 private:
  void placeAssets();
  const Posed& posed(bool seated) const;

  CharacterDesign design_;
  std::filesystem::path root_;
  std::vector<Posed> poses_;
  std::vector<PlacementRow> placements_;
};

/// The mesh of the pieces, written to the file and put into the store under that name; `file` empty keeps it from the
/// disk.
JobQueue::Job meshJob(const std::filesystem::path& file, const std::string& name, MeshStore& store, double coarseness,
                      const std::function<std::vector<Piece>()>& pieces);

}  // namespace samples
