#include "model/NumberText.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
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
  bool found = false;
};

struct Hexadecimal {
  std::uint64_t digits = 0;
  int exponent = 0;  // of two
  bool found = false;
};

bool IsBlank(wchar_t c) { return c == L' ' || (c >= L'\t' && c <= L'\r'); }
bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }
wchar_t Lower(wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c; }
bool IsPartOfName(wchar_t c) { return IsDigit(c) || c == L'_' || (Lower(c) >= L'a' && Lower(c) <= L'z'); }

/// -1 for what is none.
int HexDigit(wchar_t c) {
  if (IsDigit(c)) return c - L'0';
  return Lower(c) >= L'a' && Lower(c) <= L'f' ? Lower(c) - L'a' + 10 : -1;
}

/// Answers the end of the exponent, or `text` itself when what stands there is none. The letter is a small one.
const wchar_t* ReadExponent(const wchar_t* text, wchar_t letter, int& exponent) {
  if (Lower(*text) != letter) return text;
  const wchar_t* digit = text + 1;
  const bool negative = *digit == L'-';
  if (*digit == L'-' || *digit == L'+') ++digit;
  if (!IsDigit(*digit)) return text;
  int written = 0;
  for (; IsDigit(*digit); ++digit) {
    if (written < LARGEST_EXPONENT) written = written * 10 + (*digit - L'0');
  }
  exponent += negative ? -written : written;
  return digit;
}

const wchar_t* ReadDigits(const wchar_t* text, int exponentStep, Decimal& number) {
  for (; IsDigit(*text); ++text) {
    number.found = true;
    number.exponent += exponentStep;
    if (number.significant == 0 && *text == L'0') continue;
    if (++number.significant <= EXACT_DIGITS) number.digits = number.digits * 10 + static_cast<unsigned>(*text - L'0');
  }
  return text;
}

/// Ten to the power, from 0 to EXACT_POWER.
double PowerOfTen(int power) {
  static const double powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                  1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  return powers[power];
}

double ExactValue(const Decimal& number) {
  const auto digits = static_cast<double>(number.digits);
  return number.exponent < 0 ? digits / PowerOfTen(-number.exponent) : digits * PowerOfTen(number.exponent);
}

/// What nearly every number is: a few digits and perhaps a point. False, and nothing read, for all others.
bool ReadPlain(const wchar_t* const begin, const wchar_t*& end, double& value) {
  std::uint64_t digits = 0;
  const wchar_t* text = begin;
  for (; IsDigit(*text); ++text) digits = digits * 10 + static_cast<unsigned>(*text - L'0');
  const auto whole = text - begin;
  const wchar_t* const fraction = *text == L'.' ? text + 1 : text;
  for (text = fraction; IsDigit(*text); ++text) digits = digits * 10 + static_cast<unsigned>(*text - L'0');
  const auto places = text - fraction;
  if (whole + places == 0 || whole + places > EXACT_DIGITS || IsPartOfName(*text)) return false;
  end = text;
  value = static_cast<double>(digits) / PowerOfTen(static_cast<int>(places));
  return true;
}

/// For the rare number with many digits or a large exponent.
double SlowValue(const wchar_t* begin, const wchar_t* end) {
  std::istringstream stream(std::string(begin, end));
  stream.imbue(std::locale::classic());
  double value = 0;
  stream >> value;
  const bool overflow = stream.fail() && std::fabs(value) >= std::numeric_limits<double>::max();
  return overflow ? std::numeric_limits<double>::infinity() : value;
}

double ReadDecimal(const wchar_t* const begin, const wchar_t*& end) {
  Decimal number;
  const wchar_t* text = ReadDigits(begin, 0, number);
  if (*text == L'.') text = ReadDigits(text + 1, -1, number);
  if (!number.found) return 0;
  end = ReadExponent(text, L'e', number.exponent);
  const bool exact = number.significant <= EXACT_DIGITS && std::abs(number.exponent) <= EXACT_POWER;
  return exact ? ExactValue(number) : SlowValue(begin, end);
}

/// Digits that the mantissa has no room for leave one bit behind, which keeps the rounding right.
const wchar_t* ReadHexDigits(const wchar_t* text, int exponentStep, Hexadecimal& number) {
  for (int digit = HexDigit(*text); digit >= 0; digit = HexDigit(*++text)) {
    number.found = true;
    number.exponent += exponentStep;
    if (number.digits >> 56 == 0) {
      number.digits = number.digits * 16 + static_cast<unsigned>(digit);
    } else {
      number.digits |= digit != 0 ? 1U : 0U;
      number.exponent += 4;
    }
  }
  return text;
}

double ReadHexadecimal(const wchar_t* const begin, const wchar_t*& end) {
  Hexadecimal number;
  const wchar_t* text = ReadHexDigits(begin + 2, 0, number);
  if (*text == L'.') text = ReadHexDigits(text + 1, -4, number);
  // Of "0x" alone the number is the zero.
  end = number.found ? ReadExponent(text, L'p', number.exponent) : begin + 1;
  return std::ldexp(static_cast<double>(number.digits), number.exponent);
}

/// Answers what follows the word, or null when something else stands there. The word is in small letters.
const wchar_t* After(const wchar_t* text, const wchar_t* word) {
  for (; *word; ++text, ++word) {
    if (Lower(*text) != *word) return nullptr;
  }
  return text;
}

const wchar_t* AfterParentheses(const wchar_t* text) {
  if (*text != L'(') return text;
  const wchar_t* inner = text + 1;
  while (IsPartOfName(*inner)) ++inner;
  return *inner == L')' ? inner + 1 : text;
}

double ReadWord(const wchar_t* text, const wchar_t*& end) {
  if (const wchar_t* afterInf = After(text, L"inf")) {
    const wchar_t* afterInfinity = After(afterInf, L"inity");
    end = afterInfinity ? afterInfinity : afterInf;
    return std::numeric_limits<double>::infinity();
  }
  const wchar_t* afterNan = After(text, L"nan");
  if (!afterNan) return 0;
  end = AfterParentheses(afterNan);
  return std::numeric_limits<double>::quiet_NaN();
}

double ReadUnsigned(const wchar_t* text, const wchar_t*& end) {
  double value = 0;
  if (ReadPlain(text, end, value)) return value;
  if (*text == L'0' && Lower(text[1]) == L'x') return ReadHexadecimal(text, end);
  return IsDigit(*text) || *text == L'.' ? ReadDecimal(text, end) : ReadWord(text, end);
}

/// `end` is behind the number, or `text` itself when there is none.
double ReadNumber(const wchar_t* text, const wchar_t*& end) {
  end = text;
  while (IsBlank(*text)) ++text;
  const bool negative = *text == L'-';
  if (*text == L'-' || *text == L'+') ++text;
  const double value = ReadUnsigned(text, end);
  return negative ? -value : value;
}

}  // namespace

double NumberFromText(const wchar_t* text) {
  const wchar_t* end = nullptr;
  return text ? ReadNumber(text, end) : 0;
}

bool IsWhollyNumber(const wchar_t* text) {
  const wchar_t* end = nullptr;
  if (!text) return false;
  ReadNumber(text, end);
  if (end == text) return false;
  while (IsBlank(*end)) ++end;
  return *end == 0;
}

}  // namespace ZORVEL
