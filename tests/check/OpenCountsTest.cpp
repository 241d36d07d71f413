#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/check/CompleteRepository.h"
#include "tests/check/OpenCounts.h"

namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;

/// Textures and overlays have to be there, whatever is in them.
bool isLookedInto(const fs::path& file) {
  return file.parent_path() != "maps" && file.string().compare(0, 7, "overlay") != 0;
}

std::map<std::string, int> oneForEach(const fs::path& root) {
  std::map<std::string, int> counts = {{"", 1}};
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
    const fs::path name = entry.path().lexically_relative(root);
    if (entry.is_directory()) {
      counts[name.string() + '/'] = 1;
    } else if (isLookedInto(name)) {
      counts[name.string()] = 1;
    }
  }
  return counts;
}

TEST(OpenCounts, AreOneForEachFolderAndEachFile) {
  const support::CompleteRepository repository;
  const fs::path& root = repository.folder().path();
  const std::map<std::string, int> expected = oneForEach(root);
  support::OpenCounts opened(root);
  EXPECT_THAT(repository.check().findings, IsEmpty());
  EXPECT_EQ(opened.take(), expected);
}

}  // namespace
