#include "samples/SampleRepository.h"

#include <cstdio>

#include "host/meshes/MeshFileWriter.h"
#include "samples/CharacterMaker.h"
#include "samples/MaterialLibraryWriter.h"
#include "samples/Naming.h"
#include "samples/PictureFile.h"
#include "samples/TextFile.h"

namespace samples {
namespace {

namespace fs = std::filesystem;

std::map<std::string, QImage> drawTextures(const SampleOptions& options,
                                           const std::vector<CharacterDesign>& characters) {
  const Textures draw(options.seed, std::clamp(static_cast<int>(512 / options.coarseness), 64, 512));
  std::map<std::string, QImage> maps;
  maps["weave.png"] = draw.weave();
  maps["knit.png"] = draw.knit();
  maps["leather.png"] = draw.leather();
  maps["hair.png"] = draw.stripes(QColor(255, 255, 255), QColor(214, 210, 206), 60, 0.5, true);
  maps["wood.png"] = draw.wood(QColor(255, 250, 244));
  maps["straw.png"] = draw.straw(QColor(226, 196, 140));
  maps["denim_blue.png"] = draw.denim(QColor(80, 106, 148));
  maps["denim_dark.png"] = draw.denim(QColor(46, 58, 88));
  maps["flowers_meadow.png"] = draw.flowers(QColor(240, 232, 214), QColor(206, 92, 96), QColor(240, 196, 92));
  maps["stripes_marine.png"] = draw.stripes(QColor(34, 52, 88), QColor(236, 236, 232), 3, 0.28, false);
  maps["stripes_breton.png"] = draw.stripes(QColor(238, 236, 228), QColor(40, 56, 92), 4, 0.34, false);
  maps["dots.png"] = draw.dots(QColor(44, 58, 92), QColor(236, 232, 222), 4, 0.17);
  maps["pinstripe.png"] = draw.stripes(QColor(44, 52, 78), QColor(150, 158, 178), 6, 0.07, true);
  maps["tweed.png"] = draw.tweed(QColor(112, 96, 76), QColor(188, 172, 142));
  maps["tie_claret.png"] = draw.stripes(QColor(128, 32, 42), QColor(196, 170, 112), 4, 0.14, false);
  maps["check_red.png"] = draw.check(QColor(156, 44, 46), QColor(40, 40, 48), QColor(224, 196, 130), 2);
  for (const CharacterDesign& character : characters) {
    for (const SkinDesign& skin : character.skins) maps[skinId(character, skin) + ".png"] = draw.skin(skin.face);
  }
  return maps;
}

class Writer {
 public:
  Writer(const fs::path& folder, const SampleOptions& options, const SampleProgress& progress)
      : m_root(folder), m_options(options), m_progress(progress), m_globals(globalAssetDesigns()) {
    for (const CharacterDesign& design : {annaDesign(), brunoDesign()}) {
      m_characters.push_back(std::make_unique<CharacterMaker>(design, m_globals, folder));
    }
  }

  std::string run() {
    using Step = std::string (Writer::*)();
    for (const Step step :
         {&Writer::writeTextures, &Writer::writeMeshes, &Writer::writeTexts, &Writer::writePictures}) {
      if (std::string error = (this->*step)(); !error.empty()) return error;
    }
    tell(1);
    return {};
  }

 private:
  void tell(double share) const {
    if (m_progress) m_progress(share);
  }
  Crew::Progress part(double from, double to) const {
    return [this, from, to](double share) { tell(mix(from, to, share)); };
  }

  std::string writeTextures() {
    std::vector<CharacterDesign> designs;
    for (const auto& character : m_characters) designs.push_back(character->design());
    Previews::Textures textures;
    for (const auto& [name, image] : drawTextures(m_options, designs)) {
      if (std::string error = writePicture(image, {m_root / "maps" / name}); !error.empty()) return error;
      textures[name] = std::make_shared<host::Texture>(image);
    }
    m_previews = std::make_unique<Previews>(std::move(textures), m_options.previewSamples);
    return {};
  }

  std::string writeMeshes() {
    Crew crew(m_options.threads);
    for (const auto& character : m_characters) character->planMeshes(crew, m_meshes, m_options.coarseness);
    const auto body = std::make_shared<ImplicitBody>(
        Skeleton(m_characters.front()->design().proportions, samplePoses(1).front()), HairStyle::Short);
    for (const GlobalAssetDesign& asset : m_globals) {
      if (!asset.hasFolder) continue;
      crew.add([this, &asset, body]() -> std::string {
        host::Mesh mesh = meshPieces(propPieces(asset.prop, *body), m_options.coarseness);
        const fs::path file = globalFolder(asset) / "asset.vrmesh";
        std::error_code error;
        fs::create_directories(file.parent_path(), error);
        std::string failed = host::writeMeshFile(mesh, file);
        m_meshes.put(globalId(asset), std::move(mesh));
        return failed;
      });
    }
    return crew.run(part(0.05, 0.6));
  }

  std::string writeTexts() {
    DescriptionWriter description;
    description.addGlobalAssets(m_globals);
    for (const auto& character : m_characters) {
      if (std::string error = character->writeLibraries(); !error.empty()) return error;
      description.addCharacter(character->design(), character->placements());
    }
    if (std::string error = writeGlobalLibraries(); !error.empty()) return error;
    if (std::string error = writeTextFile(m_root / "README.md", readme()); !error.empty()) return error;
    return writeTextFile(m_root / "zorvel.xml", description.text());
  }

  std::string writeGlobalLibraries() const {
    MaterialLibraryWriter shared("D:\\textures\\shared");
    for (const GlobalAssetDesign& asset : m_globals) {
      MaterialLibraryWriter own("D:\\textures\\shared");
      for (const StyleDesign& style : asset.styles) (style.library == Library::Own ? own : shared).add(style.material);
      if (!asset.hasFolder || own.isEmpty()) continue;
      if (std::string error = own.write(globalFolder(asset) / "materials.mat"); !error.empty()) return error;
    }
    return shared.write(m_root / "global_assets" / "materials.mat");
  }

  std::string writePictures() {
    Crew crew(m_options.threads);
    for (const auto& character : m_characters) character->planPictures(crew, m_meshes, *m_previews);
    for (const GlobalAssetDesign& asset : m_globals) {
      if (!asset.hasFolder) continue;
      for (const StyleDesign& style : asset.styles) {
        crew.add([this, &asset, &style] {
          const std::vector<host::ViewItem> items = {m_previews->item(m_meshes.find(globalId(asset)), style.material)};
          const QImage picture = m_previews->take(items, Previews::around(items, 1), 150, 150);
          std::vector<fs::path> files = {globalFolder(asset) / previewName(styleId(globalId(asset), style))};
          if (&style == &asset.styles.front()) files.push_back(globalFolder(asset) / "preview.png");
          return writePicture(picture, files);
        });
      }
    }
    crew.add([this] { return writePicture(Previews::notAvailable(110, 330), {m_root / "overlay110x330.png"}); });
    crew.add([this] { return writePicture(Previews::notAvailable(100, 300), {m_root / "overlay100x300.png"}); });
    return crew.run(part(0.6, 1.0));
  }

  fs::path globalFolder(const GlobalAssetDesign& asset) const { return m_root / "global_assets" / asset.key; }

  std::string readme() const {
    return "# Sample repository\n\n"
           "Two characters, Anna and Bruno, with poses, clothing, skins and assets, made by `zorvel sample` with the "
           "seed " +
           std::to_string(m_options.seed) +
           ".\nEverything here is computed; nothing was photographed, scanned or modelled by hand. Lengths are "
           "centimetres, Z is "
           "up,\nand the characters face -Y.\n\n"
           "## What is missing on purpose\n\n"
           "A repository that people really use is never complete. This one leaves out\n\n"
           "- the folder `anna\\coat`: the clothing \"Winter Coat\" is shown as not available;\n"
           "- the mesh `bruno\\hoodie\\bruno_hoodie_bruno_sitting.vrmesh`: \"Hoodie and Chinos\" cannot be worn "
           "sitting;\n"
           "- the folder `global_assets\\umbrella`: the asset \"Umbrella\" is not offered.\n\n"
           "## Where things are\n\n"
           "- `zorvel.xml` describes everything.\n"
           "- `<character>\\<pose>\\pose.vrmesh` is the body, `<character>\\skin\\skin.mat` its skins.\n"
           "- `<character>\\<clothing>` and `<character>\\<asset>` hold meshes, a material library and pictures.\n"
           "- `<character>\\materials.mat` and `<character>\\props.mat` hold materials that are not in a folder's own "
           "library.\n"
           "- `global_assets` holds what all characters share.\n"
           "- `maps` holds the textures. The libraries name other folders, as libraries do that come from another "
           "machine.\n";
  }

  fs::path m_root;
  SampleOptions m_options;
  SampleProgress m_progress;
  std::vector<GlobalAssetDesign> m_globals;
  std::vector<std::unique_ptr<CharacterMaker>> m_characters;
  MeshStore m_meshes;
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
