#include "model/NumberText.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cwchar>
#include <locale>
#include <string>

namespace ZORVEL {

class DecimalComma : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

const wchar_t* const TEXTS[] = {
    // Decimal.
    L"12.5", L" \t-0.37x", L"\r\n7", L"223321211364503.06", L"+.5e1", L"5.", L"1,5", L"1e", L"1e+", L"2e3.5", L"", L" ",
    L".", L"-", L"+-1", L"e5", L".e5", L"\u0663", L"1e-400", L"4.9e-324", L"123456789012345678901", L"0.1e-30",
    L"1e400", L"-1e99999999999", L"1.7976931348623157e308", L"00000000000000000000001.25",
    L"0.00000000000000000000000000000000000000000000125", L"0e999999", L"-0", L"\u00a01",
    // Hexadecimal.
    L"0x1F", L"-0XaBp2", L"0x1.8p-3", L"0x.8", L"0x", L"0x.", L"0xg", L"0xp1", L"0x1p", L"0x1p+", L"0x1.8.8", L"0x1e+2",
    L"0x1p99999999", L"0x1p-99999999", L"0x1fffffffffffff8", L"0x20000000000001", L"0x200000000000018",
    L"0x1000000000000080000000000000000001", L"0x1000000000000080000000000000000000", L"00x1",
    // Words.
    L"inf", L"-Infinity", L"infinit", L"in", L"INFx", L"nan", L"NaN(12_a)", L"nan(", L"nan(-)", L"-nan", L"na",
    L"none"};

/// Both answer whether it is a number at all, and for a number how it reads.
void expectLikeTheLibrary(const wchar_t* text) {
  wchar_t* end = nullptr;
  const double expected = std::wcstod(text, &end);
  const double number = NumberFromText(text);
  const std::wstring shown(text);
  const std::string label(shown.begin(), shown.end());
  if (std::isnan(expected)) {
    EXPECT_TRUE(std::isnan(number)) << label;
  } else {
    EXPECT_EQ(number, expected) << label;
  }
  EXPECT_EQ(IsWhollyNumber(text), end != text && *end == 0) << label;
}

TEST(NumberText, ReadsWhatTheLibraryReads) {
  for (const wchar_t* text : TEXTS) expectLikeTheLibrary(text);
  EXPECT_EQ(NumberFromText(nullptr), 0);
  EXPECT_FALSE(IsWhollyNumber(nullptr));
  EXPECT_TRUE(IsWhollyNumber(L" 1 \t"));
}

TEST(NumberText, ReadsTheSameWhateverTheLocale) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
  std::setlocale(LC_NUMERIC, "de_DE.UTF-8");  // where it is installed
  EXPECT_EQ(NumberFromText(L"12.5"), 12.5);
  EXPECT_EQ(NumberFromText(L"1,5"), 1);
  EXPECT_EQ(NumberFromText(L"1234567890.12345678901"), 1234567890.12345678901);
  EXPECT_EQ(NumberFromText(L"0x1.8"), 1.5);
  std::locale::global(before);
  std::setlocale(LC_NUMERIC, "C");
}

}  // namespace ZORVEL
