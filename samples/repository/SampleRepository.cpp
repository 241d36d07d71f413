#include "samples/repository/SampleRepository.h"

#include "samples/people/People.h"
#include "samples/repository/CharacterPictures.h"
#include "samples/repository/MaterialLibraryWriter.h"
#include "samples/repository/Naming.h"
#include "samples/repository/PictureFile.h"
#include "samples/repository/RepositoryReadme.h"
#include "samples/repository/TextFile.h"
#include "samples/repository/TextureSet.h"

namespace samples {
namespace {

namespace fs = std::filesystem;

class Writer {
 public:
  Writer(const fs::path& folder, const SampleOptions& options, const SampleProgress& progress)
      : m_root(folder),
        m_options(options),
        m_progress(progress),
        m_globals(globalAssetDesigns()),
        m_people(people(std::clamp(options.characters, 1, 1000))) {}

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
  void tell(double share) const {
    if (m_progress) m_progress(share);
  }
  JobQueue::Progress part(double from, double to) const {
    return [this, from, to](double share) { tell(mix(from, to, share)); };
  }

  std::string writeTextures() {
    JobQueue queue(m_options.threads);
    Previews::Textures textures;
    const auto images = drawTextures(m_options.seed, m_options.coarseness, m_people);
    for (const auto& [name, image] : images) {
      textures[name] = std::make_shared<host::Texture>(image);
      queue.add([this, file = m_root / "maps" / name, &picture = image] { return writePicture(picture, {file}); });
    }
    m_previews = std::make_unique<Previews>(std::move(textures), m_options.previewSamples);
    return queue.run(part(0, 0.04));
  }

  std::string writeGlobalAssets() {
    JobQueue meshes(m_options.threads);
    const auto body = std::make_shared<ImplicitBody>(Skeleton(m_people.front().proportions, samplePoses(1).front()),
                                                     HairStyle::Short);
    for (const GlobalAssetDesign& asset : m_globals) {
      if (!asset.hasFolder) continue;
      meshes.add(meshJob(globalFolder(asset) / "asset.vrmesh", globalId(asset), m_shared, m_options.coarseness,
                         [&asset, body] { return propPieces(asset.prop, *body); }));
    }
    if (std::string error = meshes.run(part(0.04, 0.08)); !error.empty()) return error;
    JobQueue pictures(m_options.threads);
    for (const GlobalAssetDesign& asset : m_globals) planGlobalPictures(pictures, asset);
    pictures.add([this] { return writePicture(Previews::notAvailable(110, 330), {m_root / "overlay110x330.png"}); });
    pictures.add([this] { return writePicture(Previews::notAvailable(100, 300), {m_root / "overlay100x300.png"}); });
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
        const std::vector<host::ViewItem> items = {m_previews->item(m_shared.find(globalId(asset)), style->material)};
        return writePicture(m_previews->take(items, Previews::around(items, 1), 150, 150), files);
      });
    }
  }

  // One after the other, so that a repository of many does not keep the meshes of all.
  std::string writeCharacters() {
    m_description.addGlobalAssets(m_globals);
    const double step = 0.9 / static_cast<double>(m_people.size());
    for (std::size_t i = 0; i < m_people.size(); ++i) {
      const double from = 0.1 + step * static_cast<double>(i);
      if (std::string error = writeCharacter(m_people[i], from, from + step); !error.empty()) return error;
    }
    return {};
  }

  std::string writeCharacter(const CharacterDesign& design, double from, double to) {
    const CharacterMaker maker(design, m_root);
    MeshStore store(m_shared);
    JobQueue queue(m_options.threads);
    maker.planMeshes(queue, store, m_options.coarseness);
    if (std::string error = queue.run(part(from, mix(from, to, 0.7))); !error.empty()) return error;
    CharacterPictures pictures(maker, m_globals, store, *m_previews);
    pictures.plan(queue);
    const bool sheet = !m_options.contactSheets.empty();
    if (sheet) pictures.planContactSheet(queue, m_options.contactSheets / (design.key + ".png"));
    if (std::string error = queue.run(part(mix(from, to, 0.7), to)); !error.empty()) return error;
    if (std::string error = sheet ? pictures.writeContactSheet() : ""; !error.empty()) return error;
    m_description.addCharacter(design, maker.placements());
    return maker.writeLibraries();
  }

  std::string writeTexts() {
    if (std::string error = writeGlobalLibraries(); !error.empty()) return error;
    if (std::string error = writeTextFile(m_root / "README.md", repositoryReadme(m_people, m_globals, m_options.seed));
        !error.empty())
      return error;
    return writeTextFile(m_root / "zorvel.xml", m_description.text());
  }

  std::string writeGlobalLibraries() const {
    MaterialLibraryWriter shared("D:\\textures\\shared");
    for (const GlobalAssetDesign& asset : m_globals) {
      MaterialLibraryWriter own("D:\\textures\\shared");
      std::vector<StyleDesign> styles = asset.styles;
      if (styles.empty()) styles.push_back(asset.plain);
      for (const StyleDesign& style : styles) (style.library == Library::Own ? own : shared).add(style.material);
      if (!asset.hasFolder || own.isEmpty()) continue;
      if (std::string error = own.write(globalFolder(asset) / "materials.mat"); !error.empty()) return error;
    }
    return shared.write(m_root / "global_assets" / "materials.mat");
  }

  fs::path globalFolder(const GlobalAssetDesign& asset) const { return m_root / "global_assets" / asset.key; }

  fs::path m_root;
  SampleOptions m_options;
  SampleProgress m_progress;
  std::vector<GlobalAssetDesign> m_globals;
  std::vector<CharacterDesign> m_people;
  MeshStore m_shared;
  DescriptionWriter m_description;
  std::unique_ptr<Previews> m_previews;
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
