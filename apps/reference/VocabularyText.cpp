#include "apps/reference/VocabularyText.h"

#include "host/files/Paths.h"

namespace reference {

using check::AttributeKind;
using check::Count;
using check::ElementEntry;

namespace {

const char* textOf(Count count) {
  switch (count) {
    case Count::One:
      return "One";
    case Count::AtMostOne:
      return "One at most";
    case Count::OneOrMore:
      return "One or more";
    case Count::Any:
      return "Any number";
  }
  return "";
}

/// "asset in globalAssets": a name alone is not enough.
std::string placeOf(const ElementEntry& entry) { return nameOf(entry) + " in " + nameOf(check::entryOf(entry.parent)); }

}  // namespace

std::string nameOf(const ElementEntry& entry) { return host::toUtf8(entry.name); }

std::string nameOf(const check::AttributeEntry& attribute) { return host::toUtf8(attribute.name); }

std::string summaryOf(const ElementEntry& entry) {
  const std::string without = *entry.without == '\0' ? "" : std::string(" Without it, ") + entry.without + '.';
  return std::string(textOf(entry.count)) + ": " + entry.becomes + '.' + without;
}

bool isWorthWriting(const check::AttributeEntry& attribute) { return attribute.need < check::Need::Unused; }

std::string kindOf(const check::AttributeEntry& attribute) {
  switch (attribute.kind) {
    case AttributeKind::Id:
      return "id";
    case AttributeKind::Reference:
      return "id of " + placeOf(check::entryOf(attribute.target));
    case AttributeKind::File:
      return "file";
    case AttributeKind::Folder:
      return "folder";
    case AttributeKind::Number:
      return "number";
    case AttributeKind::Address:
      return "web address";
    case AttributeKind::Choice:
      return "choice";
    case AttributeKind::Text:
      return "text";
  }
  return "";
}

}  // namespace reference
