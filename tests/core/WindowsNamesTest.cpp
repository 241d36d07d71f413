#include "core/WindowsNames.h"

#include <gtest/gtest.h>

namespace ZORVEL {

namespace {

TEST(WindowsNames, RefusesWhatWindowsMakesNoFileOf) {
  const struct {
    std::wstring name;
    NameFault fault;
    const wchar_t* concerned;
  } cases[] = {{L"", NameFault::Empty, L""},
               {L"a<b", NameFault::Character, L"<"},
               {L"a\\b", NameFault::Character, L"\\"},
               {L"a/", NameFault::Character, L"/"},
               {L"a\tb", NameFault::Character, L"U+0009"},
               {std::wstring(L"a\0", 2), NameFault::Character, L"U+0000"},
               {L"..", NameFault::TrailingDot, L""},
               {L"a ", NameFault::TrailingBlank, L""},
               {L"nul", NameFault::Device, L"nul"},
               {L"Con .tar.gz", NameFault::Device, L"Con"},
               {L"com1.txt", NameFault::Device, L"com1"},
               {L"LPT\u00B2", NameFault::Device, L"LPT\u00B2"},
               {std::wstring(256, L'a'), NameFault::TooLong, L""},
               {std::wstring(128, static_cast<wchar_t>(0x1F600)), NameFault::TooLong, L""}};
  for (const auto& one : cases) {
    const NameRefusal refusal = WindowsNames::WhyRefused(one.name);
    EXPECT_EQ(refusal.fault, one.fault) << one.name.size();
    EXPECT_EQ(refusal.concerned, one.concerned);
    EXPECT_FALSE(refusal.GetText().empty());
  }
  for (const wchar_t* good :
       {L"a", L".a", L" a", L"a.b", L"com", L"com10", L"coma", L"console", L"xnul", L"\u00E9t\u00E9"}) {
    EXPECT_EQ(WindowsNames::WhyRefused(good).fault, NameFault::None) << good;
  }
  EXPECT_EQ(WindowsNames::WhyRefused(std::wstring(255, L'a')).GetText(), L"");
}

TEST(WindowsNames, TellsNoNamesApartByLetterCase) {
  EXPECT_TRUE(WindowsNames::AreAlike(L"Anna", L"aNNA"));
  EXPECT_TRUE(WindowsNames::AreAlike(L"\u00E9t\u00E9", L"\u00C9T\u00C9"));
  EXPECT_FALSE(WindowsNames::AreAlike(L"anna", L"anna "));
  EXPECT_FALSE(WindowsNames::AreAlike(L"stra\u00DFe", L"strasse"));
}

}  // namespace

}  // namespace ZORVEL
