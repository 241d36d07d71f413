#include "apps/reference/FormatTables.h"

#include "apps/reference/VocabularyText.h"
#include "host/files/Paths.h"

namespace reference {

using check::AttributeEntry;
using check::ElementEntry;
using check::Need;

namespace {

std::string code(const std::string& text) { return '`' + text + '`'; }

const char* wordFor(Need need) {
  switch (need) {
    case Need::ToBeRead:
    case Need::ToBeUsed:
      return "must";
    case Need::ToLookWell:
      return "should";
    case Need::Free:
      return "may";
    case Need::Unused:
      return "no use";
    case Need::Forbidden:
      return "must not";
  }
  return "";
}

std::string meaningOf(const AttributeEntry& attribute) {
  std::string text = attribute.meaning;
  for (const check::AttributeValue& value : attribute.values) {
    text += "<br>" + code(host::toUtf8(value.text)) + ": " + value.meaning;
  }
  return text;
}

std::string rowOf(const AttributeEntry& attribute) {
  std::string row = "|";
  for (const std::string& cell :
       {code(nameOf(attribute)), std::string(wordFor(attribute.need)), kindOf(attribute), meaningOf(attribute),
        std::string(attribute.readBy), std::string(attribute.without)}) {
    row += ' ' + cell + " |";
  }
  return row + '\n';
}

std::string tableOf(const ElementEntry& entry) {
  if (entry.attributes.empty()) return "It has no attributes.\n";
  std::string table = "| attribute | | kind | is | read by | without it |\n|---|---|---|---|---|---|\n";
  for (const AttributeEntry& attribute : entry.attributes) table += rowOf(attribute);
  return table;
}

/// "character/skins/skin": below the document element, which is left out.
std::string pathOf(const ElementEntry& entry) {
  const ElementEntry& parent = check::entryOf(entry.parent);
  return (parent.kind == parent.parent ? "" : pathOf(parent) + '/') + nameOf(entry);
}

std::string sectionOf(const ElementEntry& entry) {
  const std::string anyName = entry.isNameFree ? " Elements of other names count as well." : "";
  return "### " + code(pathOf(entry)) + "\n\n" + summaryOf(entry) + anyName + "\n\n" + tableOf(entry);
}

std::string branchOf(const ElementEntry& entry, const std::string& indent) {
  std::string text = indent + nameOf(entry) + '\n';
  for (const ElementEntry* child : check::childrenOf(entry.kind)) text += branchOf(*child, indent + "  ");
  return text;
}

}  // namespace

std::string elementTree() { return "```\n" + branchOf(check::allEntries().front(), "") + "```\n"; }

std::string elementSections() {
  std::string text;
  for (const ElementEntry& entry : check::allEntries()) text += (text.empty() ? "" : "\n") + sectionOf(entry);
  return text;
}

}  // namespace reference
