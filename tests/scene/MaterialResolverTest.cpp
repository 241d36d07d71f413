#include "scene/MaterialResolver.h"

#include <gtest/gtest.h>
#include <max.h>
#include <stdmat.h>

#include "host/application/Application.h"
#include "host/materials/MaterialClasses.h"
#include "host/materials/MaterialWalk.h"
#include "host/scene/CircleShape.h"
#include "host/scene/Scene.h"
#include "scene/BuildContext.h"
#include "tests/support/LogStoreFixture.h"
#include "tests/support/SmallRepository.h"

namespace {

using host::Application;
using ZORVEL::BuildContext;
using ZORVEL::MaterialResolver;

class MaterialResolution : public support::LogStoreFixture {
 protected:
  void SetUp() override {
    LogStoreFixture::SetUp();
    Application::instance().reset();
    root_ = repository_.root();
    characterFolder_ = root_ + L"\\anna";
    maps_ = root_ + L"maps\\";
    context_.characterFolder = characterFolder_.c_str();
    context_.repositoryPath = root_.c_str();
    context_.globalMaps = maps_.c_str();
  }
  void TearDown() override {
    Application::instance().reset();
    LogStoreFixture::TearDown();
  }

  static INode* addNode() { return Application::instance().scene().create(new host::CircleShape); }
  /// Writes a library for the clothing and resolves one of its materials onto a new node.
  INode* resolve(const wchar_t* name) {
    INode* node = addNode();
    MaterialResolver::Resolve(name, characterFolder_ + L"\\summer\\materials.mat", node, context_);
    return node;
  }
  void writeLibrary(const std::string& materials) {
    repository_.folder().write("anna/summer/materials.mat", support::materialLibrary(materials));
  }
  /// Relative to the folder of textures where they are in it.
  std::vector<std::wstring> bitmapsOf(Mtl& material) const {
    std::vector<std::wstring> files;
    host::forEachBitmap(material, [&](BitmapTex& bitmap) {
      const std::wstring file = bitmap.GetMapName();
      files.push_back(file.compare(0, maps_.size(), maps_) == 0 ? file.substr(maps_.size()) : L"elsewhere: " + file);
    });
    return files;
  }
  using Files = std::vector<std::wstring>;

  support::SmallRepository repository_;
  std::wstring root_;
  std::wstring characterFolder_;
  std::wstring maps_;
  BuildContext context_;
};

TEST_F(MaterialResolution, SearchesOwnLibraryThenTheCharactersThenItsProps) {
  EXPECT_EQ(bitmapsOf(*resolve(L"Blue")->GetMtl()), Files{L"blue.png"});
  EXPECT_EQ(bitmapsOf(*resolve(L"Canvas")->GetMtl()), Files{L"canvas.png"});
  clearLog();
  EXPECT_EQ(bitmapsOf(*resolve(L"From props")->GetMtl()), Files{L"props.png"});
  expectLogged(ZORVEL::DEBUG_INFO, characterFolder_ + L"\\materials.mat");
  expectLogged(ZORVEL::DEBUG_INFO, characterFolder_ + L"\\props.mat");
  expectLogged(ZORVEL::DEBUG_INFO, L"Found material in lib");
  MSTR name(L"From props");
  EXPECT_EQ(GetCOREInterface()->GetMaterialLibrary().FindMtlByName(name), 0)
      << "the last library stays the current one";
  EXPECT_EQ(resolve(L"Oak")->GetMtl(), nullptr) << "only assets that all share look in the repository's library";
  expectLogged(ZORVEL::DEBUG_INFO, L"Could not find material");
  INode* shared = addNode();
  MaterialResolver::ResolveGlobal(L"Oak", root_ + L"\\global_assets\\bench\\materials.mat", shared, context_);
  EXPECT_EQ(bitmapsOf(*shared->GetMtl()), Files{L"oak.png"});
}

TEST_F(MaterialResolution, TakesAMaterialOfTheSceneAsItIs) {
  INode* first = resolve(L"Blue");
  auto* bitmap = static_cast<BitmapTex*>(first->GetMtl()->GetSubTexmap(host::DIFFUSE_SLOT));
  bitmap->SetMap({L"X:\\kept.png", MaxSDK::AssetManagement::kBitmapAsset});
  std::filesystem::remove(repository_.folder().path() / "anna/summer/materials.mat");
  INode* second = resolve(L"Blue");
  EXPECT_EQ(second->GetMtl(), first->GetMtl());
  EXPECT_STREQ(bitmap->GetMapName(), L"X:\\kept.png");
  expectLogged(ZORVEL::DEBUG_INFO, L"Found material!");
}

TEST_F(MaterialResolution, RedirectsBitmapsInSlotsParametersNestedMapsAndMaterials) {
  const std::string bitmap = R"({"class": "bitmap", "file": "C:\\x\\)";
  writeLibrary(R"({"name": "Deep", "class": [1, 2],
    "subTextures": [)" +
               bitmap + R"(slot.png"}, null],
    "blocks": [[{"id": 5, "type": "texmap", "value": {"class": [3, 4],
                  "blocks": [[{"id": 1, "type": "texmap", "value": )" +
               bitmap + R"(nested.png"}},
                              {"id": 2, "type": "texmap", "value": null}]]}},
                {"id": 6, "type": "material", "value": {"name": "Coat", "class": "standard",
                  "subTextures": [null, )" +
               bitmap + R"(coat.tar.png"}]}}]]},
    {"name": "Parts", "class": "multi", "subMaterials": [null, {"name": "Part", "class": "standard",
      "subTextures": [null, )" +
               bitmap + R"(part.png"}]}]})");
  Mtl* deep = resolve(L"Deep")->GetMtl();
  ASSERT_NE(deep, nullptr);
  EXPECT_EQ(bitmapsOf(*deep), (Files{L"slot.png", L"nested.png"}));
  Mtl* coat = nullptr;
  Interval valid = FOREVER;
  deep->GetParamBlock(0)->GetValue(6, 0, coat, valid);
  EXPECT_EQ(bitmapsOf(*coat), Files{L"coat.tar.png"});
  Mtl* parts = resolve(L"Parts")->GetMtl();
  ASSERT_NE(parts, nullptr);
  EXPECT_EQ(bitmapsOf(*parts->GetSubMtl(1)), Files{L"part.png"});
}

TEST_F(MaterialResolution, BringsTheScaledLengthIntoSceneUnitsOnceForEachMaterial) {
  const std::string scaled = R"("class": "scaled", "blocks": [[{"id": 22, "type": "float", "value": 2.54},
      {"id": 21, "type": "float", "value": 7}, {"id": 10, "type": "texmap", "value": {"class": "bitmap", "file": "a.png"}}]])";
  writeLibrary(R"({"name": "Wax", )" + scaled + R"(}, {"name": "Plain", "class": [1, 2],
      "blocks": [[{"id": 22, "type": "float", "value": 2.54}]]})");
  SetMasterUnitInfo(UNITS_INCHES, 1.0F);
  const auto parameter = [](Mtl* material, ParamID id) {
    float value = 0.0F;
    Interval valid = FOREVER;
    material->GetParamBlock(0)->GetValue(id, 0, value, valid);
    return value;
  };
  Mtl* wax = resolve(L"Wax")->GetMtl();
  EXPECT_NEAR(parameter(wax, 22), 1.0F, 1e-6F);
  EXPECT_EQ(parameter(wax, 21), 7.0F);
  EXPECT_EQ(bitmapsOf(*wax), Files{L"a.png"});
  EXPECT_EQ(resolve(L"Wax")->GetMtl(), wax);
  EXPECT_NEAR(parameter(wax, 22), 1.0F, 1e-6F);
  EXPECT_EQ(parameter(resolve(L"Plain")->GetMtl(), 22), 2.54F);
}

TEST_F(MaterialResolution, DoesNothingWithoutANodeOrAName) {
  MaterialResolver::Resolve(L"Blue", characterFolder_ + L"\\summer\\materials.mat", nullptr, context_);
  INode* node = addNode();
  MaterialResolver::Resolve(nullptr, characterFolder_ + L"\\summer\\materials.mat", node, context_);
  EXPECT_EQ(node->GetMtl(), nullptr);
}

}  // namespace
