#include "repository/NetXMLParser2.h"

#include <cwchar>
#include <string>
#include <vector>

#include "core/Debug.h"
#include "core/Disk.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"
#include "repository/DescriptionLimits.h"
#include "repository/ParseNotes.h"
#include "repository/XmlDocument.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

bool IsNamed(const XmlElement& element, const wchar_t* name) { return std::wcscmp(element.name, name) == 0; }

/// The document element has no namespace: "/zorvel" selects none that has one.
bool IsDocumentElement(const XmlElement& root) {
  return IsNamed(root, ELEMENT_ZORVEL) && root.GetText(L"xmlns").empty();
}

template <class Visitor>
void ForEachChild(const XmlElement* parent, Visitor visit) {
  for (const XmlElement* child = parent->firstChild; child; child = child->nextSibling) visit(*child);
}

template <class Visitor>
void ForEachChild(const XmlElement* parent, const wchar_t* name, Visitor visit) {
  ForEachChild(parent, [&](const XmlElement& child) {
    if (!IsNamed(child, name)) return ParseNotes::TellSkipped(child, parent->name);
    visit(child);
  });
}

/// Appends an element filled from `source` and answers its index.
int AddElement(CharacterData& character, CONTAINER container, const XmlElement& source) {
  const int index = character.AddContainerElement(container);
  if (index >= 0) NetXMLParser2::CopyAllAttributes(character.GetContainerElement(container, index), &source);
  return index;
}

void CopyIfThere(DataContainer* record, const XmlElement& source) {
  if (record) NetXMLParser2::CopyAllAttributes(record, &source);
}

/// The record takes all texts at once.
void SetAllData(DataContainer& record, const XmlElement& element) {
  std::wstring texts;
  std::vector<std::size_t> begins;
  for (int i = 0; i < element.attributeCount; ++i) {
    begins.push_back(texts.size());
    element.attributes[i].AppendTo(texts);
    texts += L'\0';
  }
  std::vector<FieldText> fields;
  for (const std::size_t begin : begins) {
    fields.push_back({element.attributes[fields.size()].name, texts.c_str() + begin});
  }
  record.SetAllData(fields.data(), element.attributeCount);
}

/// Answers the condition, and logs when it does not hold.
bool Holds(bool condition, const wchar_t* message) {
  if (!condition) Debug::AddDebugMessage(DEBUG_INFO, message);
  return condition;
}

/// The record stays in the store whatever becomes of it afterwards.
CharacterData* AddCharacter() {
  const int index = Data2::AddCharacter();
  if (index < 0) {
    Debug::AddDebugMessage(DEBUG_WARNING, L"ParseCharacter: could not get new CharacterData");
    return nullptr;
  }
  CharacterData* character = Data2::GetCharacter(index);
  if (!character) Debug::AddDebugMessage(DEBUG_WARNING, L"ParseXML: could not get new CharacterData (2)");
  return character;
}

/// A piece of clothing without a folder is looked for in the character's own.
void MarkAvailability(DataContainer& clothing, const CharacterData& character) {
  const std::wstring folder = RepositoryPaths::Element(Fields::TextOrEmpty(&character, FIELD_FOLDER), &clothing);
  clothing.SetData(FIELD_AVAILABLE, Disk::FolderExists(folder) ? VALUE_AVAILABLE : VALUE_NOT_AVAILABLE);
}

/// Null for a child that clothing does not have.
DataContainer* AddClothChild(CharacterData& character, int clothIndex, const XmlElement& child) {
  if (IsNamed(child, ELEMENT_MATERIAL)) return character.AddChildToClothContainer(clothIndex, MATERIAL);
  if (IsNamed(child, ELEMENT_EXCLUDE)) return character.AddChildToClothContainer(clothIndex, EXCLUDE);
  if (IsNamed(child, ELEMENT_SELECT)) return character.AddChildToClothContainer(clothIndex, SELECT);
  ParseNotes::TellSkipped(child, ELEMENT_CLOTHING);
  return nullptr;
}

bool HasFolder(const XmlElement& character, const std::wstring& folder, const wchar_t* message, ParseNoteKind kind) {
  const bool found = Disk::FolderExists(folder);
  if (!found) ParseNotes::TellRefused(kind, character, folder);
  return Holds(found, message);
}

/// The full path of the character's folder; empty when the character is refused.
std::wstring FindFolder(const XmlElement& character, const wchar_t* path) {
  const XmlAttribute* name = character.FindAttribute(FIELD_FOLDER);
  if (!name) ParseNotes::TellRefused(ParseNoteKind::CharacterWithoutFolder, character);
  if (!Holds(name != nullptr, L"ParseCharacter: invalid XML structure (folder)")) return {};
  const std::wstring folder = RepositoryPaths::Character(path, name->GetText().c_str());
  const bool complete =
      HasFolder(character, RepositoryPaths::Previews(folder), L"ParseCharacter: subfolder \"previews\" does not exist",
                ParseNoteKind::CharacterWithoutPreviews) &&
      HasFolder(character, RepositoryPaths::Skin(folder), L"ParseCharacter: subfolder \"skin\" does not exist",
                ParseNoteKind::CharacterWithoutSkin);
  return complete ? folder : std::wstring();
}

/// Null when there is none that could be read.
std::shared_ptr<const XmlDocument> LoadDescription(const wchar_t* path) {
  const std::wstring file = RepositoryPaths::Description(path);
  if (!Disk::FileExists(file)) {
    Debug::AddDebugMessage(DEBUG_INFO, L"ParseRepositoryXML: XML file \"zorvel.xml\" does not exist in this folder:");
    Debug::AddDebugMessage(DEBUG_INFO, path);
    ParseNotes::TellMissing(file);
    return nullptr;
  }
  XmlError error;
  XmlOptions options = DescriptionLimits::Get();
  options.places = ObservedParsing::GetObserver() != nullptr;
  const std::shared_ptr<const XmlDocument> document = XmlDocument::Load(file.c_str(), error, options);
  if (!document) ParseNotes::TellUnreadable(file, error);
  if (!Holds(document != nullptr, L"ParseRepositoryXML: invalid character.xml")) return nullptr;
  const XmlElement& root = document->GetRoot();
  if (!IsDocumentElement(root)) ParseNotes::TellWrongDocumentElement(file, root);
  if (!Holds(IsDocumentElement(root), L"ParseRepositoryXML: invalid XML structure (zorvel)")) return nullptr;
  return document;
}

}  // namespace

bool NetXMLParser2::ParseRepositoryXML(const wchar_t* path) {
  if (!path) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"ParseRepositoryXML: invalid argument");
    return false;
  }
  Debug::AddDebugMessage(DEBUG_INFO, L"Parse Folder:");
  Debug::AddDebugMessage(DEBUG_INFO, path);
  const auto document = LoadDescription(path);
  if (!document) return false;
  ParseNotes::TellDocument(document);
  ForEachChild(&document->GetRoot(), [path](const XmlElement& child) { ParseRepositoryElement(&child, path); });
  return true;
}

bool NetXMLParser2::ParseRepositoryElement(const XmlElement* element, const wchar_t* path) {
  if (!element || !path) return false;
  if (IsNamed(*element, ELEMENT_CHARACTER)) return ParseCharacter(element, path);
  if (IsNamed(*element, ELEMENT_GLOBAL_ASSETS)) return ParseGlobalAssets(element);
  ParseNotes::TellSkipped(*element, ELEMENT_ZORVEL);
  return false;
}

bool NetXMLParser2::ParseCharacter(const XmlElement* element, const wchar_t* path) {
  if (!element || !path || !IsNamed(*element, ELEMENT_CHARACTER)) return false;
  if (element->attributeCount == 0) {
    ParseNotes::TellRefused(ParseNoteKind::CharacterWithoutAttributes, *element);
    return false;
  }
  const std::wstring folder = FindFolder(*element, path);
  if (folder.empty()) return false;

  CharacterData* character = AddCharacter();
  if (!character) return false;
  CopyAllAttributes(character, element);
  character->SetData(FIELD_FOLDER, folder.c_str());
  ForEachChild(element, [character](const XmlElement& child) { ParseXmlElement(&child, character); });
  ParseNotes::TellClothes(*element, character->ValidateCloths());
  character->SortClothsAlphabetically();
  return true;
}

bool NetXMLParser2::ParseGlobalAssets(const XmlElement* element) {
  if (!element) return false;
  ForEachChild(element, [](const XmlElement& child) { ParseGlobalAsset(&child); });
  return true;
}

bool NetXMLParser2::ParseGlobalAsset(const XmlElement* element) {
  if (!element) return false;
  if (!IsNamed(*element, ELEMENT_ASSET)) {
    ParseNotes::TellSkipped(*element, ELEMENT_GLOBAL_ASSETS);
    return false;
  }
  const int index = Data2::AddGlobalAsset();
  if (index < 0) return false;
  DataContainer* asset = Data2::GetGlobalAsset(index);
  CopyAllAttributes(asset, element);
  ForEachChild(element,
               [asset](const XmlElement& child) { CopyIfThere(Data2::AddMaterialToGlobalaAsset(asset), child); });
  return true;
}

void NetXMLParser2::ParseXmlElement(const XmlElement* element, CharacterData* character) {
  struct List {
    const wchar_t* name;
    const wchar_t* note;
    void (*handle)(const XmlElement*, CharacterData*);
  };
  static const List lists[] = {{ELEMENT_SKINS, L"handle skins", &HandleSkins},
                               {ELEMENT_CLOTH, L"handle cloth", &HandleCloth},
                               {ELEMENT_POSES, L"handle poses", &HandlePoses},
                               {ELEMENT_CATEGORIES, L"handle categories", &HandleCategories},
                               {ELEMENT_ASSETS, L"handle assets", &HandleAssets},
                               {ELEMENT_ASSET_MATRIX, L"handle AssetMatrix", &HandleAssetMatrix}};
  if (!element || !character) return;
  for (const List& list : lists) {
    if (!IsNamed(*element, list.name)) continue;
    Debug::AddDebugMessage(DEBUG_INFO, list.note);
    return list.handle(element, character);
  }
  ParseNotes::TellSkipped(*element, ELEMENT_CHARACTER);
}

void NetXMLParser2::HandleSkins(const XmlElement* element, CharacterData* character) {
  if (!element || !character) return;
  SetBaseCategoryName(element, character, SKINS);
  ForEachChild(element, ELEMENT_SKIN, [character](const XmlElement& skin) { AddElement(*character, SKINS, skin); });
}

void NetXMLParser2::HandleCloth(const XmlElement* element, CharacterData* character) {
  if (!element || !character) return;
  SetBaseCategoryName(element, character, CLOTH);
  ForEachChild(element, ELEMENT_CLOTHING, [character](const XmlElement& clothing) {
    const int index = AddElement(*character, CLOTH, clothing);
    if (index < 0) return;
    MarkAvailability(*character->GetContainerElement(CLOTH, index), *character);
    ForEachChild(&clothing,
                 [&](const XmlElement& child) { CopyIfThere(AddClothChild(*character, index, child), child); });
  });
}

void NetXMLParser2::HandlePoses(const XmlElement* element, CharacterData* character) {
  if (!element || !character) return;
  SetBaseCategoryName(element, character, POSES);
  ForEachChild(element, ELEMENT_POSE, [character](const XmlElement& pose) {
    const int index = AddElement(*character, POSES, pose);
    if (index < 0) return;
    ForEachChild(&pose, [&](const XmlElement& child) { CopyIfThere(character->AddMandatoryElement(index), child); });
  });
}

void NetXMLParser2::HandleCategories(const XmlElement* element, CharacterData* character) {
  if (!element || !character) return;
  ForEachChild(element, ELEMENT_CATEGORY,
               [character](const XmlElement& category) { AddElement(*character, CATEGORIES, category); });
}

void NetXMLParser2::HandleAssets(const XmlElement* element, CharacterData* character) {
  if (!element || !character) return;
  ForEachChild(element, ELEMENT_ASSET, [character](const XmlElement& asset) {
    const int index = AddElement(*character, ASSETS, asset);
    if (index < 0) return;
    ForEachChild(&asset, [&](const XmlElement& child) { CopyIfThere(character->AddMaterialToAsset(index), child); });
  });
}

void NetXMLParser2::HandleAssetMatrix(const XmlElement* element, CharacterData* character) {
  if (!element || !character) return;
  character->ReserveAssetMatrix(element->childCount);
  ForEachChild(element, ELEMENT_MATRIX, [character](const XmlElement& matrix) {
    DataContainer row;
    CopyAllAttributes(&row, &matrix);
    ParseNotes::TellRow(matrix, character->AddAssetMatrixElement(&row));
  });
}

void NetXMLParser2::CopyAllAttributes(DataContainer* record, const XmlElement* element) {
  if (!record || !element) return;
  SetAllData(*record, *element);
  Data2::RegisterID(record);
  ParseNotes::TellRecord(*element, *record);
}

void NetXMLParser2::SetBaseCategoryName(const XmlElement* element, CharacterData* character, CONTAINER container) {
  if (!element || !character || container == CATEGORIES || container == ASSETS) return;
  const XmlAttribute* attribute = element->FindAttribute(FIELD_NAME);
  if (!attribute) return;
  const std::wstring name = attribute->GetText();
  ParseNotes::TellName(*element, *character, container, name.c_str());
  character->SetContainerName(container, name.c_str());
}

}  // namespace ZORVEL
