#include "samples/repository/SampleRepository.h"

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <array>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "host/meshes/MeshFile.h"
#include "samples/people/People.h"
#include "tests/samples/repository/RoughRepository.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using support::bytesOf;
using support::Element;
using support::rough;

std::map<std::string, std::string> contentOf(const fs::path& folder) {
  std::map<std::string, std::string> content;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file())
      content[entry.path().lexically_relative(folder).generic_string()] = bytesOf(entry.path());
  }
  return content;
}

class SampleRepository : public testing::Test {
 protected:
  static const fs::path& root() { return support::roughRepository(); }
  static const Element& description() {
    static const Element element = support::readDescription(root());
    return element;
  }
};

std::set<std::string> materialNames(const fs::path& library) {
  std::set<std::string> names;
  if (!fs::exists(library)) return names;
  const auto json = nlohmann::json::parse(bytesOf(library), nullptr, false);
  for (const auto& material : json.value("materials", nlohmann::json::array())) names.insert(material["name"]);
  return names;
}

/// In which of the libraries that are searched for an element the material lies; -1 for none.
int foundIn(const std::string& material, const std::vector<fs::path>& libraries) {
  for (std::size_t i = 0; i < libraries.size(); ++i) {
    if (materialNames(libraries[i]).count(material) > 0) return static_cast<int>(i);
  }
  return -1;
}

class MeshEdges {
 public:
  explicit MeshEdges(const host::Mesh& mesh) {
    std::map<std::array<float, 3>, int> numbers;
    std::vector<int> welded;
    for (const Point3& p : mesh.positions) {
      welded.push_back(numbers.try_emplace({p.x, p.y, p.z}, static_cast<int>(numbers.size())).first->second);
    }
    for (const auto& triangle : mesh.triangles) {
      for (std::size_t i = 0; i < 3; ++i) ++directed_[{welded[triangle[i]], welded[triangle[(i + 1) % 3]]}];
    }
  }

  /// Whether every edge has as many triangles on one side as on the other, so that none is left open. More than one on
  /// each is no hole: sheets touch where vertices nearer than the file's precision have become one.
  bool closed() const {
    return std::all_of(directed_.begin(), directed_.end(), [this](const auto& one) {
      const auto back = directed_.find({one.first.second, one.first.first});
      return back != directed_.end() && back->second == one.second;
    });
  }

 private:
  std::map<std::pair<int, int>, int> directed_;
};

double volume(const host::Mesh& mesh) {
  double sum = 0;
  for (const auto& triangle : mesh.triangles) {
    const Point3& a = mesh.positions[triangle[0]];
    const Point3& b = mesh.positions[triangle[1]];
    const Point3& c = mesh.positions[triangle[2]];
    sum += static_cast<double>(a.x * (b.y * c.z - b.z * c.y) + a.y * (b.z * c.x - b.x * c.z) +
                               a.z * (b.x * c.y - b.y * c.x)) /
           6;
  }
  return sum;
}

TEST_F(SampleRepository, IsTheSameForTheSameSeedWhateverTheNumberOfThreadsAndAnotherForAnotherSeed) {
  const support::TemporaryFolder folder;
  const auto write = [&](std::uint64_t seed, unsigned threads) {
    samples::SampleOptions options = rough(seed, 1);
    options.threads = threads;
    const fs::path root = folder.path() / (std::to_string(seed) + "-" + std::to_string(threads));
    EXPECT_EQ(samples::writeSampleRepository(root, options), "");
    return contentOf(root);
  };
  const auto one = write(1, 1);
  EXPECT_TRUE(write(1, 5) == one) << "with 5 threads";
  // Was written by two threads.
  const auto whole = contentOf(root());
  for (const auto& [path, bytes] : one) {
    if (path == "zorvel.xml" || path == "README.md") continue;
    EXPECT_TRUE(whole.at(path) == bytes) << path << " is not the same in a larger repository";
  }
  const auto other = write(2, 5);
  EXPECT_NE(one.at("maps/weave.png"), other.at("maps/weave.png"));
  EXPECT_EQ(one.at("zorvel.xml"), other.at("zorvel.xml"));
}

TEST_F(SampleRepository, GoesOnWithVariationsOfTheSamePeopleUnderNamesOfTheirOwn) {
  std::set<std::string> keys;
  std::set<std::string> materials;
  std::set<double> statures;
  for (const samples::CharacterDesign& one : samples::people(20)) {
    keys.insert(one.key);
    statures.insert(one.proportions.stature);
    for (const samples::OutfitDesign& outfit : one.outfits) {
      for (const samples::StyleDesign& style : outfit.styles) {
        EXPECT_TRUE(materials.insert(style.material.name).second) << style.material.name << " is there twice";
      }
      EXPECT_TRUE(keys.size() <= 6 || (outfit.hasFolder && outfit.missingPose.empty())) << one.key;
    }
  }
  EXPECT_EQ(keys.size(), 20U);
  EXPECT_EQ(statures.size(), 20U);
  EXPECT_EQ(keys.count("bruno4"), 1U);
}

/// The pictures of one element and of its styles, in its folder.
std::vector<fs::path> ownPictures(const Element& element, const fs::path& folder) {
  std::vector<fs::path> files;
  for (const Element* style : element.all("material")) files.push_back(folder / style->get("preview"));
  if (element.name == "asset") files.push_back(folder / "preview.png");
  return files;
}

/// All pictures that the window looks for when it shows the character.
std::vector<fs::path> picturesOf(const Element& character) {
  const fs::path base = character.get("folder");
  std::vector<fs::path> files = {base / "previews" / "preview.png"};
  const auto add = [&](const std::vector<fs::path>& more) { files.insert(files.end(), more.begin(), more.end()); };
  for (const Element* skin : character.only("skins").all("skin")) add({base / "skin" / skin->get("preview")});
  for (const Element* clothing : character.only("cloth").all("clothing")) {
    const std::string id = clothing->get("id");
    add({base / "previews" / ("preview_" + id + ".png")});
    for (const Element* pose : character.only("poses").all("pose")) {
      add({base / "previews" / (id + "_" + pose->get("id") + ".png")});
    }
    if (clothing->get("folder") != "raincoat") add(ownPictures(*clothing, base / clothing->get("folder")));
  }
  for (const Element* asset : character.only("assets").all("asset")) {
    if (asset->get("type") != "global") add(ownPictures(*asset, base / asset->get("folder")));
  }
  return files;
}

TEST_F(SampleRepository, HasEveryPictureThatTheWindowShows) {
  std::vector<fs::path> files;
  for (const Element* character : description().all("character")) {
    for (const fs::path& file : picturesOf(*character)) files.push_back(file);
  }
  EXPECT_GT(files.size(), 400U);
  for (const fs::path& file : files) {
    EXPECT_FALSE(QImage(QString::fromStdString((root() / file).string())).isNull()) << file;
  }
  EXPECT_EQ(QImage(QString::fromStdString((root() / "overlay100x300.png").string())).size(), QSize(100, 300));
  EXPECT_EQ(QImage(QString::fromStdString((root() / "overlay110x330.png").string())).size(), QSize(110, 330));
}

TEST_F(SampleRepository, KeepsEveryMaterialInALibraryThatIsSearchedForItAndUsesEachOfThem) {
  std::set<int> steps;
  for (const Element* character : description().all("character")) {
    const fs::path base = root() / character->get("folder");
    for (const Element* skin : character->only("skins").all("skin")) {
      EXPECT_EQ(foundIn(skin->get("material"), {base / "skin" / "skin.mat"}), 0) << skin->get("id");
    }
    const auto check = [&](const Element& owner, const Element& named) {
      const int step = foundIn(named.get("material"), {base / owner.get("folder") / "materials.mat",
                                                       base / "materials.mat", base / "props.mat"});
      EXPECT_GE(step, 0) << named.get("id");
      steps.insert(step);
    };
    for (const Element* clothing : character->only("cloth").all("clothing")) {
      if (!fs::exists(base / clothing->get("folder"))) continue;
      EXPECT_GE(clothing->all("material").size(), 3U);
      for (const Element* style : clothing->all("material")) check(*clothing, *style);
    }
    for (const Element* asset : character->only("assets").all("asset")) {
      if (asset->get("type") == "global") continue;
      if (asset->children.empty()) check(*asset, *asset);
      for (const Element* style : asset->all("material")) check(*asset, *style);
    }
  }
  for (const Element* asset : description().only("globalAssets").all("asset")) {
    std::vector<const Element*> styles = asset->all("material");
    if (styles.empty()) styles.push_back(asset);
    for (const Element* style : styles) {
      const int step =
          foundIn(style->get("material"), {root() / "global_assets" / asset->get("folder") / "materials.mat",
                                           root() / "global_assets" / "materials.mat"});
      EXPECT_GE(step, 0) << style->get("id");
      steps.insert(10 + step);
    }
  }
  EXPECT_EQ(steps, (std::set<int>{0, 1, 2, 10, 11}));
}

/// The ids of all elements below, by the element's name; and what they refer to, by the name of what is meant.
struct Names {
  using ByKind = std::map<std::string, std::set<std::string>>;
  ByKind there;
  ByKind meant;

  void read(const Element& element, bool refersToAsset = false) {
    (refersToAsset ? meant["asset"] : there[element.name]).insert(element.get("id"));
    const std::pair<const char*, const char*> references[] = {{"asset_id", "asset"},
                                                              {"assetID", "asset"},
                                                              {"material_id", "material"},
                                                              {"poseID", "pose"},
                                                              {"category", "category"}};
    for (const auto& [attribute, kind] : references) meant[kind].insert(element.get(attribute));
    for (const Element& child : element.children) read(child, element.name == "pose" || child.name == "exclude");
  }
};

TEST_F(SampleRepository, NamesOnlyElementsThatAreThere) {
  for (const Element* character : description().all("character")) {
    Names names;
    names.read(*character);
    for (const auto& [kind, ids] : names.meant) {
      EXPECT_GT(ids.size(), 1U) << "nothing refers to a " << kind;
      for (const std::string& id : ids)
        EXPECT_TRUE(id.empty() || names.there[kind].count(id) == 1) << kind << " " << id;
    }
  }
}

TEST_F(SampleRepository, HasClosedBodiesOnTheGroundOfTheRightHeightAndMeshesThatFaceOutward) {
  std::size_t bytes = 0;
  for (const auto& [path, content] : contentOf(root())) {
    bytes += content.size();
    if (fs::path(path).extension() != ".vrmesh") continue;
    const host::MeshResult file = host::readMeshFile(root() / path);
    ASSERT_TRUE(file.mesh) << path;
    EXPECT_GT(volume(*file.mesh), 0) << path;
    EXPECT_TRUE(MeshEdges(*file.mesh).closed()) << path;
    if (fs::path(path).filename() != "pose.vrmesh") continue;
    EXPECT_NEAR(file.mesh->bounds.pmin.z, 0, 0.9) << path;
    if (path.find("standing") == std::string::npos) continue;
    const std::string key = path.substr(0, path.find('/'));
    for (const samples::CharacterDesign& one : samples::people(6)) {
      if (one.key != key) continue;
      EXPECT_NEAR(file.mesh->bounds.pmax.z, one.proportions.stature, 9) << path;
    }
  }
  EXPECT_LT(bytes, 40U * 1024 * 1024);
}

}  // namespace
