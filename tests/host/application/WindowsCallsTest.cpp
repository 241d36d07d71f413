#include <fcntl.h>
#include <gtest/gtest.h>
#include <shlobj.h>
#include <sys/stat.h>
#include <windows.h>

#include <cstdlib>
#include <string>

#include "host/files/Paths.h"
#include "tests/support/LocalAppData.h"

namespace {

struct Parts {
  wchar_t drive[_MAX_DRIVE], folder[_MAX_DIR], name[_MAX_FNAME], extension[_MAX_EXT];
};

std::wstring split(const std::wstring& path) {
  Parts parts;
  _wsplitpath(path.c_str(), parts.drive, parts.folder, parts.name, parts.extension);
  return std::wstring(parts.drive) + L"|" + parts.folder + L"|" + parts.name + L"|" + parts.extension;
}

TEST(WindowsCalls, AttributesTellFilesFromFolders) {
  const support::TemporaryFolder folder;
  folder.write("Sub/File.txt", "x");
  const std::wstring root = folder.wide();
  EXPECT_EQ(GetFileAttributesW((root + L"\\sub").c_str()), FILE_ATTRIBUTE_DIRECTORY);
  EXPECT_EQ(GetFileAttributesW((root + L"\\sub\\").c_str()), FILE_ATTRIBUTE_DIRECTORY);
  EXPECT_EQ(GetFileAttributesW((root + L"\\SUB\\file.TXT").c_str()), FILE_ATTRIBUTE_NORMAL);
  for (const wchar_t* missing : {L"\\sub\\file.txt\\", L"\\sub\\file.txt\\x", L"\\nothing"}) {
    EXPECT_EQ(GetFileAttributesW((root + missing).c_str()), INVALID_FILE_ATTRIBUTES);
  }
  EXPECT_EQ(GetFileAttributesW(nullptr), INVALID_FILE_ATTRIBUTES);
  EXPECT_EQ(GetFileAttributesW(L""), INVALID_FILE_ATTRIBUTES);
}

std::uint64_t joined(DWORD high, DWORD low) { return (std::uint64_t{high} << 32U) | low; }

TEST(WindowsCalls, AttributesHoldSizeAndTimeOfTheLastWrite) {
  const support::TemporaryFolder folder;
  const std::filesystem::path file = folder.write("Sub/File.txt", "x");
  std::filesystem::resize_file(file, (std::uint64_t{1} << 32U) + 5);
  // 2001-02-03 04:05:06.1234567 UTC, and some nanoseconds that no step of 100 can hold.
  const timespec times[] = {{0, 0}, {981173106, 123456789}};
  ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
  WIN32_FILE_ATTRIBUTE_DATA data{};
  ASSERT_NE(GetFileAttributesExW((folder.wide() + L"\\SUB\\file.TXT").c_str(), GetFileExInfoStandard, &data), FALSE);
  EXPECT_EQ(data.dwFileAttributes, FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(joined(data.nFileSizeHigh, data.nFileSizeLow), (std::uint64_t{1} << 32U) + 5);
  EXPECT_EQ(joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime), 126256467061234567U);
  EXPECT_EQ(joined(data.ftLastAccessTime.dwHighDateTime, data.ftLastAccessTime.dwLowDateTime), 116444736000000000U);

  ASSERT_NE(GetFileAttributesExW((folder.wide() + L"\\sub").c_str(), GetFileExInfoStandard, &data), FALSE);
  EXPECT_EQ(data.dwFileAttributes, FILE_ATTRIBUTE_DIRECTORY);
  EXPECT_EQ(GetFileAttributesExW((folder.wide() + L"\\nothing").c_str(), GetFileExInfoStandard, &data), FALSE);
  EXPECT_EQ(GetFileAttributesExW(nullptr, GetFileExInfoStandard, &data), FALSE);
  EXPECT_EQ(GetFileAttributesExW(folder.wide().c_str(), GetFileExInfoStandard, nullptr), FALSE);
}

TEST(WindowsCalls, FilesAreOpenedWithoutRegardToCaseAndNothingElseIs) {
  const support::TemporaryFolder folder;
  folder.write("Sub/File.txt", "old");
  const std::wstring root = folder.wide();
  std::FILE* file = _wfopen((root + L"\\SUB\\FILE.TXT").c_str(), L"wb");
  ASSERT_NE(file, nullptr);
  std::fputs("new", file);
  std::fclose(file);
  EXPECT_EQ(folder.read("Sub/File.txt"), "new");
  EXPECT_EQ(_wfopen((root + L"\\sub").c_str(), L"rb"), nullptr);
  ASSERT_EQ(::mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
  for (const wchar_t* mode : {L"rb", L"r+", L"wb", L"a"}) {
    EXPECT_EQ(_wfopen((root + L"\\pipe").c_str(), mode), nullptr) << "which would wait for its other end";
    EXPECT_EQ(_wfopen(L"/dev/zero", mode), nullptr);
  }
  EXPECT_EQ(_wfopen((root + L"\\missing\\x").c_str(), L"wb"), nullptr);
  EXPECT_EQ(_wfopen(nullptr, L"r"), nullptr);
  EXPECT_EQ(_wfopen(root.c_str(), nullptr), nullptr);
}

TEST(WindowsCalls, SplitsPathsIntoTheirFourParts) {
  EXPECT_EQ(split(L"C:\\r\\my.file.xml"), L"C:|\\r\\|my.file|.xml");
  EXPECT_EQ(split(L"/r.d/name"), L"|/r.d/|name|");
  EXPECT_EQ(split(L"C:\\r\\"), L"C:|\\r\\||");
  EXPECT_EQ(split(L""), L"|||");
  EXPECT_EQ(split(std::wstring(400, L'n') + L".x").size(), 255U + 5U);
  _wsplitpath(L"C:\\r\\a.b", nullptr, nullptr, nullptr, nullptr);
}

TEST(WindowsCalls, TheApplicationDataFolderFollowsTheEnvironment) {
  const support::LocalAppData data;
  wchar_t path[MAX_PATH] = {};
  const std::string missing = data.folder().path() / "made" / "on demand";
  ::setenv("LOCALAPPDATA", missing.c_str(), 1);
  ASSERT_TRUE(SUCCEEDED(SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, 0, path)));
  EXPECT_EQ(host::toUtf8(path), missing);
  EXPECT_TRUE(std::filesystem::is_directory(missing));
  EXPECT_TRUE(FAILED(SHGetFolderPathW(nullptr, 0x1a, nullptr, 0, path)));

  const std::string file = data.folder().write("file", "");
  for (const std::string& unusable : {file, "/" + std::string(300, 'x')}) {
    ::setenv("LOCALAPPDATA", unusable.c_str(), 1);
    EXPECT_TRUE(FAILED(SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, 0, path)));
  }
}

}  // namespace
