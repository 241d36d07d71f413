#include "samples/repository/SampleRepository.h"

#include <algorithm>
#include <set>

#include "samples/people/People.h"
#include "samples/repository/CharacterPictures.h"
#include "samples/repository/MaterialLibraryWriter.h"
#include "samples/repository/Naming.h"
#include "samples/repository/RepositoryFiles.h"
#include "samples/repository/RepositoryReadme.h"
#include "samples/repository/TextureSet.h"

namespace samples {
namespace {

namespace fs = std::filesystem;

class Writer {
 public:
  Writer(const fs::path& folder, const SampleOptions& options, const SampleProgress& progress)
      : root_(folder),
        options_(options),
        progress_(progress),
        globals_(globalAssetDesigns()),
        people_(people(std::clamp(options.characters, 1, 1000))) {
    if (options.isComplete) complete();
  }

  std::string run() {
    using Step = std::string (Writer::*)();
    for (const Step step :
         {&Writer::writeTextures, &Writer::writeGlobalAssets, &Writer::writeCharacters, &Writer::writeTexts}) {
      if (std::string error = (this->*step)(); !error.empty()) return error;
    }
    tell(1);
    return {};
  }

 private:
  /// What nobody has modelled goes; the rest gets the files that are left out otherwise.
  void complete() {
    std::set<std::string> gone;
    for (const GlobalAssetDesign& asset : globals_) {
      if (!asset.hasFolder) gone.insert(globalId(asset));
    }
    const auto isGone = [&gone](const std::string& id) { return gone.count(id) > 0; };
    erase(globals_, [&](const GlobalAssetDesign& asset) { return isGone(globalId(asset)); });
    for (CharacterDesign& character : people_) {
      erase(character.assets, [&](const AssetDesign& asset) { return isGone(asset.global); });
      for (OutfitDesign& outfit : character.outfits) {
        outfit.hasFolder = true;
        outfit.missingPose.clear();
      }
    }
  }

  template <class Element, class Predicate>
  static void erase(std::vector<Element>& elements, Predicate isGone) {
    elements.erase(std::remove_if(elements.begin(), elements.end(), isGone), elements.end());
  }

  void tell(double share) const {
    if (progress_) progress_(share);
  }
  JobQueue::Progress part(double from, double to) const {
    return [this, from, to](double share) { tell(mix(from, to, share)); };
  }

  std::string writeTextures() {
    JobQueue queue(options_.threads);
    Previews::Textures textures;
    const auto images = drawTextures(options_.seed, options_.coarseness, people_);
    for (const auto& [name, image] : images) {
      textures[name] = std::make_shared<host::Texture>(image);
      queue.add([file = root_ / "maps" / name, &picture = image] { return writePictures(picture, {file}); });
    }
    previews_ = std::make_unique<Previews>(std::move(textures), options_.previewSamples);
    return queue.run(part(0, 0.04));
  }

  std::string writeGlobalAssets() {
    JobQueue meshes(options_.threads);
    const auto body =
        std::make_shared<ImplicitBody>(Skeleton(people_.front().proportions, samplePoses(1).front()), HairStyle::Short);
    for (const GlobalAssetDesign& asset : globals_) {
      if (!asset.hasFolder) continue;
      meshes.add(meshJob(globalFolder(asset) / "asset.vrmesh", globalId(asset), shared_, options_.coarseness,
                         [&asset, body] { return propPieces(asset.prop, *body); }));
    }
    if (std::string error = meshes.run(part(0.04, 0.08)); !error.empty()) return error;
    JobQueue pictures(options_.threads);
    for (const GlobalAssetDesign& asset : globals_) planGlobalPictures(pictures, asset);
    pictures.add([this] { return writePictures(Previews::notAvailable(110, 330), {root_ / "overlay110x330.png"}); });
    pictures.add([this] { return writePictures(Previews::notAvailable(100, 300), {root_ / "overlay100x300.png"}); });
    return pictures.run(part(0.08, 0.1));
  }

  void planGlobalPictures(JobQueue& queue, const GlobalAssetDesign& asset) const {
    if (!asset.hasFolder) return;
    for (std::size_t i = 0; i < std::max<std::size_t>(asset.styles.size(), 1); ++i) {
      const StyleDesign* style = asset.styles.empty() ? &asset.plain : &asset.styles[i];
      std::vector<fs::path> files;
      if (!asset.styles.empty()) files.push_back(globalFolder(asset) / previewName(styleId(globalId(asset), *style)));
      if (i == 0) files.push_back(globalFolder(asset) / "preview.png");
      queue.add([this, &asset, style, files] {
        const std::vector<host::ViewItem> items = {previews_->item(shared_.find(globalId(asset)), style->material)};
        return writePictures(previews_->take(items, Previews::around(items, 1), 150, 150), files);
      });
    }
  }

  // One after the other, so that a repository of many does not keep the meshes of all.
  std::string writeCharacters() {
    description_.addGlobalAssets(globals_);
    const double step = 0.9 / static_cast<double>(people_.size());
    for (std::size_t i = 0; i < people_.size(); ++i) {
      const double from = 0.1 + step * static_cast<double>(i);
      if (std::string error = writeCharacter(people_[i], from, from + step); !error.empty()) return error;
    }
    return {};
  }

  std::string writeCharacter(const CharacterDesign& design, double from, double to) {
    const CharacterMaker maker(design, root_);
    MeshStore store(shared_);
    JobQueue queue(options_.threads);
    maker.planMeshes(queue, store, options_.coarseness);
    if (std::string error = queue.run(part(from, mix(from, to, 0.7))); !error.empty()) return error;
    CharacterPictures pictures(maker, globals_, store, *previews_);
    pictures.plan(queue);
    const bool sheet = !options_.contactSheets.empty();
    if (sheet) pictures.planContactSheet(queue, options_.contactSheets / (design.key + ".png"));
    if (std::string error = queue.run(part(mix(from, to, 0.7), to)); !error.empty()) return error;
    if (std::string error = sheet ? pictures.writeContactSheet() : ""; !error.empty()) return error;
    description_.addCharacter(design, maker.placements());
    return maker.writeLibraries();
  }

  std::string writeTexts() {
    if (std::string error = writeGlobalLibraries(); !error.empty()) return error;
    if (std::string error = writeText(root_ / "README.md", repositoryReadme(people_, globals_, options_.seed));
        !error.empty())
      return error;
    return writeText(root_ / "zorvel.xml", description_.text());
  }

  std::string writeGlobalLibraries() const {
    MaterialLibraryWriter shared(PAINTERS_FOLDER);
    for (const GlobalAssetDesign& asset : globals_) {
      MaterialLibraryWriter own(PAINTERS_FOLDER);
      std::vector<StyleDesign> styles = asset.styles;
      if (styles.empty()) styles.push_back(asset.plain);
      for (const StyleDesign& style : styles) (style.library == Library::Own ? own : shared).add(style.material);
      if (!asset.hasFolder || own.isEmpty()) continue;
      if (std::string error = own.write(globalFolder(asset) / "materials.mat"); !error.empty()) return error;
    }
    return shared.write(root_ / "global_assets" / "materials.mat");
  }

  fs::path globalFolder(const GlobalAssetDesign& asset) const { return root_ / "global_assets" / asset.key; }

  fs::path root_;
  SampleOptions options_;
  SampleProgress progress_;
  std::vector<GlobalAssetDesign> globals_;
  std::vector<CharacterDesign> people_;
  MeshStore shared_;
  DescriptionWriter description_;
  std::unique_ptr<Previews> previews_;
};

}  // namespace

std::string writeSampleRepository(const fs::path& folder, const SampleOptions& options,
                                  const SampleProgress& progress) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) return "cannot make the folder " + folder.string() + ": " + error.message();
  return Writer(folder, options, progress).run();
}

}  // namespace samples
