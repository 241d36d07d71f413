#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <libxml/xmlschemas.h>

#include <memory>
#include <sstream>

#include "apps/cli/CommandLine.h"
#include "apps/reference/Documents.h"
#include "apps/reference/Schema.h"
#include "samples/people/People.h"
#include "samples/repository/DescriptionWriter.h"
#include "tests/support/PictureFiles.h"
#include "tests/support/SmallRepository.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using reference::contentOf;

const std::filesystem::path DOCUMENTS = ZORVEL_SOURCES "/docs";

/// What stands in the first block of that language.
std::string blockOf(const std::string& text, const std::string& language) {
  const std::string fence = "```" + language + '\n';
  const std::size_t begin = text.find(fence) + fence.size();
  return text.substr(begin, text.find("```\n", begin) - begin);
}

std::string example() { return blockOf(contentOf(DOCUMENTS / "repository-format.md"), "xml"); }

TEST(Reference, TheDocumentsAreWhatTheTablesSay) {
  for (const reference::Document& document : reference::documents(DOCUMENTS)) {
    EXPECT_TRUE(contentOf(document.file) == document.text) << document.file << " is not up to date: scripts/reference";
  }
  const std::string format = contentOf(DOCUMENTS / "repository-format.md");
  EXPECT_THAT(format, testing::HasSubstr("    AssetMatrix\n      matrix\n"));
  EXPECT_THAT(format, testing::HasSubstr("| `globalID` |"));
}

/// The schema as editors use it.
class SchemaTest : public testing::Test {
 protected:
  SchemaTest() {
    const std::string text = reference::schema();
    Parser parser(xmlSchemaNewMemParserCtxt(text.data(), static_cast<int>(text.size())), &xmlSchemaFreeParserCtxt);
    schema_.reset(xmlSchemaParse(parser.get()));
  }

  bool accepts(const std::string& description) const {
    Document document(xmlReadMemory(description.data(), static_cast<int>(description.size()), "", nullptr, 0),
                      &xmlFreeDoc);
    EXPECT_TRUE(document) << "not well-formed: " << description;
    Validation validation(xmlSchemaNewValidCtxt(schema_.get()), &xmlSchemaFreeValidCtxt);
    xmlSchemaSetValidStructuredErrors(
        validation.get(), [](void* /*context*/, auto /*error*/) {}, nullptr);
    return xmlSchemaValidateDoc(validation.get(), document.get()) == 0;
  }

  using Parser = std::unique_ptr<xmlSchemaParserCtxt, void (*)(xmlSchemaParserCtxtPtr)>;
  using Document = std::unique_ptr<xmlDoc, void (*)(xmlDocPtr)>;
  using Validation = std::unique_ptr<xmlSchemaValidCtxt, void (*)(xmlSchemaValidCtxtPtr)>;
  std::unique_ptr<xmlSchema, void (*)(xmlSchemaPtr)> schema_{nullptr, &xmlSchemaFree};
};

TEST_F(SchemaTest, AcceptsWhatTheReaderReads) {
  ASSERT_TRUE(schema_);
  samples::DescriptionWriter sample;
  sample.addGlobalAssets(samples::globalAssetDesigns());
  for (const samples::CharacterDesign& person : samples::people(6)) {
    sample.addCharacter(person, {{"pose", "asset", samples::Frame()}});
  }
  const support::SmallRepository small;
  for (const std::string& description : {
           sample.text(),
           small.folder().read("zorvel.xml"),
           example(),
           std::string("<zorvel/>"),
           // Any order and number, further attributes, other spellings of what is chosen from a few.
           std::string(
               "<zorvel xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' author='x' xsi:"
               "noNamespaceSchemaLocation='zorvel.xsd'><character folder='c'><AssetMatrix><matrix poseID='p' "
               "assetID='a' xpos='1,5' note='x'/></AssetMatrix><poses/><skins/><poses name='x' xml:lang='de'>"
               "<pose/></poses><categories note='y'><category selection='Multi' required='1'/></categories>"
               "<cloth><clothing><select/><exclude/><material/><select asset_id='a'/></clothing></cloth><skins/>"
               "</character><globalAssets/><character folder='c' available='x'/><globalAssets/></zorvel>"),
           // Whatever stands in an asset and in a pose.
           std::string("<zorvel><globalAssets><asset><thing id='x'><more/></thing><material/></asset></globalAssets>"
                       "<character folder='c'><assets><asset><asset/><style a='b'/></asset></assets><poses><pose>"
                       "<prop id='x'/><asset id='y'/></pose></poses></character></zorvel>"),
       }) {
    EXPECT_TRUE(accepts(description)) << description;
  }
}

TEST_F(SchemaTest, RefusesWhatTheReaderPassesOver) {
  for (const char* inside :
       {"<Character folder='c'/>", "<character/>", "<asset/>", "<character folder='c'><skin/></character>",
        "<character folder='c'><assetMatrix/></character>",
        "<character folder='c'><cloth><clothing><exlude/></clothing></cloth></character>",
        "<character folder='c'><AssetMatrix><matrix poseID='p'/></AssetMatrix></character>",
        "<globalAssets><material/></globalAssets>"}) {
    EXPECT_FALSE(accepts("<zorvel>" + std::string(inside) + "</zorvel>")) << inside;
  }
}

/// A material of every name in a list with commas.
std::string libraryOf(const std::string& names) {
  std::istringstream stream(names);
  std::string materials;
  for (std::string name; std::getline(stream >> std::ws, name, ',');) {
    materials += (materials.empty() ? "" : ",") + ("{\"name\": \"" + name) + "\", \"class\": \"standard\"}";
  }
  return support::materialLibrary(materials);
}

/// The files that the document lists, each with something in it.
void writeFiles(const support::TemporaryFolder& folder) {
  std::istringstream lines(blockOf(contentOf(DOCUMENTS / "repository-format.md"), "text"));
  for (std::string line; std::getline(lines, line);) {
    const std::size_t end = std::min(line.find(' '), line.size());
    const std::filesystem::path file = line.substr(0, end);
    if (file.extension() == ".vrmesh") folder.write(file, support::boxObj(30, 20, 50));
    if (file.extension() == ".mat") folder.write(file, libraryOf(line.substr(end)));
    if (file.extension() == ".png") support::writePicture(folder, file.string(), {2, 2});
  }
}

/// The exit status, with what was complained about.
std::pair<int, std::string> create(const support::TemporaryFolder& folder, const std::vector<std::string>& choice) {
  const std::string root = folder.path().string();
  std::vector<const char*> arguments = {"zorvel", "create", root.c_str()};
  for (const std::string& one : choice) arguments.push_back(one.c_str());
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const int status = cli::run(static_cast<int>(arguments.size()), arguments.data());
  testing::internal::GetCapturedStdout();
  return {status, testing::internal::GetCapturedStderr()};
}

TEST(Reference, TheExampleCanBeBuiltInEverythingThatItDescribes) {
  const support::TemporaryFolder folder;
  folder.write("zorvel.xml", example());
  writeFiles(folder);
  const std::vector<std::vector<std::string>> choices = {
      {},
      {"--cloth", "overall"},
      {"--cloth", "overall", "--pose", "seated", "--style", "overall_red", "--asset", "helmet"},
      {"--cloth", "overall", "--asset", "toolbox:toolbox_black"},
      {"--cloth", "gown", "--asset", "trolley_of_mara"},
      {"--cloth", "gown", "--pose", "seated"}};
  for (const auto& choice : choices) {
    EXPECT_EQ(create(folder, choice), std::make_pair(0, std::string())) << testing::PrintToString(choice);
  }
}

}  // namespace
