#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace cli {

/// Where an element stands in the bytes of a file; each pair of places is a range without its end.
struct XmlSpan {
  std::size_t begin = 0;         ///< the '<' of the start tag
  std::size_t contentBegin = 0;  ///< behind the start tag
  std::size_t contentEnd = 0;    ///< the '<' of the end tag
  std::size_t end = 0;
  bool isClosedAtOnce = false;  ///< <x/>, which has no end tag: what would be its content lies at its end
  std::vector<XmlSpan> children;
};

/// The spans of a well-formed document in an encoding with plain markup. Nothing for one with a document type, where
/// elements may come out of entities.
std::optional<XmlSpan> findSpans(std::string_view text);

}  // namespace cli
