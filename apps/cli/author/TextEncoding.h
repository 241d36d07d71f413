#pragma once

#include <string>
#include <string_view>

namespace cli {

/// How the characters of an XML file are written.
struct TextEncoding {
  /// For a person.
  std::string name;
  /// Every byte below 128 is the character of that number and nothing else, so that markup is found without decoding.
  bool hasPlainMarkup = false;
  /// Otherwise characters beyond ASCII have to be written as references.
  bool isUtf8 = false;
};

/// By the byte order mark, and by what the declaration says.
TextEncoding encodingOf(std::string_view bytes);

}  // namespace cli
