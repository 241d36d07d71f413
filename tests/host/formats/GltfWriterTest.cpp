#include "host/formats/GltfWriter.h"

#include <gtest/gtest.h>
#include <imtl.h>
#include <sys/resource.h>

#include <QImage>
#include <cstring>
#include <limits>
#include <nlohmann/json.hpp>

#include "host/application/Application.h"
#include "host/files/PictureFile.h"
#include "host/formats/GltfMaterials.h"
#include "host/formats/MaterialLibraryFile.h"
#include "host/meshes/MeshFile.h"
#include "host/scene/Geometry.h"
#include "host/scene/Scene.h"
#include "host/services/Listener.h"
#include "host/view/Surfaces.h"
#include "tests/host/meshes/Shapes.h"
#include "tests/support/SmallRepository.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using host::Application;
using host::Node;
using nlohmann::json;

class MeshObject final : public GeomObject, public host::Geometry {
 public:
  explicit MeshObject(std::shared_ptr<const host::Mesh> mesh) : mesh_(std::move(mesh)) {}
  Box3 bounds() const override { return mesh_->bounds; }
  std::shared_ptr<const host::Mesh> mesh() const override { return mesh_; }

 private:
  std::shared_ptr<const host::Mesh> mesh_;
};

class GltfWriter : public testing::Test {
 protected:
  void SetUp() override { Application::instance().reset(); }
  void TearDown() override { Application::instance().reset(); }

  Node& add(const wchar_t* name, const Point3& place) {
    Node* node = Application::instance().scene().create(new MeshObject(square_));
    node->SetName(name);
    Matrix3 tm(TRUE);
    tm.SetTrans(place);
    node->SetNodeTM(0, tm);
    return *node;
  }

  /// Writes the scene and opens the JSON of what was written.
  json write(double metresPerUnit = 0.01) {
    EXPECT_EQ(host::writeGltf(Application::instance().scene().root(), metresPerUnit, file()), "");
    bytes_ = folder_.read("scene.glb");
    std::uint32_t length = 0;
    std::memcpy(&length, bytes_.data() + 12, 4);
    binary_ = 28 + length;
    return json::parse(bytes_.substr(20, length));
  }

  static const json& node(const json& document, const char* name) {
    for (const json& one : document["nodes"]) {
      if (one.value("name", "") == name) return one;
    }
    throw std::runtime_error(name);
  }

  std::filesystem::path file() const { return folder_.path() / "scene.glb"; }

  support::TemporaryFolder folder_;
  std::shared_ptr<const host::Mesh> square_ = std::make_shared<const host::Mesh>(shapes::square());
  std::string bytes_;
  std::size_t binary_ = 0;
};

TEST_F(GltfWriter, PlacesEveryNodeInMetresWhateverTheSceneUnit) {
  Node& parent = add(L"parent", {10, 0, 0});
  Node& child = add(L"child", {10, 20, 30});
  parent.AttachChild(&child);
  write(0.0254);
  const host::MeshResult reading = host::readMeshFile(file());
  ASSERT_TRUE(reading.mesh) << reading.error;
  // Read back in centimetres: two squares of side 2 around x = 10 inches, the second at (20, 30) inches.
  const Box3& box = reading.mesh->bounds;
  EXPECT_NEAR(box.pmin.x, 9 * 2.54F, 1e-3F);
  EXPECT_NEAR(box.pmax.x, 11 * 2.54F, 1e-3F);
  EXPECT_NEAR(box.pmin.y, -1 * 2.54F, 1e-3F);
  EXPECT_NEAR(box.pmax.y, 21 * 2.54F, 1e-3F);
  EXPECT_NEAR(box.pmax.z, 30 * 2.54F, 1e-3F);
  for (const Point3& normal : reading.mesh->normals) EXPECT_GT(normal.z, 0.999F);
}

TEST_F(GltfWriter, KeepsHierarchyNamesAndUserProperties) {
  Node& parent = add(L"Zo\u00EB", {1, 2, 3});
  Node& child = add(L"child", {1, 2, 4});
  parent.AttachChild(&child);
  child.SetUserPropString(L"style", L"\"summer\"");
  const json document = write();
  const json& written = node(document, "Zo\xC3\xAB");
  ASSERT_EQ(written["children"].size(), 1U);
  const json& kid = document["nodes"][written["children"][0].get<std::size_t>()];
  EXPECT_EQ(kid["name"], "child");
  EXPECT_EQ(kid["matrix"][14], 1.0);
  EXPECT_EQ(kid["extras"]["style"], "\"summer\"");
  EXPECT_FALSE(written.contains("extras"));
}

TEST_F(GltfWriter, GivesAMovedObjectANodeOfItsOwnBesideTheChildren) {
  Node& moved = add(L"moved", {5, 0, 0});
  moved.Move(0, Matrix3(TRUE), {-5, 0, 0}, FALSE, TRUE, PIV_PIVOT_ONLY, FALSE);
  const json document = write();
  EXPECT_FALSE(node(document, "moved").contains("mesh"));
  EXPECT_EQ(node(document, "moved object")["matrix"][12], 5.0);
  EXPECT_TRUE(node(document, "moved object").contains("mesh"));
}

TEST_F(GltfWriter, StoresAMeshOnceForAllNodesAndMaterials) {
  QImage picture(4, 4, QImage::Format_RGB32);
  picture.fill(Qt::red);
  ASSERT_EQ(host::writePicture(picture, folder_.path() / "skin.png"), "");
  const json map = {{"class", "bitmap"}, {"name", "map"}, {"file", (folder_.path() / "skin.png").u8string()}};
  const json skin = {
      {"name", "Skin"},
      {"class", "standard"},
      {"blocks", {{{{"id", 1}, {"type", "float"}, {"value", 0.25}}, {{"id", 2}, {"type", "float"}, {"value", 0.5}}}}},
      {"subTextures", {nullptr, map}}};
  const json other = {{"name", "Other"}, {"class", "standard"}, {"subTextures", {nullptr, map}}};
  const json both = {{"name", "Both"}, {"class", "multi"}, {"subMaterials", {skin, other}}};
  folder_.write("some.mat",
                json{{"format", "zorvel-material-library"}, {"version", 1}, {"materials", {skin, both}}}.dump());
  const auto library = host::readMaterialLibrary(folder_.wide() + L"\\some.mat");
  ASSERT_EQ(library.error, "");

  add(L"one", {}).SetMtl(library.materials[0].get());
  add(L"two", {3, 0, 0}).SetMtl(library.materials[0].get());
  add(L"three", {6, 0, 0}).SetMtl(library.materials[1].get());
  const json document = write();

  EXPECT_EQ(node(document, "one")["mesh"], node(document, "two")["mesh"]);
  EXPECT_NE(node(document, "one")["mesh"], node(document, "three")["mesh"]);
  ASSERT_EQ(document["meshes"].size(), 2U);
  const json& first = document["meshes"][0]["primitives"];
  const json& second = document["meshes"][1]["primitives"];
  ASSERT_EQ(first.size(), 2U);
  EXPECT_EQ(first[0]["attributes"], second[1]["attributes"]);
  EXPECT_EQ(first[1]["indices"], second[1]["indices"]);
  EXPECT_EQ(first[0]["material"], first[1]["material"]);
  EXPECT_NE(second[0]["material"], second[1]["material"]);
  EXPECT_EQ(document["accessors"].size(), 5U);

  const json& material = document["materials"][first[0]["material"].get<std::size_t>()];
  EXPECT_EQ(material["name"], "Skin");
  EXPECT_EQ(material["alphaMode"], "BLEND");
  EXPECT_EQ(material["pbrMetallicRoughness"]["baseColorFactor"][3], 0.5);
  EXPECT_EQ(material["pbrMetallicRoughness"]["roughnessFactor"], 0.25);
  ASSERT_EQ(document["images"].size(), 1U);
  EXPECT_EQ(document["images"][0]["mimeType"], "image/png");
  const json& view = document["bufferViews"][document["images"][0]["bufferView"].get<std::size_t>()];
  EXPECT_EQ(bytes_.substr(binary_ + view["byteOffset"].get<std::size_t>(), view["byteLength"]),
            folder_.read("skin.png"));
}

TEST_F(GltfWriter, WritesNoNumberThatIsNoneAndNoMeshThatIsNowhere) {
  Node& lost = add(L"lost", {std::numeric_limits<float>::infinity(), 0, 0});
  Node& child = add(L"child", {});
  lost.AttachChild(&child, 0);
  add(L"far", {1e38F, 1e38F, 1e38F});
  const json document = write();
  for (const char* name : {"lost", "child"}) EXPECT_FALSE(node(document, name).contains("mesh")) << name;
  EXPECT_TRUE(node(document, "far").contains("mesh"));
}

/// As long as it lives, files can be looked at and not opened.
class NoMoreFiles {
 public:
  NoMoreFiles() {
    ::getrlimit(RLIMIT_NOFILE, &before_);
    const rlimit none{0, before_.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &none);
  }
  ~NoMoreFiles() { ::setrlimit(RLIMIT_NOFILE, &before_); }
  NoMoreFiles(const NoMoreFiles&) = delete;
  NoMoreFiles& operator=(const NoMoreFiles&) = delete;

 private:
  rlimit before_{};
};

TEST_F(GltfWriter, NamesATextureThatCannotBeReadAgainAndStoresWhatIsDrawnOfIt) {
  QImage picture(4, 4, QImage::Format_RGB32);
  picture.fill(Qt::red);
  const std::string name = (folder_.path() / "skin.png").u8string();
  ASSERT_EQ(host::writePicture(picture, name), "");
  folder_.write("some.mat", support::materialLibrary(support::texturedMaterial("Skin", name)));
  const auto library = host::readMaterialLibrary(folder_.wide() + L"\\some.mat");
  ASSERT_EQ(library.error, "");
  Mtl* material = library.materials.front().get();
  const std::vector<host::Surface> drawn = host::surfacesOf(material);
  Application::instance().listener().clear();
  tinygltf::Model model;
  {
    const NoMoreFiles full;
    host::GltfMaterials(model).indexOf(material, 0);
  }
  ASSERT_EQ(Application::instance().listener().lines().size(), 1U);
  EXPECT_NE(Application::instance().listener().lines().front().find("cannot be read a second time"), std::string::npos);
  ASSERT_EQ(model.images.size(), 1U);
  EXPECT_EQ(model.images.front().mimeType, "image/png");
}

TEST_F(GltfWriter, LeavesTheEarlierFileWhenItCannotWrite) {
  folder_.write("scene.glb", "earlier");
  Node& root = Application::instance().scene().root();
  EXPECT_NE(host::writeGltf(root, 0.0, file()), "");
  EXPECT_EQ(folder_.read("scene.glb"), "earlier");
  EXPECT_NE(host::writeGltf(root, 0.01, folder_.path() / "missing" / "scene.glb"), "");
  EXPECT_EQ(host::writeGltf(root, 0.01, file()), "");
}

}  // namespace
