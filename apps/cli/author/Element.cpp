#include "apps/cli/author/Element.h"

#include <algorithm>

#include "repository/XmlDocument.h"

namespace cli {

std::wstring Element::text(const std::wstring& attribute) const {
  const auto found =
      std::find_if(attributes.begin(), attributes.end(), [&](const auto& one) { return one.first == attribute; });
  return found == attributes.end() ? std::wstring() : found->second;
}

bool operator==(const Element& left, const Element& right) {
  return left.name == right.name && left.attributes == right.attributes && left.children == right.children;
}

Element elementOf(const ZORVEL::XmlElement& source) {
  Element element;
  element.name = source.name;
  for (int i = 0; i < source.attributeCount; ++i) {
    element.attributes.emplace_back(source.attributes[i].name.GetText(), source.attributes[i].GetText());
  }
  for (const auto* child = source.firstChild; child != nullptr; child = child->nextSibling) {
    element.children.push_back(elementOf(*child));
  }
  return element;
}

std::vector<const Element*> childrenOf(const Element& parent, const std::wstring& name) {
  std::vector<const Element*> children;
  for (const Element& child : parent.children) {
    if (child.name == name) children.push_back(&child);
  }
  return children;
}

std::vector<const Element*> entriesOf(const Element& parent, const std::wstring& list, const std::wstring& name) {
  std::vector<const Element*> entries;
  for (const Element* one : childrenOf(parent, list)) {
    const std::vector<const Element*> found = childrenOf(*one, name);
    entries.insert(entries.end(), found.begin(), found.end());
  }
  return entries;
}

Element withAdditions(Element root, const std::vector<Addition>& additions) {
  for (const Addition& addition : additions) {
    Element* parent = &root;
    for (const std::size_t index : addition.parent) parent = &parent->children[index];
    parent->children.push_back(addition.element);
  }
  return root;
}

}  // namespace cli
