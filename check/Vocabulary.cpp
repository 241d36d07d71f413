#include "check/Vocabulary.h"

#include <algorithm>
#include <cwctype>

#include "apps/support/NearestIds.h"
#include "host/files/Paths.h"

namespace check {

namespace {

bool areAlikeButForCase(std::wstring_view a, std::wstring_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](wchar_t x, wchar_t y) {
    return std::towlower(static_cast<wint_t>(x)) == std::towlower(static_cast<wint_t>(y));
  });
}

/// Null when none is meant.
template <class Entry>
const Entry* differentInCase(const std::vector<const Entry*>& entries, std::wstring_view name) {
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [name](const Entry* entry) { return areAlikeButForCase(entry->name, name); });
  return found == entries.end() ? nullptr : *found;
}

/// Null when no name is near.
template <class Entry>
const Entry* nearest(const std::vector<const Entry*>& entries, std::wstring_view name) {
  std::vector<std::string> names;
  for (const Entry* entry : entries) names.push_back(host::toUtf8(entry->name));
  const std::string near = apps::nearestId(host::toUtf8(name), names);
  const auto found = std::find(names.begin(), names.end(), near);
  return found == names.end() ? nullptr : entries[static_cast<std::size_t>(found - names.begin())];
}

template <class Entry>
std::vector<const Entry*> pointersTo(const std::vector<Entry>& entries) {
  std::vector<const Entry*> pointers;
  for (const Entry& entry : entries) pointers.push_back(&entry);
  return pointers;
}

/// The document element is nobody's child.
std::vector<const ElementEntry*> allButTheDocumentElement() {
  std::vector<const ElementEntry*> entries = pointersTo(allEntries());
  entries.erase(entries.begin());
  return entries;
}

/// What may be meant in an element: nobody writes what is only there to be warned of.
std::vector<const AttributeEntry*> usefulOf(const ElementEntry& element) {
  std::vector<const AttributeEntry*> useful = pointersTo(element.attributes);
  const auto isUseless = [](const AttributeEntry* one) { return one->need >= Need::Unused; };
  useful.erase(std::remove_if(useful.begin(), useful.end(), isUseless), useful.end());
  return useful;
}

bool isOfXml(std::wstring_view name) {
  const auto beginsWith = [name](std::wstring_view prefix) { return name.substr(0, prefix.size()) == prefix; };
  return name == L"xmlns" || beginsWith(L"xmlns:") || beginsWith(L"xml:") || beginsWith(L"xsi:");
}

/// "a", "a or b", "a, b or c".
std::string eitherOf(const std::vector<std::string>& texts) {
  std::string joined;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const bool isLast = i + 1 == texts.size();
    joined += (i == 0 ? "" : isLast ? " or " : ", ") + texts[i];
  }
  return joined;
}

}  // namespace

const ElementEntry& entryOf(EntryKind kind) { return allEntries()[static_cast<std::size_t>(kind)]; }

std::vector<const ElementEntry*> childrenOf(EntryKind parent) {
  std::vector<const ElementEntry*> children;
  for (const ElementEntry& entry : allEntries()) {
    if (entry.parent == parent && entry.kind != parent) children.push_back(&entry);
  }
  return children;
}

ElementLookup elementAt(EntryKind parent, std::wstring_view name) {
  using Answer = ElementLookup::Answer;
  const std::vector<const ElementEntry*> here = childrenOf(parent);
  for (const ElementEntry* entry : here) {
    if (entry->name == name) return {Answer::Read, entry};
    if (entry->isNameFree) return {Answer::ReadUnderAnyName, entry};
  }
  if (const ElementEntry* meant = differentInCase(here, name)) return {Answer::LetterCase, meant};
  if (const ElementEntry* other = differentInCase(allButTheDocumentElement(), name)) return {Answer::Elsewhere, other};
  return {Answer::Unknown, nearest(here, name)};
}

std::string placesOf(std::wstring_view name) {
  std::vector<std::string> places;
  for (const ElementEntry* entry : allButTheDocumentElement()) {
    const std::string parent = '"' + host::toUtf8(entryOf(entry->parent).name) + '"';
    const bool isNew = std::find(places.begin(), places.end(), parent) == places.end();
    if (isNew && areAlikeButForCase(entry->name, name)) places.push_back(parent);
  }
  return eitherOf(places);
}

AttributeLookup attributeAt(const ElementEntry& element, std::wstring_view name) {
  using Answer = AttributeLookup::Answer;
  if (isOfXml(name)) return {Answer::OfXml, nullptr};
  for (const AttributeEntry& entry : element.attributes) {
    if (entry.name == name) return {Answer::Known, &entry};
  }
  const std::vector<const AttributeEntry*> useful = usefulOf(element);
  if (const AttributeEntry* meant = differentInCase(useful, name)) return {Answer::LetterCase, meant};
  return {Answer::Unknown, nearest(useful, name)};
}

}  // namespace check
