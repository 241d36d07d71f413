#include "host/formats/MaterialLibraryFile.h"

#include <gtest/gtest.h>
#include <max.h>
#include <sys/stat.h>

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

/// `levels` of one class, each of which holds the one before twice: `form` with @ for the one before and # for its id.
std::string doubled(const std::string& innermost, const std::string& form, int levels) {
  std::string text = innermost;
  for (int i = 1; i < levels; ++i) {
    std::string outer = form;
    outer.replace(outer.find('#'), 1, std::to_string(i - 1));
    outer.replace(outer.find('@'), 1, text);
    text = outer.replace(outer.find('!'), 1, std::to_string(i));
  }
  return text;
}

std::string inSlot(const std::string& map) {
  return support::materialLibrary(R"({"name": "x", "class": "standard", "subTextures": [null, )" + map + "]}");
}

/// Each map refers to the one before, side by side with it: shallow in the text, deep in what it means.
std::string chainOfReferences(int length) {
  std::string maps = R"({"class": [7, 7], "id": 0})";
  for (int i = 1; i < length; ++i) {
    maps += R"(, {"class": [7, 7], "id": )" + std::to_string(i) + R"(, "subTextures": [{"ref": )" +
            std::to_string(i - 1) + "}]}";
  }
  return inSlot(R"({"class": [7, 7], "subTextures": [)" + maps + "]}");
}

TEST_F(MaterialLibraryFile, RefusesWhatNamesItsPartsOverAndOver) {
  const std::string map = R"({"class": "bitmap", "id": 0, "file": "a.png"})";
  const std::string material = R"({"class": "standard", "id": 0})";
  const std::string slots = R"({"class": [7, 7], "id": !, "subTextures": [@, {"ref": #}]})";
  const std::string maps = R"({"class": [7, 7], "id": !, "blocks": [[{"id": 0, "type": "texmap", "value": @},
                              {"id": 1, "type": "texmap", "value": {"ref": #}}]]})";
  const std::string subs = R"({"class": "multi", "id": !, "subMaterials": [@, {"ref": #}]})";
  const std::string held = R"({"class": [7, 8], "id": !, "blocks": [[{"id": 0, "type": "material", "value": @},
                              {"id": 1, "type": "material", "value": {"ref": #}}]]})";
  std::string parameters = R"({"id": 0, "type": "int", "value": 1})";
  for (int i = 0; i < 1000; ++i) parameters += R"(, {"id": 0, "type": "int", "value": 1})";
  const struct {
    std::string content;
    const char* why;
  } cases[] = {{inSlot(doubled(map, slots, 28)), "too many parts"},
               {inSlot(doubled(map, maps, 28)), "too many parts"},
               {support::materialLibrary(doubled(material, subs, 28)), "too many parts"},
               {support::materialLibrary(doubled(material, held, 28)), "too many parts"},
               {chainOfReferences(40), "too deeply"},
               {support::materialLibrary(R"({"class": "standard", "blocks": [[)" + parameters + "]]}"), "parameters"}};
  for (const auto& one : cases) {
    const host::MaterialLibraryContent content = host::readMaterialLibraryText(one.content);
    EXPECT_NE(content.error.find(one.why), std::string::npos) << one.why << ": " << content.error;
    EXPECT_TRUE(content.materials.empty());
  }
  EXPECT_EQ(host::readMaterialLibraryText(inSlot(doubled(map, slots, 9))).error, "");
  EXPECT_EQ(host::readMaterialLibraryText(chainOfReferences(25)).error, "");
}

TEST_F(MaterialLibraryFile, MayShowOneMaterialInManySlots) {
  std::string slots = R"({"class": "standard", "id": 1, "subTextures": [null, {"class": "bitmap", "file": "a.png"}]})";
  for (int i = 1; i < 500; ++i) slots += R"(, {"ref": 1})";
  const auto content =
      host::readMaterialLibraryText(support::materialLibrary(R"({"class": "multi", "subMaterials": [)" + slots + "]}"));
  ASSERT_EQ(content.error, "");
  EXPECT_EQ(content.materials.front()->GetSubMtl(499), content.materials.front()->GetSubMtl(0));
}

TEST_F(MaterialLibraryFile, IsReadFromFilesOnlyAndNotBeyondWhatIsLeftToRead) {
  EXPECT_EQ(host::readMaterialLibrary(write(nested(3)), 1000000).error, "");
  EXPECT_NE(host::readMaterialLibrary(write(nested(3)), 100).error.find("too much was read"), std::string::npos);
  ASSERT_EQ(::mkfifo((folder_.path() / "pipe.mat").c_str(), 0600), 0);
  const auto content = host::readMaterialLibrary(folder_.wide() + L"\\pipe.mat");
  EXPECT_EQ(content.error, "cannot be read");
  EXPECT_FALSE(content.missing);
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
