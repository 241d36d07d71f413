#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "fuzz/Targets.h"

namespace {

std::vector<std::filesystem::path> filesOf(const fuzz::Target& target) {
  std::vector<std::filesystem::path> files;
  for (const char* kind : {"seeds", "kept"}) {
    std::error_code none;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::filesystem::path(FUZZ_FOLDER) / kind / target.name, none)) {
      files.push_back(entry.path());
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::string contentOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

class Replay : public testing::TestWithParam<fuzz::Target> {};

std::string nameOf(const testing::TestParamInfo<fuzz::Target>& info) { return info.param.name; }

}  // namespace

namespace fuzz {

void PrintTo(const Target& target, std::ostream* stream) { *stream << target.name; }

}  // namespace fuzz

INSTANTIATE_TEST_SUITE_P(Targets, Replay, testing::ValuesIn(fuzz::targets()), nameOf);

/// What does not hold ends the process; the case is the last one that was named.
TEST_P(Replay, SeedsAndKeptCases) {
  const std::vector<std::filesystem::path> files = filesOf(GetParam());
  EXPECT_FALSE(files.empty());
  for (const std::filesystem::path& file : files) {
    std::cout << file.string() << std::endl;
    GetParam().run(contentOf(file));
  }
}
