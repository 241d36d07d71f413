#include "host/files/Paths.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <clocale>

#include "tests/support/TemporaryFolder.h"

namespace host {

namespace fs = std::filesystem;

TEST(Paths, TextSurvivesTheWayThereAndBackWhateverTheLocale) {
  std::setlocale(LC_ALL, "C");
  EXPECT_EQ(toUtf8(L"a\u00E4\u4EBA\U0001F600"), "a\xC3\xA4\xE4\xBA\xBA\xF0\x9F\x98\x80");
  EXPECT_EQ(toWide("a\xC3\xA4\xE4\xBA\xBA\xF0\x9F\x98\x80"), L"a\u00E4\u4EBA\U0001F600");
  // Latin-1, cut off, too long, a surrogate, beyond Unicode.
  for (const std::string bytes :
       {"\xE4x", "\xE4\xBA", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF"}) {
    const std::wstring wide = toWide(bytes);
    EXPECT_EQ(static_cast<std::uint32_t>(wide[0]), 0xDC00U + static_cast<unsigned char>(bytes[0]));
    EXPECT_EQ(toUtf8(wide), bytes);
  }
  EXPECT_EQ(toUtf8(std::wstring(1, static_cast<wchar_t>(0xD800))), "\xEF\xBF\xBD");
}

TEST(Paths, FindsNamesWithoutRegardToCaseAndCollapsesSeparators) {
  const support::TemporaryFolder folder;
  const fs::path file = folder.write(
      "Anna/\xC3\x9C"
      "ber/Pose.VRMESH",
      "x");
  const std::wstring root = folder.wide();
  EXPECT_EQ(resolvePath(root + L"\\Anna\\\u00DCber\\Pose.VRMESH"), file);
  EXPECT_EQ(resolvePath(root + L"\\\\ANNA//\u00FCBER\\\\pose.vrmesh"), file);
  EXPECT_EQ(resolvePath(root + L"\\anna\\..\\anna\\missing\\Deep"), folder.path() / "Anna/../Anna/missing/Deep");
  EXPECT_EQ(resolvePath(root + L"\\ANNA\\"), folder.path() / "Anna/");
  EXPECT_EQ(resolvePath(L""), "");
  EXPECT_EQ(resolvePath(L"\\no such folder\\X"), "/no such folder/X");
  EXPECT_FALSE(fs::exists(resolvePath(L"C:\\Anna")));
}

TEST(Paths, TheExactNameWinsAndFoundNamesAreNeverOutOfDate) {
  const support::TemporaryFolder folder;
  folder.write("b.txt", "");
  EXPECT_EQ(resolvePath(folder.wide() + L"\\B.TXT").filename(), "b.txt");
  EXPECT_EQ(resolvePath(folder.wide() + L"\\NEW").filename(), "NEW");
  // An old folder may be answered from memory; adding a name to it changes its time.
  fs::last_write_time(folder.path(), fs::file_time_type::clock::now() - std::chrono::hours(1));
  EXPECT_EQ(resolvePath(folder.wide() + L"\\NEW").filename(), "NEW");
  folder.write("new", "");
  EXPECT_EQ(resolvePath(folder.wide() + L"\\NEW").filename(), "new");
  folder.write("New", "");
  EXPECT_EQ(resolvePath(folder.wide() + L"\\NEW").filename(), "New");
  folder.write("NEW", "");
  EXPECT_EQ(resolvePath(folder.wide() + L"\\NEW").filename(), "NEW");
  fs::remove(folder.path() / "b.txt");
  EXPECT_EQ(resolvePath(folder.wide() + L"\\B.TXT").filename(), "B.TXT");
}

TEST(Paths, AnAbsurdlyLongPathIsSimplyNotThere) {
  std::wstring path = L"\\tmp";
  for (int i = 0; i < 200000; ++i) path += L"\\x";
  EXPECT_EQ(GetFileAttributesW(path.c_str()), INVALID_FILE_ATTRIBUTES);
  EXPECT_EQ(_wfopen(path.c_str(), L"r"), nullptr);
}

}  // namespace host
