#include "model/NumberText.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <locale>
#include <string>

namespace ZORVEL {

class DecimalComma : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(NumberText, ReadsTheLeadingNumberWhateverTheLocale) {
  const std::pair<const wchar_t*, double> cases[] = {{L"12.5", 12.5},
                                                     {L" \t-0.37x", -0.37},
                                                     {L"+.5e1", 5},
                                                     {L"5.", 5},
                                                     {L"1,5", 1},
                                                     {L"1e", 1},
                                                     {L"1e+", 1},
                                                     {L"2e3.5", 2000},
                                                     {L"", 0},
                                                     {L".", 0},
                                                     {L"-", 0},
                                                     {L"e5", 0},
                                                     {L"\u0663", 0},
                                                     {L"nan", 0},
                                                     {L"1e-400", 0},
                                                     {L"123456789012345678901", 123456789012345678901.0},
                                                     {L"0.1e-30", 0.1e-30},
                                                     {L"1e400", HUGE_VAL},
                                                     {L"-1e99999999999", -HUGE_VAL},
                                                     {L"1.7976931348623157e308", 1.7976931348623157e308},
                                                     {L"00000000000000000000001.25", 1.25},
                                                     {L"0.00000000000000000000000000000000000000000000125", 1.25e-45}};
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
  std::setlocale(LC_NUMERIC, "de_DE.UTF-8");  // where it is installed
  for (const auto& [text, number] : cases) EXPECT_DOUBLE_EQ(numberFromText(text), number);
  EXPECT_EQ(numberFromText(nullptr), 0);
  std::locale::global(before);
  std::setlocale(LC_NUMERIC, "C");
}

}  // namespace ZORVEL
