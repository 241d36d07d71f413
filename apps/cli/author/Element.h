#pragma once

#include <string>
#include <utility>
#include <vector>

#include "repository/XmlDocument.h"

namespace cli {

/// An element of a description, to be compared and changed.
struct Element {
  std::wstring name;
  std::vector<std::pair<std::wstring, std::wstring>> attributes;
  std::vector<Element> children;

  /// Empty when there is no such attribute.
  std::wstring text(const std::wstring& attribute) const;
};

bool operator==(const Element& left, const Element& right);

Element elementOf(const ZORVEL::XmlElement& source);

/// Of all children of one name, in document order; borrowed.
std::vector<const Element*> childrenOf(const Element& parent, const std::wstring& name);
/// Of all lists of one name, the elements of another: a list may be there several times.
std::vector<const Element*> entriesOf(const Element& parent, const std::wstring& list, const std::wstring& name);

/// Which child to take at each step down from the document element.
using ElementPath = std::vector<std::size_t>;

/// An element that is to become the last child of the one at the path.
struct Addition {
  ElementPath parent;
  Element element;
};

/// The document element with what is added; the paths are those before anything is.
Element withAdditions(Element root, const std::vector<Addition>& additions);

}  // namespace cli
