#include "samples/CharacterMaker.h"

#include "host/meshes/MeshFileWriter.h"
#include "samples/MaterialLibraryWriter.h"
#include "samples/Naming.h"
#include "samples/PictureFile.h"

namespace samples {
namespace {

namespace fs = std::filesystem;

Crew::Job meshJob(const fs::path& file, const std::string& key, MeshStore& store, double coarseness,
                  std::function<std::vector<Piece>()> pieces) {
  return [=, &store]() -> std::string {
    host::Mesh mesh = meshPieces(pieces(), coarseness);
    std::error_code error;
    fs::create_directories(file.parent_path(), error);
    std::string failed = host::writeMeshFile(mesh, file);
    store.put(key, std::move(mesh));
    return failed;
  };
}

// Pictures of what is missing on purpose need its mesh, which is then kept from the disk.
Crew::Job hiddenMeshJob(const std::string& key, MeshStore& store, double coarseness,
                        std::function<std::vector<Piece>()> pieces) {
  return [=, &store]() -> std::string {
    store.put(key, meshPieces(pieces(), coarseness));
    return {};
  };
}

MaterialLibraryWriter& libraryFor(std::map<fs::path, MaterialLibraryWriter>& libraries, const fs::path& file,
                                  const std::string& owner) {
  return libraries.try_emplace(file, "D:\\textures\\" + owner).first->second;
}

// All figures in one scale, so that the tall look tall.
Previews::View upright(const ImplicitBody& body) {
  const Box box = body.bounds();
  Previews::View view;
  view.target = {0.5 * (box.low.x + box.high.x), 0.5 * (box.low.y + box.high.y), 98};
  view.height = 218;
  return view;
}

}  // namespace

CharacterMaker::CharacterMaker(CharacterDesign design, std::vector<GlobalAssetDesign> globals, fs::path root)
    : m_design(std::move(design)), m_globals(std::move(globals)), m_root(std::move(root)) {
  for (const Pose& pose : samplePoses(m_design.proportions.femininity)) {
    m_poses.push_back({pose, std::make_shared<ImplicitBody>(Skeleton(m_design.proportions, pose), m_design.hair)});
  }
  placeAssets();
}

void CharacterMaker::placeAssets() {
  for (const Posed& posed : m_poses) {
    for (const AssetDesign& asset : m_design.assets) {
      if (asset.isFootwear || (!asset.onlyPose.empty() && asset.onlyPose != posed.pose.id)) continue;
      m_placements.push_back(
          {poseId(m_design, posed.pose), assetId(m_design, asset.key), propPlacement(asset.prop, *posed.body)});
    }
  }
}

const CharacterMaker::Posed& CharacterMaker::seated() const {
  const auto found = std::find_if(m_poses.begin(), m_poses.end(), [](const Posed& posed) { return posed.pose.seated; });
  return found == m_poses.end() ? m_poses.front() : *found;
}

const AssetDesign* CharacterMaker::footwear(Footwear kind) const {
  const auto found = std::find_if(m_design.assets.begin(), m_design.assets.end(), [kind](const AssetDesign& asset) {
    return asset.isFootwear && asset.footwear == kind;
  });
  return found == m_design.assets.end() ? nullptr : &*found;
}

std::string CharacterMaker::outfitMesh(const OutfitDesign& outfit, const Pose& pose) const {
  return m_design.key + "/" + outfit.key + "/" + outfitId(m_design, outfit) + "_" + poseId(m_design, pose) + ".vrmesh";
}

std::string CharacterMaker::assetMesh(const AssetDesign& asset, const Pose& pose) const {
  const std::string folder = m_design.key + "/" + asset.key + "/";
  return folder + (asset.isFootwear ? poseId(m_design, pose) : "asset") + ".vrmesh";
}

void CharacterMaker::planMeshes(Crew& crew, MeshStore& store, double coarseness) const {
  for (const Posed& posed : m_poses) {
    const BodyPtr body = posed.body;
    const std::string skin = m_design.key + "/" + posed.pose.id + "/pose.vrmesh";
    crew.add(meshJob(m_root / skin, skin, store, coarseness, [body] { return bodyPieces(body); }));
    for (const OutfitDesign& outfit : m_design.outfits) {
      const std::string key = outfitMesh(outfit, posed.pose);
      const auto pieces = [body, kind = outfit.outfit] { return outfitPieces(body, kind); };
      const bool hidden = !outfit.hasFolder || outfit.missingPose == posed.pose.id;
      crew.add(hidden ? hiddenMeshJob(key, store, coarseness, pieces)
                      : meshJob(m_root / key, key, store, coarseness, pieces));
    }
    for (const AssetDesign& asset : m_design.assets) {
      if (!asset.isFootwear) continue;
      const std::string key = assetMesh(asset, posed.pose);
      crew.add(meshJob(m_root / key, key, store, coarseness,
                       [body, kind = asset.footwear] { return shoePieces(body, kind); }));
    }
  }
  for (const AssetDesign& asset : m_design.assets) {
    if (asset.isFootwear || !asset.global.empty()) continue;
    const std::string key = assetMesh(asset, m_poses.front().pose);
    crew.add(meshJob(m_root / key, key, store, coarseness,
                     [body = seated().body, prop = asset.prop] { return propPieces(prop, *body); }));
  }
}

std::string CharacterMaker::writeLibraries() const {
  const fs::path folder = m_root / m_design.key;
  std::map<fs::path, MaterialLibraryWriter> libraries;
  const auto add = [&](const fs::path& own, const StyleDesign& style) {
    const fs::path file = style.library == Library::Own         ? own / "materials.mat"
                          : style.library == Library::Character ? folder / "materials.mat"
                                                                : folder / "props.mat";
    libraryFor(libraries, file, m_design.key).add(style.material);
  };
  for (const SkinDesign& skin : m_design.skins) {
    libraryFor(libraries, folder / "skin" / "skin.mat", m_design.key).add(skinMaterial(m_design, skin));
  }
  for (const OutfitDesign& outfit : m_design.outfits) {
    if (!outfit.hasFolder) continue;
    for (const StyleDesign& style : outfit.styles) add(folder / outfit.key, style);
  }
  for (const AssetDesign& asset : m_design.assets) {
    if (!asset.global.empty()) continue;
    if (asset.styles.empty()) add(folder / asset.key, asset.plain);
    for (const StyleDesign& style : asset.styles) add(folder / asset.key, style);
  }
  for (const auto& [file, library] : libraries) {
    if (const std::string error = library.write(file); !error.empty()) return error;
  }
  return {};
}

std::vector<host::ViewItem> CharacterMaker::figure(const Posed& posed, const Dressed& dressed, const MeshStore& store,
                                                   const Previews& previews) const {
  const std::string skin = m_design.key + "/" + posed.pose.id + "/pose.vrmesh";
  std::vector<host::ViewItem> items = {previews.item(store.find(skin), skinMaterial(m_design, *dressed.skin))};
  items.push_back(previews.item(store.find(outfitMesh(*dressed.outfit, posed.pose)), dressed.style->material));
  const AssetDesign* shoes = footwear(dressed.outfit->shownWith);
  if (shoes != nullptr) {
    items.push_back(previews.item(store.find(assetMesh(*shoes, posed.pose)), shoes->styles.front().material));
  }
  if (!posed.pose.seated) return items;
  for (const AssetDesign& asset : m_design.assets) {
    if (asset.key != m_design.seat) continue;
    items.push_back(previews.item(store.find(assetMesh(asset, posed.pose)), asset.plain.material,
                                  propPlacement(asset.prop, *posed.body)));
  }
  return items;
}

void CharacterMaker::planPictures(Crew& crew, const MeshStore& store, const Previews& previews) const {
  for (const OutfitDesign& outfit : m_design.outfits) planOutfitPictures(crew, outfit, store, previews);
  planSkinPictures(crew, store, previews);
  planPosePictures(crew, store, previews);
  planAssetPictures(crew, store, previews);
}

void CharacterMaker::planOutfitPictures(Crew& crew, const OutfitDesign& outfit, const MeshStore& store,
                                        const Previews& previews) const {
  const fs::path folder = m_root / m_design.key;
  const std::string id = outfitId(m_design, outfit);
  const SkinDesign* skin = &m_design.skins.front();
  const Previews::View view = upright(*m_poses.front().body);
  for (const Posed& posed : m_poses) {
    const fs::path file = folder / "previews" / (id + "_" + poseId(m_design, posed.pose) + ".png");
    crew.add([=, &store, &previews, &posed, &outfit] {
      const auto items = figure(posed, {&outfit, &outfit.styles.front(), skin}, store, previews);
      return writePicture(previews.take(items, upright(*posed.body), 100, 300), {file});
    });
  }
  for (const StyleDesign& style : outfit.styles) {
    const std::string name = previewName(styleId(id, style));
    std::vector<fs::path> files = {folder / "previews" / name};
    if (outfit.hasFolder) files.push_back(folder / outfit.key / name);
    crew.add([=, &store, &previews, &outfit, &style] {
      const auto items = figure(m_poses.front(), {&outfit, &style, skin}, store, previews);
      return writePicture(previews.take(items, view, 100, 300), files);
    });
  }
  std::vector<fs::path> files = {folder / "previews" / previewName(id)};
  if (&outfit == &m_design.outfits.front()) files.push_back(folder / "previews" / "preview.png");
  crew.add([=, &store, &previews, &outfit] {
    const auto items = figure(m_poses.front(), {&outfit, &outfit.styles.front(), skin}, store, previews);
    return writePicture(previews.take(items, view, 110, 330), files);
  });
}

void CharacterMaker::planSkinPictures(Crew& crew, const MeshStore& store, const Previews& previews) const {
  const fs::path folder = m_root / m_design.key;
  for (const SkinDesign& skin : m_design.skins) {
    const std::string name = previewName(skinId(m_design, skin));
    crew.add([=, &store, &previews, &skin] {
      const Posed& posed = m_poses.front();
      const OutfitDesign& outfit = m_design.outfits.front();
      const auto items = figure(posed, {&outfit, &outfit.styles.front(), &skin}, store, previews);
      const Previews::View view{posed.body->headShape().place(0, 0, 0.40), 40, 20, 2, false};
      return writePicture(previews.take(items, view, 150, 150), {folder / "skin" / name, folder / "previews" / name});
    });
  }
}

void CharacterMaker::planPosePictures(Crew& crew, const MeshStore& store, const Previews& previews) const {
  const fs::path folder = m_root / m_design.key / "previews";
  for (const Posed& posed : m_poses) {
    crew.add([=, &store, &previews, &posed] {
      const OutfitDesign& outfit = m_design.outfits.front();
      const auto items = figure(posed, {&outfit, &outfit.styles.front(), &m_design.skins.front()}, store, previews);
      const QImage picture = previews.take(items, upright(*posed.body), 100, 300);
      return writePicture(picture, {folder / previewName(poseId(m_design, posed.pose))});
    });
  }
}

void CharacterMaker::planAssetPictures(Crew& crew, const MeshStore& store, const Previews& previews) const {
  const fs::path folder = m_root / m_design.key;
  for (const AssetDesign& asset : m_design.assets) {
    if (!asset.global.empty()) continue;
    const std::string id = assetId(m_design, asset.key);
    const std::string mesh = assetMesh(asset, m_poses.front().pose);
    std::vector<const StyleDesign*> styles = {asset.styles.empty() ? &asset.plain : &asset.styles.front()};
    for (const StyleDesign& style : asset.styles) styles.push_back(&style);
    for (std::size_t i = 0; i < styles.size(); ++i) {
      const std::string name = previewName(i == 0 ? id : styleId(id, *styles[i]));
      const fs::path own = folder / asset.key / (i == 0 ? "preview.png" : name);
      crew.add([=, &store, &previews] {
        const std::vector<host::ViewItem> items = {previews.item(store.find(mesh), styles[i]->material)};
        return writePicture(previews.take(items, Previews::around(items, 1), 150, 150),
                            {own, folder / "previews" / name});
      });
    }
  }
}

}  // namespace samples
