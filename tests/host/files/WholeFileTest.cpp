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

TEST(WholeFile, WritesWhereALinkLeadsThoughNothingIsThereYet) {
  const support::TemporaryFolder folder;
  folder.write("results/old", "");
  fs::create_symlink("results/../results/new", folder.path() / "second");
  fs::create_symlink("second", folder.path() / "first");
  fs::create_symlink("missing/new", folder.path() / "lost");
  fs::create_symlink("round", folder.path() / "round");
  EXPECT_EQ(writeWholeFile(folder.path() / "first", "text"), "");
  EXPECT_EQ(folder.read("results/new"), "text");
  EXPECT_NE(writeWholeFile(folder.path() / "lost", "text").find("its folder is not there"), std::string::npos);
  EXPECT_NE(writeWholeFile(folder.path() / "round", "text"), "");
  for (const char* link : {"first", "second", "lost", "round"}) {
    EXPECT_TRUE(fs::is_symlink(folder.path() / link)) << link;
  }
}

TEST(WholeFile, WritesIntoWhatIsNoFileAndLeavesItThere) {
  const support::TemporaryFolder folder;
  const fs::path pipe = folder.path() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_NE(writeWholeFile(pipe, "text").find("nobody reads from it"), std::string::npos);
  const int end = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
  EXPECT_EQ(writeWholeFile(pipe, "text"), "");
  char text[8] = {};
  EXPECT_EQ(::read(end, text, sizeof text), 4);
  ::close(end);
  EXPECT_TRUE(fs::is_fifo(pipe));
  fs::create_symlink("/dev/null", folder.path() / "null");
  fs::create_symlink("/dev/full", folder.path() / "full");
  EXPECT_EQ(writeWholeFile(folder.path() / "null", "text"), "");
  EXPECT_NE(writeWholeFile(folder.path() / "full", "text"), "");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_EQ(entryCount(folder.path()), 3);
}

TEST(WholeFile, NeedsNoLongerNameThanTheFileHas) {
  const support::TemporaryFolder folder;
  const std::string longest(255, 'n');
  EXPECT_EQ(writeWholeFile(folder.path() / longest, "new"), "");
  EXPECT_EQ(writeWholeFile(folder.path() / longest, "again"), "");
  EXPECT_EQ(folder.read(longest), "again");
  EXPECT_EQ(entryCount(folder.path()), 1);
}

TEST(WholeFile, LeavesEverythingAsItWasWhenItFails) {
  const support::TemporaryFolder folder;
  folder.write("taken/inside", "");
  const fs::path locked = folder.write("locked", "old");
  fs::permissions(locked, fs::perms::owner_read);
  EXPECT_NE(writeWholeFile(folder.path() / "taken", "x").find("taken"), std::string::npos);
  EXPECT_NE(writeWholeFile(locked, "x"), "");
  EXPECT_NE(writeWholeFile(folder.path() / "missing" / "file", "x"), "");
  EXPECT_NE(writeWholeFile(folder.path() / std::string(300, 'n'), "x"), "");
  EXPECT_EQ(entryCount(folder.path()), 2);
  EXPECT_EQ(folder.read("locked"), "old");
  EXPECT_TRUE(fs::exists(folder.path() / "taken" / "inside"));
}

}  // namespace

}  // namespace host
