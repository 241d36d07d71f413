#pragma once

#include <string>
#include <vector>

#include "apps/cli/author/Element.h"
#include "apps/cli/author/TextEncoding.h"
#include "apps/cli/author/XmlSpans.h"

namespace cli {

/// Writes elements into the text of a description as its author would: with the indentation, the line ends and the
/// quotes of what stands around them. Every byte of the author's stays, but the "/" of an element that was closed at
/// once and gets its first child.
class XmlInsertion {
 public:
  /// All are borrowed. `spans` are those of the text.
  XmlInsertion(const std::string& text, const XmlSpan& spans, const TextEncoding& encoding);

  std::string withAdditions(const std::vector<Addition>& additions) const;

 private:
  /// How a new element stands: on lines of its own, or within the line.
  struct Layout {
    bool ownLines = false;
    std::string indent;
    char quote = '"';
  };
  struct Edit {
    std::size_t position;
    std::size_t length;
    std::string text;
  };

  const XmlSpan& spanAt(const ElementPath& path) const;
  Edit editFor(const XmlSpan& parent, const std::vector<const Element*>& added) const;
  Edit afterLastChild(const XmlSpan& parent, const std::vector<const Element*>& added) const;
  Edit intoEmpty(const XmlSpan& parent, const std::vector<const Element*>& added) const;
  Edit intoClosed(const XmlSpan& parent, const std::vector<const Element*>& added) const;

  std::string lines(const std::vector<const Element*>& added, const Layout& layout) const;
  std::string written(const Element& element, const Layout& layout) const;
  std::string startOf(const Element& element, char quote) const;
  std::string escaped(const std::wstring& value, char quote) const;
  bool isAloneOnLine(std::size_t position) const;
  std::string indentAt(std::size_t position) const;
  std::size_t endOfLineWithin(std::size_t position) const;
  char quoteIn(const XmlSpan& span) const;
  bool findUnit(const XmlSpan& span);
  bool findQuote(const XmlSpan& span);

  const std::string& text_;
  const XmlSpan& spans_;
  const TextEncoding& encoding_;
  std::string lineEnd_;
  std::string unit_ = "  ";
  char usualQuote_ = '"';
};

}  // namespace cli
