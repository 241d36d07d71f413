#include "host/formats/MaterialLibraryFile.h"

#include <gtest/gtest.h>
#include <max.h>

#include "host/application/Application.h"
#include "host/materials/MaterialLibrary.h"
#include "host/services/Listener.h"
#include "tests/support/SmallRepository.h"

namespace {

class MaterialLibraryFile : public testing::Test {
 protected:
  void SetUp() override {
    host::Application::instance().reset();
    host::Application::instance().listener().clear();
  }
  void TearDown() override { host::Application::instance().reset(); }

  std::wstring write(const std::string& content) const {
    folder_.write("some.mat", content);
    return folder_.wide() + L"\\some.mat";
  }

  support::TemporaryFolder folder_;
};

std::string nested(int depth) {
  std::string text = R"({"name": "x", "class": "multi", "subMaterials": []})";
  for (int i = 0; i < depth; ++i) text = R"({"name": "x", "class": "multi", "subMaterials": [)" + text + "]}";
  return support::materialLibrary(text);
}

TEST_F(MaterialLibraryFile, RefusesWhatItCannotReadInOneLineAndKeepsTheCurrentLibrary) {
  Interface* host = GetCOREInterface();
  ASSERT_NE(host->LoadMaterialLib(write(support::materialLibrary(support::texturedMaterial("Kept", "a.png"))).c_str()),
            0);
  const std::string bad[] = {
      "",                                                                // empty
      std::string("\x00\x01\x42 binary", 10),                            // a real, binary library
      "{\"format\": \"zorvel-material-library\", \"version\": 1, ",      // cut off
      R"({"format": "something else", "version": 1, "materials": []})",  // not ours
      R"({"format": "zorvel-material-library", "version": 2, "materials": []})",
      R"({"format": "zorvel-material-library", "version": 1})",         // no materials
      R"({"format": 7, "version": 1, "materials": []})",                // wrong type
      support::materialLibrary(R"({"name": "x"})"),                     // no class
      support::materialLibrary(R"({"name": "x", "class": "marble"})"),  // unknown class
      support::materialLibrary(R"({"name": 5, "class": "standard"})"),  // name is no text
      support::materialLibrary(
          R"({"name": "x", "class": "standard", "blocks": [[{"id": 1, "type": "float", "value": "a"}]]})"),
      nested(100),
      nested(5000)};
  for (const std::string& content : bad) {
    host::Application::instance().listener().clear();
    EXPECT_EQ(host->LoadMaterialLib(write(content).c_str()), 0) << content.substr(0, 200);
    ASSERT_EQ(host::Application::instance().listener().lines().size(), 1U);
    EXPECT_EQ(host::Application::instance().listener().lines().front().find('\n'), std::string::npos);
  }
  MSTR name(L"Kept");
  EXPECT_EQ(host->GetMaterialLibrary().FindMtlByName(name), 0);
}

TEST_F(MaterialLibraryFile, ThatIsMissingIsNoNewsForTheListener) {
  EXPECT_EQ(GetCOREInterface()->LoadMaterialLib((folder_.wide() + L"\\none.mat").c_str()), 0);
  EXPECT_TRUE(host::Application::instance().listener().lines().empty());
}

TEST_F(MaterialLibraryFile, FillsAGivenLibraryAndLeavesTheCurrentOneAlone) {
  auto* library = new host::MaterialLibrary;
  const host::Ref<host::MaterialLibrary> kept(library);
  EXPECT_NE(GetCOREInterface()->LoadMaterialLib(write(nested(3)).c_str(), library), 0);
  EXPECT_EQ(library->Count(), 1);
  EXPECT_EQ(GetCOREInterface()->GetMaterialLibrary().Count(), 0);
}

}  // namespace
