#include "apps/reference/Schema.h"

#include <algorithm>
#include <set>
#include <vector>

#include "apps/reference/VocabularyText.h"
#include "host/files/Paths.h"

namespace reference {

using check::AttributeEntry;
using check::ElementEntry;

namespace {

const char* const BEGINNING = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- For editors: completes and explains zorvel.xml. Written by scripts/reference, so change check/VocabularyTable.cpp and not this file.
     A repository names it in its document element:
     <zorvel xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" xsi:noNamespaceSchemaLocation="zorvel.xsd"> -->
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
)";

std::string escaped(const std::string& text) {
  std::string result;
  for (const char c : text) {
    if (c == '&') {
      result += "&amp;";
    } else if (c == '<') {
      result += "&lt;";
    } else if (c == '"') {
      result += "&quot;";
    } else {
      result += c;
    }
  }
  return result;
}

std::string annotation(const std::string& text) {
  return "<xs:annotation><xs:documentation>" + escaped(text) + "</xs:documentation></xs:annotation>";
}

/// Kinds of one name are told apart by their parents.
std::string typeOf(const ElementEntry& entry) {
  return entry.kind == entry.parent ? nameOf(entry) : nameOf(check::entryOf(entry.parent)) + '.' + nameOf(entry);
}

std::string elementOf(const ElementEntry& entry, const char* indent) {
  return indent + ("<xs:element name=\"" + nameOf(entry)) + "\" type=\"" + typeOf(entry) + "\">" +
         annotation(summaryOf(entry)) + "</xs:element>\n";
}

/// The values are offered; any other text is read as well.
std::string choiceOf(const AttributeEntry& attribute) {
  std::string text = "      <xs:simpleType><xs:union>\n        <xs:simpleType><xs:restriction base=\"xs:string\">\n";
  for (const check::AttributeValue& value : attribute.values) {
    text += "          <xs:enumeration value=\"" + escaped(host::toUtf8(value.text)) + "\">" +
            annotation(value.meaning) + "</xs:enumeration>\n";
  }
  return text + "        </xs:restriction></xs:simpleType>\n" +
         "        <xs:simpleType><xs:restriction base=\"xs:string\"/></xs:simpleType>\n      "
         "</xs:union></xs:simpleType>\n";
}

std::string attributeOf(const AttributeEntry& attribute) {
  const bool isChoice = !attribute.values.empty();
  const bool isNeeded = attribute.need == check::Need::ToBeRead;
  return "    <xs:attribute name=\"" + nameOf(attribute) + '"' + (isChoice ? "" : " type=\"xs:string\"") +
         (isNeeded ? " use=\"required\">\n      " : ">\n      ") +
         annotation(std::string(attribute.meaning) + " (" + kindOf(attribute) + "). Without it: " + attribute.without +
                    '.') +
         '\n' + (isChoice ? choiceOf(attribute) : "") + "    </xs:attribute>\n";
}

std::string contentOf(const ElementEntry& entry) {
  const std::vector<const ElementEntry*> children = check::childrenOf(entry.kind);
  if (children.empty()) return "";
  std::string text = "    <xs:choice minOccurs=\"0\" maxOccurs=\"unbounded\">\n";
  for (const ElementEntry* child : children) {
    text += child->isNameFree ? "      <xs:any namespace=\"##any\" processContents=\"lax\"/>\n"
                              : elementOf(*child, "      ");
  }
  return text + "    </xs:choice>\n";
}

std::string complexTypeOf(const ElementEntry& entry) {
  std::string text = "  <xs:complexType name=\"" + typeOf(entry) + "\">\n" + contentOf(entry);
  for (const AttributeEntry& attribute : entry.attributes) {
    if (isWorthWriting(attribute)) text += attributeOf(attribute);
  }
  return text + "    <xs:anyAttribute namespace=\"##any\" processContents=\"skip\"/>\n  </xs:complexType>\n";
}

/// Known to the whole document, so that an editor finds them where any name may stand. One of each name.
std::vector<const ElementEntry*> globalEntries() {
  std::vector<const ElementEntry*> entries = {&check::allEntries().front()};
  for (const ElementEntry& entry : check::allEntries()) {
    const auto hasItsName = [&](const ElementEntry* other) { return nameOf(*other) == nameOf(entry); };
    if (entry.isNameFree && std::none_of(entries.begin(), entries.end(), hasItsName)) entries.push_back(&entry);
  }
  return entries;
}

}  // namespace

std::string schema() {
  std::string text = BEGINNING;
  for (const ElementEntry* entry : globalEntries()) text += elementOf(*entry, "  ");
  std::set<std::string> written;
  for (const ElementEntry& entry : check::allEntries()) {
    // A material is the same in an own asset and in a shared one.
    if (written.insert(typeOf(entry)).second) text += complexTypeOf(entry);
  }
  return text + "</xs:schema>\n";
}

}  // namespace reference
