#include "apps/cli/author/TextEncoding.h"

#include <algorithm>
#include <regex>

namespace cli {

namespace {

bool beginsWith(std::string_view text, std::string_view beginning) {
  return text.substr(0, beginning.size()) == beginning;
}

/// As written, empty when there is none. The declaration is the first thing in a file.
std::string declaredEncoding(std::string_view bytes) {
  static const std::regex DECLARATION(R"(^(\xEF\xBB\xBF)?<\?xml\s[^>]*?encoding\s*=\s*["']([A-Za-z0-9._\-]+)["'])");
  const std::string beginning(bytes.substr(0, 256));
  std::smatch match;
  return std::regex_search(beginning, match, DECLARATION) ? match[2].str() : std::string();
}

std::string inCapitals(std::string name) {
  std::transform(name.begin(), name.end(), name.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  return name;
}

/// Two bytes to a character or four, with a mark or seen from the first character, which is '<'.
bool isWide(std::string_view bytes) {
  using namespace std::string_view_literals;
  for (const std::string_view beginning : {"\xFE\xFF"sv, "\xFF\xFE"sv, "\0"sv, "<\0"sv}) {
    if (beginsWith(bytes, beginning)) return true;
  }
  return false;
}

}  // namespace

TextEncoding encodingOf(std::string_view bytes) {
  if (isWide(bytes)) return {"UTF-16 or UTF-32", false, false};
  const std::string declared = declaredEncoding(bytes);
  const std::string name = inCapitals(declared);
  if (name.empty() || name == "UTF-8" || name == "UTF8") return {"UTF-8", true, true};
  const bool extendsAscii = name == "US-ASCII" || name == "ASCII" || beginsWith(name, "ISO-8859-") ||
                            beginsWith(name, "WINDOWS-125") || beginsWith(name, "CP125");
  return {declared, extendsAscii, false};
}

}  // namespace cli
