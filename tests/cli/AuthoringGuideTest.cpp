#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

/// The command blocks of the guide as one script, which says where it stopped. Those after "<!-- not run: … -->" are
/// left out.
std::string scriptOf(std::istream& guide) {
  std::string script = "set -e\n";
  std::string line, before;
  bool inside = false, run = false;
  for (int number = 1; std::getline(guide, line); ++number) {
    if (line == "```sh") {
      inside = true;
      run = before.rfind("<!-- not run:", 0) != 0;
      if (run) script += "echo 'docs/authoring.md:" + std::to_string(number) + "'\n";
    } else if (line == "```") {
      inside = false;
    } else if (inside && run) {
      script += line + "\n";
    }
    before = line;
  }
  return script;
}

TEST(AuthoringGuide, EveryCommandDoesWhatItSays) {
  std::ifstream guide(AUTHORING_GUIDE);
  const std::string script = scriptOf(guide);
  ASSERT_NE(script.find("zorvel init people\n"), std::string::npos);
  const support::TemporaryFolder folder;
  folder.write("script", script);
  const std::string programs = fs::path(ZORVEL_PROGRAM).parent_path().string();
  const std::string call =
      "cd '" + folder.path().string() + "' && PATH='" + programs + "':\"$PATH\" sh script >out 2>&1";
  EXPECT_EQ(std::system(call.c_str()), 0) << folder.read("out");
  for (const char* picture : {"mannequin.png", "anna.png", "box.png"}) {
    EXPECT_TRUE(fs::exists(folder.path() / picture)) << picture;
  }
}

}  // namespace
