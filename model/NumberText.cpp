#include "model/NumberText.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

namespace ZORVEL {

namespace {

// Below these bounds digits and power of ten are exact doubles, so one operation rounds the result correctly.
const int EXACT_DIGITS = 15;
const int EXACT_POWER = 22;
const int LARGEST_EXPONENT = 100000;

struct Decimal {
  std::uint64_t digits = 0;
  int significant = 0;
  int exponent = 0;
  bool negative = false;
  bool found = false;
};

bool isBlank(wchar_t c) { return c == L' ' || (c >= L'\t' && c <= L'\r'); }
bool isDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

const wchar_t* readDigits(const wchar_t* text, int exponentStep, Decimal& number) {
  for (; isDigit(*text); ++text) {
    number.found = true;
    number.exponent += exponentStep;
    if (number.significant == 0 && *text == L'0') continue;
    if (++number.significant <= EXACT_DIGITS) number.digits = number.digits * 10 + static_cast<unsigned>(*text - L'0');
  }
  return text;
}

/// Answers the end of the exponent, or `text` itself when what stands there is none.
const wchar_t* readExponent(const wchar_t* text, Decimal& number) {
  if (*text != L'e' && *text != L'E') return text;
  const wchar_t* digit = text + 1;
  const bool negative = *digit == L'-';
  if (*digit == L'-' || *digit == L'+') ++digit;
  if (!isDigit(*digit)) return text;
  int exponent = 0;
  for (; isDigit(*digit); ++digit) {
    if (exponent < LARGEST_EXPONENT) exponent = exponent * 10 + (*digit - L'0');
  }
  number.exponent += negative ? -exponent : exponent;
  return digit;
}

double exactValue(const Decimal& number) {
  static const double powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                  1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  const double digits = static_cast<double>(number.digits);
  return number.exponent < 0 ? digits / powers[-number.exponent] : digits * powers[number.exponent];
}

/// For the rare number with many digits or a large exponent.
double slowValue(const wchar_t* begin, const wchar_t* end) {
  std::istringstream stream(std::string(begin, end));
  stream.imbue(std::locale::classic());
  double value = 0;
  stream >> value;
  const bool overflow = stream.fail() && std::fabs(value) >= std::numeric_limits<double>::max();
  return overflow ? std::numeric_limits<double>::infinity() : value;
}

}  // namespace

double numberFromText(const wchar_t* text) {
  if (!text) return 0;
  while (isBlank(*text)) ++text;
  Decimal number;
  number.negative = *text == L'-';
  if (*text == L'-' || *text == L'+') ++text;
  const wchar_t* const begin = text;
  text = readDigits(text, 0, number);
  if (*text == L'.') text = readDigits(text + 1, -1, number);
  if (!number.found) return 0;
  text = readExponent(text, number);

  const bool exact = number.significant <= EXACT_DIGITS && std::abs(number.exponent) <= EXACT_POWER;
  const double value = exact ? exactValue(number) : slowValue(begin, text);
  return number.negative ? -value : value;
}

}  // namespace ZORVEL
