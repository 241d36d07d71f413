#include "host/plugins/ResourceScript.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <windows.h>

namespace {

using Strings = std::map<std::uint32_t, std::wstring>;

TEST(ResourceScript, ReadsTheTextsOfItsStringTables) {
  const char* script = R"(#include "resource.h"
// STRINGTABLE BEGIN 99 "not this" END
#define IDS_LONG 0x10  /* sixteen */
1 ICON "STRINGTABLE.ico"
STRINGTABLE DISCARDABLE
LANGUAGE 9, 1
BEGIN
  1, "Zorvel - Configurator"
  IDS_LONG   "say ""hello"" \"you\"\tC:\\x\x41 // no comment"
END
STRINGTABLE { 7 "" 8, "Zürich" }
)";
  EXPECT_EQ(host::stringTable(script), (Strings{{1, L"Zorvel - Configurator"},
                                                {16, L"say \"hello\" \"you\"\tC:\\xA // no comment"},
                                                {7, L""},
                                                {8, L"Z\u00FCrich"}}));
}

TEST(ResourceScript, EndsATableThatMakesNoSense) {
  EXPECT_EQ(host::stringTable("STRINGTABLE BEGIN 1 \"a\" UNKNOWN \"b\" 2 \"c\" END"), (Strings{{1, L"a"}}));
  EXPECT_EQ(host::stringTable("STRINGTABLE BEGIN 1 \"without end"), (Strings{{1, L"without end"}}));
  EXPECT_EQ(host::stringTable("STRINGTABLE BEGIN 1 \"a\\"), (Strings{{1, L"a\\"}}));
  for (const char* broken :
       {"", "#define", "#define A", "STRINGTABLE", "STRINGTABLE BEGIN 1", "/*", "\"", "STRINGTABLE {1 2}"}) {
    EXPECT_TRUE(host::stringTable(broken).empty()) << broken;
  }
}

TEST(LoadString, AnswersNothingForAModuleThatIsNotThere) {
  int nothing = 0;
  wchar_t buffer[4] = L"old";
  EXPECT_EQ(LoadStringW(nullptr, 1, buffer, 4), 0);
  EXPECT_EQ(LoadStringW(reinterpret_cast<HINSTANCE>(&nothing), 1, buffer, 4), 0);
  EXPECT_EQ(std::wstring(buffer), L"");
  EXPECT_EQ(LoadStringW(nullptr, 1, nullptr, 4), 0);
}

TEST(LoadString, CutsATextToTheBuffer) {
  void* handle = dlopen(TEST_MODULES "good_module.gup", RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(handle, nullptr);
  wchar_t buffer[5] = L"";
  EXPECT_EQ(LoadStringW(static_cast<HINSTANCE>(handle), 2, buffer, 5), 4);
  EXPECT_EQ(std::wstring(buffer), L"Does");
  EXPECT_EQ(LoadStringW(static_cast<HINSTANCE>(handle), 5, buffer, 5), 0);
}

}  // namespace
