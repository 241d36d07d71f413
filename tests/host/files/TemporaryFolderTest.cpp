#include "host/files/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <fstream>
#include <optional>
#include <string>

#include "host/files/LocalAppData.h"

namespace {

namespace fs = std::filesystem;

std::string variable(const char* name) {
  const char* value = ::getenv(name);
  return value != nullptr ? value : "(unset)";
}

TEST(TemporaryFolder, GoesWithItsContentAndIsAnotherOneEachTime) {
  fs::path made;
  {
    const host::TemporaryFolder one("named ");
    const host::TemporaryFolder other("named ");
    made = one.path();
    EXPECT_NE(made, other.path());
    EXPECT_EQ(made.filename().string().rfind("named ", 0), 0U);
    fs::create_directories(made / "deep/er");
    std::ofstream(made / "deep/er/file") << "x";
  }
  EXPECT_FALSE(fs::exists(made));
}

TEST(TemporaryFolder, HasNoPathWhereNoneCanBeMadeAndTheEnvironmentStaysAsItIs) {
  const std::string before = variable("LOCALAPPDATA");
  const std::string temporary = variable("TMPDIR");
  ::setenv("TMPDIR", "/proc/nowhere", 1);
  {
    const host::TemporaryFolder folder;
    EXPECT_TRUE(folder.path().empty());
    const host::LocalAppData data(folder.path());
    EXPECT_EQ(variable("LOCALAPPDATA"), before);
  }
  temporary == "(unset)" ? ::unsetenv("TMPDIR") : ::setenv("TMPDIR", temporary.c_str(), 1);
  std::optional<host::LocalAppData> data;
  data.emplace("/tmp");
  EXPECT_EQ(variable("LOCALAPPDATA"), "/tmp");
  data.reset();
  EXPECT_EQ(variable("LOCALAPPDATA"), before);
}

}  // namespace
