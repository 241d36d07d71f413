#include "scene/MaterialResolver.h"

#include <gtest/gtest.h>
#include <max.h>
#include <stdmat.h>

#include "host/application/Application.h"
#include "host/materials/BitmapTexture.h"
#include "host/materials/MaterialClasses.h"
#include "host/materials/MaterialWalk.h"
#include "host/scene/CircleShape.h"
#include "host/scene/Scene.h"
#include "scene/TextureRedirection.h"
#include "tests/support/LogStoreFixture.h"
#include "tests/support/SmallRepository.h"

namespace {

using host::Application;
using ZORVEL::LibraryState;
using ZORVEL::MaterialResolver;
using ZORVEL::MaterialResult;
using ZORVEL::MaterialState;

class MaterialResolution : public support::LogStoreFixture {
 protected:
  void SetUp() override {
    LogStoreFixture::SetUp();
    Application::instance().reset();
    root_ = repository_.root();
    maps_ = root_ + L"maps\\";
  }
  void TearDown() override {
    Application::instance().reset();
    LogStoreFixture::TearDown();
  }

  static INode* addNode() { return Application::instance().scene().create(new host::CircleShape); }
  MaterialResult resolveOn(INode& node, const wchar_t* name) const {
    const std::wstring anna = root_ + L"anna\\";
    return MaterialResolver::Resolve(
        {name, {anna + L"summer\\materials.mat", anna + L"materials.mat", anna + L"props.mat"}, maps_}, node);
  }
  /// A new node that got the material of that name, if there is one.
  INode* resolve(const wchar_t* name) {
    INode* node = addNode();
    resolveOn(*node, name);
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
  static Files aims(Mtl& material, const std::wstring& maps) {
    Files files;
    for (const auto& one : ZORVEL::TextureRedirection::LookAhead(material, maps).textures) files.push_back(one.to);
    return files;
  }
  using States = std::vector<LibraryState>;
  static States statesOf(const MaterialResult& result) {
    States states;
    for (const ZORVEL::LibrarySearch& one : result.searches) states.push_back(one.state);
    return states;
  }

  support::SmallRepository repository_;
  std::wstring root_;
  std::wstring maps_;
};

TEST_F(MaterialResolution, SearchesTheLibrariesInTheirOrder) {
  EXPECT_EQ(bitmapsOf(*resolve(L"Blue")->GetMtl()), Files{L"blue.png"});
  EXPECT_EQ(bitmapsOf(*resolve(L"Canvas")->GetMtl()), Files{L"canvas.png"});
  clearLog();
  EXPECT_EQ(bitmapsOf(*resolve(L"From props")->GetMtl()), Files{L"props.png"});
  expectLogged(ZORVEL::DEBUG_INFO, root_ + L"anna\\materials.mat");
  expectLogged(ZORVEL::DEBUG_INFO, root_ + L"anna\\props.mat");
  expectLogged(ZORVEL::DEBUG_INFO, L"Found material in lib");
  MSTR name(L"From props");
  EXPECT_EQ(GetCOREInterface()->GetMaterialLibrary().FindMtlByName(name), 0)
      << "the last library stays the current one";
  EXPECT_EQ(resolve(L"Oak")->GetMtl(), nullptr);
  expectLogged(ZORVEL::DEBUG_INFO, L"Could not find material");
}

TEST_F(MaterialResolution, AnswersWhereItFoundTheMaterialOrWhyThereIsNone) {
  repository_.folder().write("anna/summer/materials.mat", "no library");
  std::filesystem::remove(repository_.folder().path() / "anna/props.mat");
  repository_.folder().write("maps/canvas.png", "");
  INode* node = addNode();
  const MaterialResult canvas = resolveOn(*node, L"Canvas");
  EXPECT_EQ(canvas.state, MaterialState::FromLibrary);
  EXPECT_EQ(statesOf(canvas), (States{LibraryState::NotLoaded, LibraryState::HoldsMaterial}));
  EXPECT_EQ(canvas.searches.back().file, root_ + L"anna\\materials.mat");
  EXPECT_EQ(canvas.missingTextures, Files());
  EXPECT_EQ(resolveOn(*node, L"Canvas").state, MaterialState::FromScene);
  const MaterialResult none = resolveOn(*node, L"Blue");
  EXPECT_EQ(none.state, MaterialState::InNoLibrary);
  EXPECT_EQ(statesOf(none), (States{LibraryState::NotLoaded, LibraryState::WithoutName, LibraryState::NotLoaded}));
  EXPECT_EQ(resolveOn(*node, nullptr).state, MaterialState::NoField);
  EXPECT_STREQ(node->GetMtl()->GetName(), L"Canvas") << "what was not found changes nothing";

  auto* map = new host::BitmapTexture(L"a.png");
  map->SetName(L"Blue");
  GetCOREInterface()->GetSceneMtls()->Add(map);
  EXPECT_EQ(resolveOn(*node, L"Blue").state, MaterialState::NameOfMap);
}

TEST_F(MaterialResolution, NamesEveryMissingTextureOnce) {
  const std::string twice = R"({"class": "bitmap", "file": "X:\\b.png"})";
  writeLibrary(R"({"name": "Two", "class": [1, 2], "subTextures": [)" + twice + "," + twice +
               R"(, {"class": "bitmap", "file": "a.png"}]})");
  repository_.folder().makeFolder("maps/a.png");
  EXPECT_EQ(resolveOn(*addNode(), L"Two").missingTextures, (Files{maps_ + L"b.png", maps_ + L"a.png"}));
}

TEST_F(MaterialResolution, RedirectsEighteenSlotsWhateverTheMaterialHas) {
  std::string slots;
  for (int i = 0; i < 20; ++i) slots += std::string(i == 0 ? "" : ",") + R"({"class": "bitmap", "file": "Y:\\t.png"})";
  writeLibrary(R"({"name": "Many", "class": [1, 2], "subTextures": [)" + slots + "]}");
  Files expected(18, L"t.png");
  expected.resize(20, L"elsewhere: Y:\\t.png");
  EXPECT_EQ(bitmapsOf(*resolve(L"Many")->GetMtl()), expected);
}

/// A bitmap with a map of its own among its parameters, as filters have.
class BitmapWithMap : public BitmapTex {
 public:
  explicit BitmapWithMap(Texmap* map)
      : block_(new host::ParameterBlock(0, {{1, TYPE_TEXMAP, host::Ref<Texmap>(map)}})) {}
  int NumParamBlocks() override { return 1; }
  IParamBlock2* GetParamBlock(int /*index*/) override { return block_.get(); }
  void SetMap(const MaxSDK::AssetManagement::AssetUser& map) override { map_ = map; }
  const MaxSDK::AssetManagement::AssetUser& GetMap() const override { return map_; }
  const MCHAR* GetMapName() override { return map_.GetFileName(); }
  void ReloadBitmapAndUpdate() override {}

 private:
  host::Ref<host::ParameterBlock> block_;
  MaxSDK::AssetManagement::AssetUser map_;
};

TEST_F(MaterialResolution, LeavesTheMapsBelowABitmapAsTheyAre) {
  const host::Ref<host::BitmapTexture> below(new host::BitmapTexture(L"Z:\\below.png"));
  host::Material::Content content;
  content.subTextures = {host::Ref<Texmap>(new BitmapWithMap(below.get()))};
  const host::Ref<Mtl> material(new host::Material(Class_ID(1, 2), content));
  ZORVEL::TextureRedirection::Redirect(*material, maps_);
  EXPECT_EQ(bitmapsOf(*material), Files{L""});
  EXPECT_STREQ(below->GetMapName(), L"Z:\\below.png");
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
  clearLog();
  const std::wstring other = L"Q:\\maps\\";
  EXPECT_EQ(aims(*deep, other), (Files{other + L"slot.png", other + L"nested.png", other + L"coat.tar.png"}));
  EXPECT_EQ(bitmapsOf(*deep), (Files{L"slot.png", L"nested.png"})) << "to ask changes nothing";
  EXPECT_EQ(countLogged(L"set new texture path:"), 0);
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

  // Multi materials have their sub-materials among their parameters too.
  host::Material::Content content;
  content.subMaterials = {host::Ref<Mtl>(wax)};
  content.blocks = {host::Ref<host::ParameterBlock>(new host::ParameterBlock(0, {{4, TYPE_MTL, host::Ref<Mtl>(wax)}}))};
  const host::Ref<Mtl> multi(new host::Material(Class_ID(MULTI_CLASS_ID, 0), content));
  SetMasterUnitInfo(UNITS_MILLIMETERS, 1.0F);
  EXPECT_EQ(aims(*multi, maps_), Files{maps_ + L"a.png"});
  EXPECT_FALSE(ZORVEL::TextureRedirection::LookAhead(*multi, maps_).isScaledAgain);
  ZORVEL::TextureRedirection::Redirect(*multi, maps_);
  EXPECT_NEAR(parameter(wax, 22), 10.0F, 1e-5F);
}

}  // namespace
