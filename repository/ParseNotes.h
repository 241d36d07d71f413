#pragma once

#include "model/CharacterData.h"
#include "repository/ParseObserver.h"

namespace ZORVEL {

struct XmlElement;
struct XmlError;

/// What the parser tells the observer of the moment; nothing is looked at when there is none.
namespace ParseNotes {

/// The description itself, a file.
void TellMissing(const std::wstring& file);
void TellUnreadable(const std::wstring& file, const XmlError& error);
void TellWrongDocumentElement(const std::wstring& file, const XmlElement& root);

void TellDocument(const std::shared_ptr<const XmlDocument>& document);

void TellRefused(ParseNoteKind kind, const XmlElement& character, const std::wstring& folder = std::wstring());
void TellSkipped(const XmlElement& element, const wchar_t* parent);
/// The name is about to be appended to the one that the list has.
void TellName(const XmlElement& list, const CharacterData& character, CONTAINER container, const wchar_t* name);
/// The indexes of the clothes count as in the description.
void TellClothes(const XmlElement& character, const std::vector<ClothWithoutPreview>& clothes);
void TellRow(const XmlElement& row, bool added);
void TellRecord(const XmlElement& element, const DataContainer& record);

}  // namespace ParseNotes

}  // namespace ZORVEL
