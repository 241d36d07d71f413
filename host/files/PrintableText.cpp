#include "host/files/PrintableText.h"

#include <cstdint>
#include <cstdio>
#include <ostream>

#include "host/files/Paths.h"

namespace host {

namespace {

/// toWide() has such surrogates for bytes that are no UTF-8, and UTF-8 itself has none.
constexpr std::uint32_t BYTES = 0xDC00;

bool isByte(std::uint32_t c) { return c >= BYTES + 0x80 && c <= BYTES + 0xFF; }
bool isControl(std::uint32_t c) { return c < 0x20 || (c >= 0x7F && c <= 0x9F); }
bool isSeparator(std::uint32_t c) { return c == 0x2028 || c == 0x2029; }
bool turnsWriting(std::uint32_t c) { return (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069); }

std::string escaped(const char* format, std::uint32_t number) {
  char text[16];
  std::snprintf(text, sizeof text, format, static_cast<unsigned>(number));
  return text;
}

std::string shown(wchar_t wide) {
  const auto c = static_cast<std::uint32_t>(wide);
  if (isByte(c)) return escaped("\\x%02x", c - BYTES);
  if (isControl(c)) return escaped(c < 0x80 ? "\\x%02x" : "\\u%04x", c);
  if (isSeparator(c) || turnsWriting(c)) return escaped("\\u%04x", c);
  return toUtf8(std::wstring_view(&wide, 1));
}

}  // namespace

std::string printable(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (const wchar_t c : toWide(text)) result += shown(c);
  return result;
}

void printLine(std::ostream& stream, std::string_view text) { stream << printable(text) << '\n'; }

}  // namespace host
