#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include "check/JudgementFile.h"
#include "tests/check/CompleteRepository.h"

namespace {

using support::CompleteRepository;
using support::shortForm;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

std::string repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

/// `form` with each @ replaced by the number of the repetition.
std::string numbered(const std::string& form, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) {
    for (const char c : form) all += c == '@' ? std::to_string(i) : std::string(1, c);
  }
  return all;
}

std::string character(const std::string& content) {
  return "<zorvel><character id='anna' folder='anna'>" + content + "</character></zorvel>";
}

/// Far less than what each of these would take without limits.
class HostileRepository : public testing::Test {
 protected:
  void TearDown() override {
    const auto taken = std::chrono::steady_clock::now() - begin_;
    EXPECT_LT(std::chrono::duration_cast<std::chrono::seconds>(taken).count(), 60);
  }
  CompleteRepository repository_;

 private:
  std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
};

TEST_F(HostileRepository, DescriptionsThatAreTooMuchAreRefused) {
  const std::string lists =
      character("<cloth>" + numbered("<clothing id='c@' folder='dress'/>", 700) + "</cloth><poses>" +
                numbered("<pose id='p@' folder='standing'/>", 700) + "</poses>");
  const struct {
    std::string description;
    const char* why;
  } cases[] = {
      {"<zorvel>" + repeated("<a/>", 2000000) + "</zorvel>", "too large"},
      {"<zorvel " + numbered("a@='' ", 101) + "/>", "too many attributes"},
      {"<zorvel " + numbered("a@='' ", 150000) + "/>", "a tag or comment is too long"},
      {"<zorvel>" + numbered("<a@/>", 10002) + "</zorvel>", "too many different names"},
      {"<zorvel a='" + std::string(5000, 'x') + "'/>", "an attribute is too long"},
      {"<zorvel " + std::string(300, 'x') + "=''/>", "a name is too long"},
      {"<!DOCTYPE z [<!ENTITY e '" + std::string(10000, 'x') + "'>]><zorvel>" + repeated("&e;", 200) + "</zorvel>",
       "entities grow beyond all bounds"},
      {"<!DOCTYPE z [" + numbered("<!ENTITY e@ 'x'>", 1001) + "]><zorvel/>", "too many entities"}};
  for (const auto& one : cases) {
    repository_.write("zorvel.xml", one.description);
    const check::CheckResult result = repository_.check();
    EXPECT_FALSE(result.isReadable) << one.why;
    EXPECT_THAT(shortForm(result), Contains("ZV104 zorvel.xml: " + std::string(one.why)));
  }
  repository_.write("zorvel.xml", lists);
  for (int i = 0; i < 700; ++i) repository_.write("anna/previews/preview_c" + std::to_string(i) + ".png", "");
  EXPECT_THAT(shortForm(repository_.check()), Contains(HasSubstr("700 clothes and 700 poses")));
  check::CheckerOptions options;
  options.wantsWear = true;
  EXPECT_THAT(check::checkRepository(repository_.folder().path(), options).wear, testing::IsEmpty());
}

TEST_F(HostileRepository, EveryBeginningOfADescriptionGivesAnAnswer) {
  const std::string whole = repository_.folder().read("zorvel.xml");
  for (std::size_t size = 0; size < whole.size() - 20; size += 97) {
    repository_.write("zorvel.xml", whole.substr(0, size));
    const check::CheckResult result = repository_.check();
    EXPECT_FALSE(result.isReadable);
    EXPECT_EQ(result.findings.size(), 1U) << size;
  }
}

TEST_F(HostileRepository, FindingsStayFewAndShort) {
  repository_.write("zorvel.xml",
                    "<zorvel><asset url='" + std::string(4000, 'n') + "'/>" + repeated("<a/>", 20000) + "</zorvel>");
  const check::CheckResult result = repository_.check();
  std::size_t longest = 0;
  for (const check::Finding& finding : result.findings) longest = std::max(longest, finding.message.size());
  EXPECT_LT(longest, 3000U);
  EXPECT_THAT(shortForm(result), Contains(HasSubstr("ZV110 zorvel.xml: 10000")));
}

TEST_F(HostileRepository, NothingOutsideIsReadAndNoPipeIsOpened) {
  namespace fs = std::filesystem;
  const support::TemporaryFolder outside;
  outside.write("config", "{\"failOn\": \"never\"}");
  const fs::path root = repository_.folder().path();
  const fs::path config = root / check::JUDGEMENT_FILE;
  check::Judgement judgement;
  ASSERT_EQ(::mkfifo(config.c_str(), 0600), 0);
  EXPECT_THAT(check::readJudgement(root, judgement), HasSubstr("is no file"));
  fs::remove(config);
  fs::create_symlink(outside.path() / "config", config);
  EXPECT_THAT(check::readJudgement(root, judgement), HasSubstr("leads out of the repository"));
  fs::remove(config);

  // What is asked for there is there, so nothing is missing; what is in it is of no interest.
  fs::rename(root / "anna/standing", outside.path() / "standing");
  outside.write("standing/pose.vrmesh", "no mesh");
  fs::create_symlink(outside.path() / "standing", root / "anna/standing");
  // Links within the repository are what they lead to, also in circles.
  fs::create_symlink("..", root / "anna/up");
  EXPECT_THAT(shortForm(repository_.check()), testing::ElementsAre("ZV320 anna/standing"));
}

TEST_F(HostileRepository, MeshesAndLibrariesOfAnySizeAndShapeGiveAnAnswer) {
  const std::string library = R"({"format": "zorvel-material-library", "version": 1, "materials": [)";
  std::string twice = R"({"class": "standard", "id": 1, "name": "m"})";
  for (int i = 2; i < 30; ++i) {
    twice = R"({"class": "multi", "name": "m", "id": )" + std::to_string(i) + R"(, "subMaterials": [)" + twice +
            R"(, {"ref": )" + std::to_string(i - 1) + "}]}";
  }
  const std::string corners = "v 0 0 0\nv 1 0 0\nv 0 1 0\n";
  const struct {
    const char* file;
    std::string content;
    const char* finding;
  } cases[] = {
      {"anna/skin/skin.mat", std::string(100000, '['), "ZV514"},
      {"anna/skin/skin.mat", "{" + numbered("\"k@\": 0,", 200000) + "\"k\": 0}", "ZV514"},
      {"anna/skin/skin.mat", library + repeated("[],", 1000001) + "0]}", "ZV514"},
      {"anna/skin/skin.mat", library + R"({"class": "multi", "name": ")" + std::string(200000, 'x') + "\"}]}", "ZV514"},
      {"anna/skin/skin.mat", library + twice + "]}", "ZV514"},
      {"anna/standing/pose.vrmesh", corners + "f" + repeated(" 1 2 3", 200000), "ZV327"},
      {"anna/standing/pose.vrmesh", corners + repeated("f" + repeated(" 1 2 3", 170) + "\n", 4000), "ZV327"},
      {"anna/standing/pose.vrmesh", "v 0 0 0\n" + repeated("v\n", 1000000), "ZV325"}};
  for (const auto& one : cases) {
    const std::string before = repository_.folder().read(one.file);
    repository_.write(one.file, one.content);
    EXPECT_THAT(shortForm(repository_.check()), Contains(HasSubstr(one.finding))) << one.content.substr(0, 80);
    repository_.write(one.file, before);
  }
}

}  // namespace
