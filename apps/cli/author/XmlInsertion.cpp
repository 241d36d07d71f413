#include "apps/cli/author/XmlInsertion.h"

#include <algorithm>
#include <cstdint>
#include <map>

#include "host/files/Paths.h"

namespace cli {

namespace {

std::string lineEndOf(const std::string& text) {
  const std::size_t found = text.find_first_of("\r\n");
  if (found == std::string::npos || text[found] == '\n') return "\n";
  return text.compare(found, 2, "\r\n") == 0 ? "\r\n" : "\r";
}

bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

}  // namespace

XmlInsertion::XmlInsertion(const std::string& text, const XmlSpan& spans, const TextEncoding& encoding)
    : text_(text), spans_(spans), encoding_(encoding), lineEnd_(lineEndOf(text)) {
  findUnit(spans);
  findQuote(spans);
}

std::string XmlInsertion::withAdditions(const std::vector<Addition>& additions) const {
  std::map<ElementPath, std::vector<const Element*>> byParent;
  for (const Addition& addition : additions) byParent[addition.parent].push_back(&addition.element);
  std::vector<Edit> edits;
  for (const auto& [path, added] : byParent) edits.push_back(editFor(spanAt(path), added));
  // From the end, so that the places before it stay true.
  std::sort(edits.begin(), edits.end(), [](const Edit& a, const Edit& b) { return a.position > b.position; });
  std::string result = text_;
  for (const Edit& edit : edits) result.replace(edit.position, edit.length, edit.text);
  return result;
}

const XmlSpan& XmlInsertion::spanAt(const ElementPath& path) const {
  const XmlSpan* span = &spans_;
  for (const std::size_t index : path) span = &span->children[index];
  return *span;
}

XmlInsertion::Edit XmlInsertion::editFor(const XmlSpan& parent, const std::vector<const Element*>& added) const {
  if (!parent.children.empty()) return afterLastChild(parent, added);
  return parent.isClosedAtOnce ? intoClosed(parent, added) : intoEmpty(parent, added);
}

XmlInsertion::Edit XmlInsertion::afterLastChild(const XmlSpan& parent, const std::vector<const Element*>& added) const {
  const XmlSpan& last = parent.children.back();
  const Layout layout = {isAloneOnLine(last.begin), indentAt(last.begin), quoteIn(last)};
  const std::size_t position = layout.ownLines ? endOfLineWithin(last.end) : last.end;
  return {position, 0, lines(added, layout)};
}

XmlInsertion::Edit XmlInsertion::intoEmpty(const XmlSpan& parent, const std::vector<const Element*>& added) const {
  const Layout layout = {isAloneOnLine(parent.begin), indentAt(parent.begin) + unit_, quoteIn(parent)};
  std::string text = lines(added, layout);
  if (!layout.ownLines) return {parent.contentEnd, 0, text};
  if (!isAloneOnLine(parent.contentEnd)) return {parent.contentEnd, 0, text + lineEnd_ + indentAt(parent.begin)};
  // The end tag keeps its line; each line end goes behind its element instead of before it.
  const std::size_t lineBegin = parent.contentEnd - indentAt(parent.contentEnd).size();
  return {lineBegin, 0, text.substr(lineEnd_.size()) + lineEnd_};
}

XmlInsertion::Edit XmlInsertion::intoClosed(const XmlSpan& parent, const std::vector<const Element*>& added) const {
  const Layout layout = {isAloneOnLine(parent.begin), indentAt(parent.begin) + unit_, quoteIn(parent)};
  std::size_t slash = parent.end - 2;
  while (isBlank(text_[slash - 1]) || isLineEnd(text_[slash - 1])) --slash;
  const std::size_t nameEnd = text_.find_first_of(" \t\r\n/>", parent.begin);
  const std::string name = text_.substr(parent.begin + 1, nameEnd - parent.begin - 1);
  std::string text = ">" + lines(added, layout);
  if (layout.ownLines) text += lineEnd_ + indentAt(parent.begin);
  return {slash, parent.end - slash, text + "</" + name + ">"};
}

/// A line end before each, where they have lines of their own.
std::string XmlInsertion::lines(const std::vector<const Element*>& added, const Layout& layout) const {
  std::string text;
  for (const Element* element : added) {
    if (layout.ownLines) text += lineEnd_ + layout.indent;
    text += written(*element, layout);
  }
  return text;
}

std::string XmlInsertion::written(const Element& element, const Layout& layout) const {
  const std::string start = startOf(element, layout.quote);
  if (element.children.empty()) return start + "/>";
  std::vector<const Element*> children;
  for (const Element& child : element.children) children.push_back(&child);
  std::string text = start + ">" + lines(children, {layout.ownLines, layout.indent + unit_, layout.quote});
  if (layout.ownLines) text += lineEnd_ + layout.indent;
  return text + "</" + host::toUtf8(element.name) + ">";
}

std::string XmlInsertion::startOf(const Element& element, char quote) const {
  std::string text = "<" + host::toUtf8(element.name);
  for (const auto& [name, value] : element.attributes) {
    text += " " + host::toUtf8(name) + "=" + quote + escaped(value, quote) + quote;
  }
  return text;
}

std::string XmlInsertion::escaped(const std::wstring& value, char quote) const {
  std::string text;
  for (const wchar_t c : value) {
    const auto character = static_cast<std::uint32_t>(c);
    const bool writable = character >= 0x20 && (character < 0x80 || encoding_.isUtf8);
    if (c == L'&') {
      text += "&amp;";
    } else if (c == L'<') {
      text += "&lt;";
    } else if (c == static_cast<wchar_t>(quote)) {
      text += quote == '"' ? "&quot;" : "&apos;";
    } else {
      text += writable ? host::toUtf8(std::wstring(1, c)) : "&#" + std::to_string(character) + ";";
    }
  }
  return text;
}

bool XmlInsertion::isAloneOnLine(std::size_t position) const {
  while (position > 0 && isBlank(text_[position - 1])) --position;
  return position == 0 || isLineEnd(text_[position - 1]);
}

/// The blanks before it; all of them where it is alone on its line.
std::string XmlInsertion::indentAt(std::size_t position) const {
  std::size_t begin = position;
  while (begin > 0 && isBlank(text_[begin - 1])) --begin;
  return text_.substr(begin, position - begin);
}

/// Behind the comments that follow on the line, where nothing else does: they belong to what stands before them.
std::size_t XmlInsertion::endOfLineWithin(std::size_t position) const {
  std::size_t at = position;
  while (at < text_.size() && !isLineEnd(text_[at])) {
    if (isBlank(text_[at])) {
      ++at;
    } else if (text_.compare(at, 4, "<!--") == 0) {
      at = text_.find("-->", at) + 3;
    } else {
      return position;
    }
  }
  return at;
}

char XmlInsertion::quoteIn(const XmlSpan& span) const {
  const std::size_t found = text_.find_first_of("\"'", span.begin);
  return found < span.contentBegin ? text_[found] : usualQuote_;
}

/// The first of the document. False when no element in the span has attributes.
bool XmlInsertion::findQuote(const XmlSpan& span) {
  const std::size_t found = text_.find_first_of("\"'", span.begin);
  if (found < span.contentBegin) usualQuote_ = text_[found];
  const auto finds = [this](const XmlSpan& child) { return findQuote(child); };
  return found < span.contentBegin || std::any_of(span.children.begin(), span.children.end(), finds);
}

/// What one level is indented by: the first that shows it. False when none does.
bool XmlInsertion::findUnit(const XmlSpan& span) {
  const std::string outer = indentAt(span.begin);
  for (const XmlSpan& child : span.children) {
    const std::string inner = indentAt(child.begin);
    const bool deeper = inner.size() > outer.size() && inner.compare(0, outer.size(), outer) == 0;
    if (deeper && isAloneOnLine(span.begin) && isAloneOnLine(child.begin)) {
      unit_ = inner.substr(outer.size());
      return true;
    }
    if (findUnit(child)) return true;
  }
  return false;
}

}  // namespace cli
