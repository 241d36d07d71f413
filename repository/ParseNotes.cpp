#include "repository/ParseNotes.h"

#include <cwchar>

#include "model/NumberText.h"
#include "model/RepositoryFormat.h"
#include "repository/XmlDocument.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

struct SystemField {
  const wchar_t* element;
  const wchar_t* field;
};

const SystemField SYSTEM_FIELDS[] = {{ELEMENT_CLOTHING, FIELD_AVAILABLE},
                                     {ELEMENT_ASSET, FIELD_LOCAL_ASSET_ID},
                                     {ELEMENT_CHARACTER, FIELD_GLOBAL_MAPS},
                                     {ELEMENT_CHARACTER, FIELD_TEXTURE_FOLDER}};
const wchar_t* const NUMBERS[] = {FIELD_XPOS, FIELD_YPOS, FIELD_ZPOS, FIELD_XROT, FIELD_YROT, FIELD_ZROT};

bool IsObserved() { return ObservedParsing::GetObserver() != nullptr; }

void Send(const ParseNote& note) { ObservedParsing::GetObserver()->Noted(note); }

ParseNote NoteAt(ParseNoteKind kind, const XmlElement& element) {
  return {kind, element.name, L"", {}, {}, element.line, element.column, &element};
}

void SendAttribute(ParseNoteKind kind, const XmlElement& element, const wchar_t* attribute) {
  ParseNote note = NoteAt(kind, element);
  note.name = attribute;
  note.text = element.GetText(attribute);
  Send(note);
}

/// Of an element that becomes no record, for want of a file or folder.
void SendLost(ParseNoteKind kind, const XmlElement& element, const std::wstring& path) {
  ParseNote note = NoteAt(kind, element);
  note.text = element.GetText(FIELD_ID);
  note.path = path;
  Send(note);
}

ParseNoteKind KindOf(XmlFault fault) {
  if (fault == XmlFault::NotWellFormed) return ParseNoteKind::DescriptionNotWellFormed;
  return fault == XmlFault::BeyondLimits ? ParseNoteKind::DescriptionBeyondLimits
                                         : ParseNoteKind::DescriptionNotReadable;
}

/// In document order, all lists together.
std::vector<const XmlElement*> ClothesOf(const XmlElement& character) {
  std::vector<const XmlElement*> clothes;
  for (const XmlElement* list = character.firstChild; list; list = list->nextSibling) {
    if (std::wcscmp(list->name, ELEMENT_CLOTH) != 0) continue;
    for (const XmlElement* cloth = list->firstChild; cloth; cloth = cloth->nextSibling) {
      if (std::wcscmp(cloth->name, ELEMENT_CLOTHING) == 0) clothes.push_back(cloth);
    }
  }
  return clothes;
}

}  // namespace

void ParseNotes::TellMissing(const std::wstring& file) {
  if (IsObserved()) Send({ParseNoteKind::NoDescription, L"", L"", {}, file, 0, 0, nullptr});
}

void ParseNotes::TellUnreadable(const std::wstring& file, const XmlError& error) {
  if (IsObserved()) Send({KindOf(error.fault), L"", L"", error.message, file, error.line, error.column, nullptr});
}

void ParseNotes::TellWrongDocumentElement(const std::wstring& file, const XmlElement& root) {
  if (!IsObserved()) return;
  ParseNote note = NoteAt(ParseNoteKind::WrongDocumentElement, root);
  note.path = file;
  Send(note);
}

void ParseNotes::TellDocument(const std::shared_ptr<const XmlDocument>& document) {
  if (IsObserved()) ObservedParsing::GetObserver()->DocumentRead(document);
}

void ParseNotes::TellRefused(ParseNoteKind kind, const XmlElement& character, const std::wstring& folder) {
  if (IsObserved()) SendLost(kind, character, folder);
}

void ParseNotes::TellSkipped(const XmlElement& element, const wchar_t* parent) {
  if (!IsObserved()) return;
  ParseNote note = NoteAt(ParseNoteKind::ElementSkipped, element);
  note.name = parent;
  Send(note);
}

void ParseNotes::TellName(const XmlElement& list, const CharacterData& character, CONTAINER container,
                          const wchar_t* name) {
  const wchar_t* before = IsObserved() ? character.GetContainerName(container) : nullptr;
  if (!before || !*before || !*name) return;
  ParseNote note = NoteAt(ParseNoteKind::ListNameExtended, list);
  note.text = name;
  Send(note);
}

void ParseNotes::TellClothes(const XmlElement& character, const std::vector<ClothWithoutPreview>& clothes) {
  if (!IsObserved() || clothes.empty()) return;
  const std::vector<const XmlElement*> elements = ClothesOf(character);
  for (const ClothWithoutPreview& cloth : clothes) {
    const auto index = static_cast<std::size_t>(cloth.index);
    if (index < elements.size()) SendLost(ParseNoteKind::ClothingWithoutPreview, *elements[index], cloth.preview);
  }
}

void ParseNotes::TellRow(const XmlElement& row, bool added) {
  if (!IsObserved()) return;
  if (!added) {
    const wchar_t* missing = row.FindAttribute(FIELD_POSE_ID) ? FIELD_MATRIX_ASSET_ID : FIELD_POSE_ID;
    return SendAttribute(ParseNoteKind::MatrixRowDropped, row, missing);
  }
  for (const wchar_t* number : NUMBERS) {
    const XmlAttribute* attribute = row.FindAttribute(number);
    if (attribute && !IsWhollyNumber(attribute->GetText().c_str()))
      SendAttribute(ParseNoteKind::NumberNotWhole, row, number);
  }
}

void ParseNotes::TellRecord(const XmlElement& element, const DataContainer& record) {
  if (!IsObserved()) return;
  ObservedParsing::GetObserver()->RecordRead(record, element);
  for (const SystemField& one : SYSTEM_FIELDS) {
    if (std::wcscmp(element.name, one.element) != 0 || !element.FindAttribute(one.field)) continue;
    SendAttribute(ParseNoteKind::AttributeOfTheSystem, element, one.field);
  }
}

}  // namespace ZORVEL
