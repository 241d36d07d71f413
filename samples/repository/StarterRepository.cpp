#include "samples/repository/StarterRepository.h"

#include "samples/body/BodyPieces.h"
#include "samples/clothing/Wardrobe.h"
#include "samples/repository/MaterialLibraryWriter.h"
#include "samples/repository/Previews.h"
#include "samples/repository/RepositoryFiles.h"
#include "samples/repository/Textures.h"

namespace samples {
namespace {

namespace fs = std::filesystem;

const char* const DESCRIPTION = R"(<?xml version="1.0" encoding="utf-8"?>
<!--
  A repository of characters. Lengths are centimetres, Z is up, and characters face -Y.

  An "id" names an element for the others and is part of file names: letters, digits, - and _ are safe everywhere, and
  letter case must be right. A "name" is what people read. A "folder" lies in the folder of what the element belongs to.
  A "material" is looked for by its name in the libraries, a file of the same name as its textures in the folder maps.
  Names of materials are best begun with that of the character: a scene knows each name once.
-->
<zorvel>
  <!--
    What all characters share. Each <asset id name folder type="global" material> has its folder in global_assets, with
    asset.vrmesh, preview.png (150 x 150) and materials.mat. A character that offers it says so in its own <assets>.
  -->
  <globalAssets>
  </globalAssets>

  <!-- One element for each character. Its folder holds "previews", "skin" and the folders of everything below. -->
  <character id="mannequin" name="Mannequin" folder="mannequin">
    <!-- How the body looks. The preview (150 x 150) lies in the folder skin, and so does skin.mat with the materials. -->
    <skins name="Skin">
      <skin id="plain" name="Plain" preview="plain.png" material="Mannequin Plain"/>
    </skins>

    <!--
      What is worn. previews/preview_<clothing>.png (110 x 330) stands for it; the folder holds a mesh for each pose,
      <clothing>_<pose>.vrmesh, and materials.mat. Each <material> is a style, with a preview (100 x 300) in the folder.
      <exclude id="…"/> hides an asset as long as the clothing is worn; <select asset_id="…" material_id="…"/> chooses
      one along with it.
    -->
    <cloth name="Clothing">
      <clothing id="leisure" name="Leisure" folder="leisure">
        <material id="leisure_blue" name="Blue" preview="blue.png" material="Mannequin Leisure Blue"/>
      </clothing>
    </cloth>

    <!--
      How the body stands: the folder holds pose.vrmesh, and previews/<clothing>_<pose>.png (100 x 300) shows it.
      An <asset id="…"/> in a pose is one that the pose cannot do without, such as a chair.
    -->
    <poses name="Pose">
      <pose id="standing" name="Standing" folder="standing"/>
    </poses>

    <!-- Pages of assets: selection="multiple" offers several at once, required="true" always keeps one chosen. -->
    <categories>
    </categories>

    <!--
      Things. The folder holds preview.png (150 x 150), materials.mat and, by type:
        common    asset.vrmesh, placed in each pose by a row of the matrix below
        specific  <pose>.vrmesh, modelled where it belongs in each pose
        global    nothing: "globalID" names one of the <globalAssets>, which rows of the matrix place
    -->
    <assets>
    </assets>

    <!-- Where an asset is in a pose: centimetres and degrees. Without a row it is not offered in that pose. -->
    <AssetMatrix>
    </AssetMatrix>
  </character>
</zorvel>
)";

constexpr double COARSENESS = 1;
constexpr int TEXTURE_SIZE = 256;
constexpr int SAMPLES_PER_PIXEL = 12;

class Starter {
 public:
  explicit Starter(fs::path root)
      : root_(std::move(root)),
        previews_({{SKIN_TEXTURE, std::make_shared<host::Texture>(skinTexture_)},
                   {CLOTH_TEXTURE, std::make_shared<host::Texture>(clothTexture_)}},
                  SAMPLES_PER_PIXEL) {}

  std::string run() {
    using Step = std::string (Starter::*)() const;
    // The description comes last, so that there is none without what it names.
    for (const Step step : {&Starter::writeMeshes, &Starter::writeLibraries, &Starter::writeMaps,
                            &Starter::writeCharacterPictures, &Starter::writeOverlays, &Starter::writeDescription}) {
      if (std::string error = (this->*step)(); !error.empty()) return error;
    }
    return {};
  }

 private:
  static constexpr const char* SKIN_TEXTURE = "mannequin_plain.png";
  static constexpr const char* CLOTH_TEXTURE = "mannequin_leisure.png";

  static Proportions proportions() {
    Proportions proportions;
    proportions.stature = 172;
    proportions.femininity = 0.5;
    return proportions;
  }

  static Face face() {
    Face face;
    face.skin = {206, 176, 150};
    face.lips = {178, 124, 108};
    face.brows = {92, 78, 66};
    face.iris = {96, 92, 84};
    return face;
  }

  static Material skin() {
    return multi("Mannequin Plain", {plain("Mannequin Plain Complexion", Qt::white, 0.6, SKIN_TEXTURE),
                                     plain("Mannequin Plain Hair", {92, 78, 66}, 0.6)});
  }

  static Material style() {
    return multi("Mannequin Leisure Blue",
                 {plain("Mannequin Leisure Blue Shirt", {88, 124, 168}, 0.9, CLOTH_TEXTURE),
                  plain("Mannequin Leisure Blue Trousers", {70, 72, 80}, 0.9, CLOTH_TEXTURE)});
  }

  fs::path folder() const { return root_ / "mannequin"; }

  std::string writeMeshes() const {
    if (std::string error = writeMesh(*bodyMesh_, folder() / "standing" / "pose.vrmesh"); !error.empty()) return error;
    return writeMesh(*clothMesh_, folder() / "leisure" / "leisure_standing.vrmesh");
  }

  std::string writeLibraries() const {
    const auto write = [](const Material& material, const fs::path& file) {
      MaterialLibraryWriter library("maps");
      library.add(material);
      return library.write(file);
    };
    if (std::string error = write(skin(), folder() / "skin" / "skin.mat"); !error.empty()) return error;
    return write(style(), folder() / "leisure" / "materials.mat");
  }

  std::string writeMaps() const {
    if (std::string error = writePictures(skinTexture_, {root_ / "maps" / SKIN_TEXTURE}); !error.empty()) return error;
    return writePictures(clothTexture_, {root_ / "maps" / CLOTH_TEXTURE});
  }

  std::string writeCharacterPictures() const {
    const std::vector<host::ViewItem> figure = {previews_.item(bodyMesh_, skin()), previews_.item(clothMesh_, style())};
    const Previews::View whole{{0, 0, 88}, 206};
    const HeadShape& head = body_->headShape();
    const Previews::View portrait{head.place(0, 0, 0.36), 1.85 * head.height(), 20, 2, false};
    const struct {
      Previews::View view;
      int width;
      int height;
      std::vector<fs::path> files;
    } pictures[] = {
        {whole, 110, 330, {folder() / "previews" / "preview_leisure.png"}},
        {whole, 100, 300, {folder() / "previews" / "leisure_standing.png", folder() / "leisure" / "blue.png"}},
        {portrait, 150, 150, {folder() / "skin" / "plain.png"}}};
    for (const auto& picture : pictures) {
      const QImage image = previews_.take(figure, picture.view, picture.width, picture.height);
      if (std::string error = writePictures(image, picture.files); !error.empty()) return error;
    }
    return {};
  }

  std::string writeOverlays() const {
    std::string error = writePictures(Previews::notAvailable(110, 330), {root_ / "overlay110x330.png"});
    return error.empty() ? writePictures(Previews::notAvailable(100, 300), {root_ / "overlay100x300.png"}) : error;
  }

  std::string writeDescription() const { return writeText(root_ / "zorvel.xml", DESCRIPTION); }

  using BodyPtr = std::shared_ptr<const ImplicitBody>;
  using MeshPtr = std::shared_ptr<const host::Mesh>;

  fs::path root_;
  QImage skinTexture_ = Textures(1, TEXTURE_SIZE).skin(face());
  QImage clothTexture_ = Textures(1, TEXTURE_SIZE).weave();
  Previews previews_;
  BodyPtr body_ = std::make_shared<ImplicitBody>(Skeleton(proportions(), samplePoses(proportions().femininity).front()),
                                                 HairStyle::Short);
  MeshPtr bodyMesh_ = std::make_shared<host::Mesh>(meshPieces(bodyPieces(body_), COARSENESS));
  MeshPtr clothMesh_ =
      std::make_shared<host::Mesh>(meshPieces(outfitPieces(body_, Outfit::TeeAndTrousers), COARSENESS));
};

}  // namespace

std::string writeStarterRepository(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) return "cannot make the folder " + folder.string() + ": " + error.message();
  return Starter(folder).run();
}

}  // namespace samples
