#include "check/rules/ReadingRules.h"

#include <cwchar>

#include "core/WindowsNames.h"
#include "host/files/Paths.h"
#include "model/NumberText.h"
#include "model/RepositoryFormat.h"

namespace check {

using ZORVEL::XmlAttribute;
using ZORVEL::XmlElement;
using namespace ZORVEL::RepositoryFormat;

namespace {

using Kind = ZORVEL::ParseNoteKind;

bool isRefusedCharacter(Kind kind) {
  return kind == Kind::CharacterWithoutAttributes || kind == Kind::CharacterWithoutFolder ||
         kind == Kind::CharacterWithoutPreviews || kind == Kind::CharacterWithoutSkin;
}

std::string hintFor(const wchar_t* nearest) {
  return nearest != nullptr ? "; did you mean \"" + host::toUtf8(nearest) + "\"?" : "";
}

std::string numberText(double number) {
  std::string text = std::to_string(number);
  text.erase(text.find_last_not_of('0') + 1);
  if (!text.empty() && text.back() == '.') text.pop_back();
  return text;
}

bool hasName(const ElementEntry& entry) {
  switch (entry.kind) {
    case EntryKind::Character:
    case EntryKind::Skin:
    case EntryKind::Style:
    case EntryKind::Category:
    case EntryKind::AssetMaterial:
    case EntryKind::SharedMaterial:
      return true;
    default:
      return false;
  }
}

bool isList(EntryKind kind) { return kind == EntryKind::Skins || kind == EntryKind::Cloth || kind == EntryKind::Poses; }

}  // namespace

void ReadingRules::run() {
  const Description& description = survey_.findings.description();
  for (const ZORVEL::ParseNote& note : description.notes()) {
    if (isRefusedCharacter(note.kind)) refused_.insert(note.source);
  }
  if (description.root() != nullptr) walk(*description.root(), entryOf(EntryKind::Repository));
  for (const ZORVEL::ParseNote& note : description.notes()) tell(note);
}

void ReadingRules::tell(const ZORVEL::ParseNote& note) {
  Findings& findings = survey_.findings;
  switch (note.kind) {
    case Kind::NoDescription:
      return findings.addToFile(RuleId::DescriptionMissing, "", {});
    case Kind::DescriptionNotReadable:
      return findings.addAt(RuleId::DescriptionUnreadable, note.line, note.column, {note.text});
    case Kind::DescriptionNotWellFormed:
      return findings.addAt(RuleId::DescriptionNotWellFormed, note.line, note.column, {note.text});
    case Kind::DescriptionBeyondLimits:
      return findings.addAt(RuleId::DescriptionBeyondLimits, note.line, note.column, {note.text});
    case Kind::WrongDocumentElement:
      return findings.addAt(RuleId::WrongDocumentElement, note.line, note.column, {note.element});
    case Kind::CharacterWithoutAttributes:
      return findings.add(RuleId::CharacterWithoutAttributes, note.source, {});
    case Kind::CharacterWithoutFolder:
      return findings.add(RuleId::CharacterFolderUnnamed, note.source, {});
    case Kind::CharacterWithoutPreviews:
      return findings.add(RuleId::CharacterPreviewsMissing, note.source, {survey_.shown(note.path)});
    case Kind::CharacterWithoutSkin:
      return findings.add(RuleId::CharacterSkinFolderMissing, note.source, {survey_.shown(note.path)});
    case Kind::ElementSkipped:
      return tellSkipped(note);
    case Kind::ClothingWithoutPreview:
      return findings.add(RuleId::ClothingPreviewMissing, note.source, {survey_.shown(note.path)});
    case Kind::MatrixRowDropped:
      return findings.add(RuleId::MatrixRowIncomplete, note.source, {note.name});
    case Kind::NumberNotWhole:
      return findings.add(RuleId::NumberNotWhole, note.source,
                          {note.name, note.text, numberText(ZORVEL::NumberFromText(note.text.c_str()))});
    case Kind::ListNameExtended:
      return findings.add(RuleId::ListNameExtended, note.source, {note.text});
    case Kind::AttributeOfTheSystem:
      return findings.add(RuleId::SystemAttribute, note.source, {note.name});
  }
}

void ReadingRules::tellSkipped(const ZORVEL::ParseNote& note) {
  using Answer = ElementLookup::Answer;
  const XmlElement* parent = survey_.findings.description().parentOf(*note.source);
  const auto around = entries_.find(parent);
  if (around == entries_.end()) return;
  const ElementLookup lookup = elementAt(around->second->kind, note.element);
  if (lookup.answer != Answer::Elsewhere && lookup.entry != nullptr) {
    survey_.lostLists.emplace(parent, lookup.entry->kind);
  }
  Findings& findings = survey_.findings;
  if (lookup.answer == Answer::LetterCase) {
    findings.add(RuleId::ElementLetterCase, note.source, {note.element, lookup.entry->name});
  } else if (lookup.answer == Answer::Elsewhere) {
    findings.add(RuleId::MisplacedElement, note.source, {note.element, note.name, placesOf(note.element)});
  } else {
    const wchar_t* nearest = lookup.entry != nullptr ? lookup.entry->name : nullptr;
    findings.add(RuleId::UnknownElement, note.source, {note.element, note.name, hintFor(nearest)});
  }
}

void ReadingRules::walk(const XmlElement& element, const ElementEntry& entry) {
  if (element.firstChild != nullptr) entries_[&element] = &entry;
  lookAtAttributes(element, entry);
  if (refused_.count(&element) > 0) return;
  lookAtName(element, entry);
  for (const XmlElement* child = element.firstChild; child != nullptr; child = child->nextSibling) {
    const ElementLookup lookup = elementAt(entry.kind, child->name);
    if (!lookup.isRead()) continue;
    if (lookup.answer == ElementLookup::Answer::ReadUnderAnyName) {
      const bool isPose = entry.kind == EntryKind::Pose;
      survey_.findings.add(isPose ? RuleId::PoseChildNotAsset : RuleId::AssetChildNotMaterial, child, {child->name});
    }
    walk(*child, *lookup.entry);
  }
}

/// The same few names come over and over, and to find what is near an unknown one takes its time.
const AttributeLookup& ReadingRules::lookUp(const ElementEntry& entry, const wchar_t* name) {
  const auto known = lookups_.find({&entry, name});
  if (known != lookups_.end()) return known->second;
  return lookups_.emplace(std::make_pair(&entry, name), attributeAt(entry, name)).first->second;
}

void ReadingRules::lookAtAttributes(const XmlElement& element, const ElementEntry& entry) {
  for (int i = 0; i < element.attributeCount; ++i) {
    const wchar_t* name = element.attributes[i].name.GetText();
    const AttributeLookup lookup = lookUp(entry, name);
    if (lookup.answer == AttributeLookup::Answer::LetterCase) {
      survey_.findings.addMisspelt(RuleId::AttributeLetterCase, element, lookup.entry->name,
                                   {name, lookup.entry->name});
    } else if (lookup.answer == AttributeLookup::Answer::Unknown) {
      const wchar_t* nearest = lookup.entry != nullptr ? lookup.entry->name : nullptr;
      survey_.findings.addMisspelt(RuleId::UnknownAttribute, element, nearest != nullptr ? nearest : L"",
                                   {name, hintFor(nearest)});
    } else if (lookup.answer == AttributeLookup::Answer::Known) {
      lookAtValue(element, entry, *lookup.entry, element.attributes[i].GetText().c_str());
    }
  }
}

void ReadingRules::lookAtValue(const XmlElement& element, const ElementEntry& entry, const AttributeEntry& attribute,
                               const wchar_t* value) {
  if (attribute.need == Need::Unused) {
    return survey_.findings.add(RuleId::AddressNeverOpened, &element, {wordFor(entry.kind)});
  }
  if (attribute.kind != AttributeKind::Choice || entry.kind == EntryKind::SharedAsset) return;
  std::vector<std::string> known;
  for (const AttributeValue& one : attribute.values) {
    if (std::wcscmp(one.text, value) == 0) return;
    known.push_back(host::toUtf8(one.text));
  }
  if (entry.kind == EntryKind::Asset) {
    // It counts as what it says.
    if (ZORVEL::WindowsNames::AreAlike(value, VALUE_COMMON)) return;
    const std::wstring nearest = survey_.nearestTo(value, [&known] { return known; });
    survey_.findings.add(RuleId::TypeSpelling, &element, {value, hintAt(nearest)});
    if (nearest != VALUE_COMMON && !nearest.empty()) survey_.misread.insert(&element);
  } else {
    survey_.findings.add(
        RuleId::ValueNotUnderstood, &element,
        {attribute.name, value, attribute.without, attribute.values.front().text, attribute.values.back().text});
  }
}

void ReadingRules::lookAtName(const XmlElement& element, const ElementEntry& entry) {
  const XmlAttribute* name = element.FindAttribute(FIELD_NAME);
  if (name != nullptr && *name->text != '\0') return;
  if (isList(entry.kind) && name == nullptr) survey_.findings.add(RuleId::ListWithoutName, &element, {});
  if (hasName(entry)) survey_.findings.add(RuleId::ElementWithoutName, &element, {wordFor(entry.kind)});
}

}  // namespace check
