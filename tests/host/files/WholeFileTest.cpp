#include "host/files/WholeFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/TemporaryFolder.h"

namespace host {

namespace fs = std::filesystem;

namespace {

std::ptrdiff_t entryCount(const fs::path& folder) {
  return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

TEST(WholeFile, ReplacesAFileAndKeepsItsPermissionsAndLinks) {
  const support::TemporaryFolder folder;
  const fs::path file = folder.write("a.json", "old");
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink(file, folder.path() / "link");
  EXPECT_EQ(writeWholeFile(folder.path() / "link", std::string("n\0ew", 4)), "");
  EXPECT_EQ(folder.read("a.json"), std::string("n\0ew", 4));
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_TRUE(fs::is_symlink(folder.path() / "link"));
  EXPECT_EQ(entryCount(folder.path()), 2);
}

TEST(WholeFile, WritesIntoAPipeAndLeavesItThere) {
  const support::TemporaryFolder folder;
  const fs::path pipe = folder.path() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const int end = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
  EXPECT_EQ(writeWholeFile(pipe, "text"), "");
  char text[8] = {};
  EXPECT_EQ(::read(end, text, sizeof text), 4);
  ::close(end);
  EXPECT_TRUE(fs::is_fifo(pipe));
  EXPECT_EQ(entryCount(folder.path()), 1);
}

TEST(WholeFile, LeavesNothingBehindWhenItFails) {
  const support::TemporaryFolder folder;
  folder.write("taken/inside", "");
  EXPECT_NE(writeWholeFile(folder.path() / "taken", "x").find("taken"), std::string::npos);
  EXPECT_NE(writeWholeFile(folder.path() / "missing" / "file", "x"), "");
  EXPECT_NE(writeWholeFile(folder.path() / std::string(300, 'n'), "x"), "");
  EXPECT_EQ(entryCount(folder.path()), 1);
  EXPECT_TRUE(fs::exists(folder.path() / "taken" / "inside"));
}

}  // namespace

}  // namespace host
