#include "samples/repository/CharacterMaker.h"

#include "samples/body/BodyPieces.h"
#include "samples/repository/MaterialLibraryWriter.h"
#include "samples/repository/Naming.h"
#include "samples/repository/RepositoryFiles.h"

namespace samples {
namespace {

namespace fs = std::filesystem;

MaterialLibraryWriter& libraryFor(std::map<fs::path, MaterialLibraryWriter>& libraries, const fs::path& file) {
  return libraries.try_emplace(file, PAINTERS_FOLDER).first->second;
}

}  // namespace

JobQueue::Job meshJob(const fs::path& file, const std::string& name, MeshStore& store, double coarseness,
                      const std::function<std::vector<Piece>()>& pieces) {
  return [=, &store]() -> std::string {
    host::Mesh mesh = meshPieces(pieces(), coarseness);
    std::string failed = file.empty() ? std::string() : writeMesh(mesh, file);
    store.put(name, std::move(mesh));
    return failed;
  };
}

CharacterMaker::CharacterMaker(CharacterDesign design, fs::path root)
    : design_(std::move(design)), root_(std::move(root)) {
  for (const Pose& pose : samplePoses(design_.proportions.femininity)) {
    poses_.push_back({pose, std::make_shared<ImplicitBody>(Skeleton(design_.proportions, pose), design_.hair)});
  }
  placeAssets();
}

void CharacterMaker::placeAssets() {
  for (const Posed& posed : poses_) {
    for (const AssetDesign& asset : design_.assets) {
      if (asset.kind == AssetDesign::Kind::Worn) continue;
      if (!asset.onlyPose.empty() && asset.onlyPose != posed.pose.id) continue;
      placements_.push_back(
          {poseId(design_, posed.pose), assetId(design_, asset.key), propPlacement(asset.prop, *posed.body)});
    }
  }
}

const CharacterMaker::Posed& CharacterMaker::posed(bool seated) const {
  const auto found =
      std::find_if(poses_.begin(), poses_.end(), [=](const Posed& posed) { return posed.pose.seated == seated; });
  return found == poses_.end() ? poses_.front() : *found;
}

std::string CharacterMaker::outfitMesh(const OutfitDesign& outfit, const Pose& pose) const {
  return design_.key + "/" + outfit.key + "/" + outfitId(design_, outfit) + "_" + poseId(design_, pose) + ".vrmesh";
}

std::string CharacterMaker::assetMesh(const AssetDesign& asset, const Pose& pose) const {
  if (asset.kind == AssetDesign::Kind::Global) return asset.global;
  const bool worn = asset.kind == AssetDesign::Kind::Worn;
  return design_.key + "/" + asset.key + "/" + (worn ? poseId(design_, pose) : "asset") + ".vrmesh";
}

void CharacterMaker::planMeshes(JobQueue& queue, MeshStore& store, double coarseness) const {
  for (const Posed& posed : poses_) {
    const BodyPtr body = posed.body;
    const std::string skin = bodyMesh(posed.pose);
    queue.add(meshJob(root_ / skin, skin, store, coarseness, [body] { return bodyPieces(body); }));
    for (const OutfitDesign& outfit : design_.outfits) {
      // Pictures of what is missing on purpose need its mesh, which is kept from the disk.
      const bool hidden = !outfit.hasFolder || outfit.missingPose == posed.pose.id;
      const std::string name = outfitMesh(outfit, posed.pose);
      queue.add(meshJob(hidden ? fs::path() : root_ / name, name, store, coarseness,
                        [body, kind = outfit.outfit] { return outfitPieces(body, kind); }));
    }
    for (const AssetDesign& asset : design_.assets) {
      if (asset.kind != AssetDesign::Kind::Worn) continue;
      const std::string name = assetMesh(asset, posed.pose);
      queue.add(
          meshJob(root_ / name, name, store, coarseness, [body, kind = asset.worn] { return wornPieces(body, kind); }));
    }
  }
  for (const AssetDesign& asset : design_.assets) {
    if (asset.kind != AssetDesign::Kind::Prop) continue;
    const std::string name = assetMesh(asset, poses_.front().pose);
    queue.add(
        meshJob(root_ / name, name, store, coarseness,
                [body = posed(asset.prop == Prop::Stool).body, prop = asset.prop] { return propPieces(prop, *body); }));
  }
}

std::string CharacterMaker::writeLibraries() const {
  const fs::path own = folder();
  std::map<fs::path, MaterialLibraryWriter> libraries;
  const auto add = [&](const std::string& element, const StyleDesign& style) {
    const fs::path file = style.library == Library::Own         ? own / element / "materials.mat"
                          : style.library == Library::Character ? own / "materials.mat"
                                                                : own / "props.mat";
    libraryFor(libraries, file).add(style.material);
  };
  for (const SkinDesign& skin : design_.skins) {
    libraryFor(libraries, own / "skin" / "skin.mat").add(skinMaterial(design_, skin));
  }
  for (const OutfitDesign& outfit : design_.outfits) {
    if (!outfit.hasFolder) continue;
    for (const StyleDesign& style : outfit.styles) add(outfit.key, style);
  }
  for (const AssetDesign& asset : design_.assets) {
    if (asset.kind == AssetDesign::Kind::Global) continue;
    if (asset.styles.empty()) add(asset.key, asset.plain);
    for (const StyleDesign& style : asset.styles) add(asset.key, style);
  }
  for (const auto& [file, library] : libraries) {
    if (const std::string error = library.write(file); !error.empty()) return error;
  }
  return {};
}

}  // namespace samples
