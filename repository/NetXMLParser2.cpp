#include "repository/NetXMLParser2.h"

#include <cwchar>
#include <string>

#include "core/Debug.h"
#include "core/Disk.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"
#include "repository/XmlDocument.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

bool isNamed(const XmlElement& element, const wchar_t* name) { return std::wcscmp(element.name, name) == 0; }

template <class Visitor>
void forEachChild(const XmlElement* parent, Visitor visit) {
  for (const XmlElement* child = parent->firstChild; child; child = child->nextSibling) visit(*child);
}

template <class Visitor>
void forEachChild(const XmlElement* parent, const wchar_t* name, Visitor visit) {
  forEachChild(parent, [&](const XmlElement& child) {
    if (isNamed(child, name)) visit(child);
  });
}

/// Appends an element filled from `source` and answers its index.
int addElement(CharacterData& character, CONTAINER container, const XmlElement& source) {
  const int index = character.AddContainerElement(container);
  if (index >= 0) NetXMLParser2::CopyAllAttributes(character.GetContainerElement(container, index), &source);
  return index;
}

void copyIfThere(DataContainer* record, const XmlElement& source) {
  if (record) NetXMLParser2::CopyAllAttributes(record, &source);
}

/// Answers the condition, and logs when it does not hold.
bool holds(bool condition, const wchar_t* message) {
  if (!condition) Debug::AddDebugMessage(DEBUG_INFO, message);
  return condition;
}

/// The record stays in the store whatever becomes of it afterwards.
CharacterData* addCharacter() {
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
void markAvailability(DataContainer& clothing, const CharacterData& character) {
  const std::wstring folder = RepositoryPaths::Element(Fields::TextOrEmpty(&character, FIELD_FOLDER), &clothing);
  clothing.SetData(FIELD_AVAILABLE, Disk::FolderExists(folder) ? VALUE_AVAILABLE : VALUE_NOT_AVAILABLE);
}

void addClothChild(CharacterData& character, int clothIndex, const XmlElement& child) {
  if (isNamed(child, ELEMENT_MATERIAL)) copyIfThere(character.AddChildToClothContainer(clothIndex, MATERIAL), child);
  if (isNamed(child, ELEMENT_EXCLUDE)) copyIfThere(character.AddChildToClothContainer(clothIndex, EXCLUDE), child);
  if (isNamed(child, ELEMENT_SELECT)) copyIfThere(character.AddChildToClothContainer(clothIndex, SELECT), child);
}

}  // namespace

bool NetXMLParser2::ParseRepositoryXML(const wchar_t* path) {
  if (!path) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"ParseRepositoryXML: invalid argument");
    return false;
  }
  Debug::AddDebugMessage(DEBUG_INFO, L"Parse Folder:");
  Debug::AddDebugMessage(DEBUG_INFO, path);
  const std::wstring file = RepositoryPaths::Description(path);
  if (!Disk::FileExists(file)) {
    Debug::AddDebugMessage(DEBUG_INFO, L"ParseRepositoryXML: XML file \"zorvel.xml\" does not exist in this folder:");
    Debug::AddDebugMessage(DEBUG_INFO, path);
    return false;
  }
  XmlError error;
  const auto document = XmlDocument::Load(file.c_str(), error);
  if (!holds(document != nullptr, L"ParseRepositoryXML: invalid character.xml")) return false;
  const XmlElement& root = document->GetRoot();
  if (!holds(isNamed(root, ELEMENT_ZORVEL), L"ParseRepositoryXML: invalid XML structure (zorvel)")) return false;
  forEachChild(&root, [path](const XmlElement& child) { ParseRepositoryElement(&child, path); });
  return true;
}

bool NetXMLParser2::ParseRepositoryElement(const XmlElement* element, const wchar_t* path) {
  if (!element || !path) return false;
  if (isNamed(*element, ELEMENT_CHARACTER)) return ParseCharacter(element, path);
  return isNamed(*element, ELEMENT_GLOBAL_ASSETS) && ParseGlobalAssets(element);
}

bool NetXMLParser2::ParseCharacter(const XmlElement* element, const wchar_t* path) {
  if (!element || !path || element->attributeCount == 0 || !isNamed(*element, ELEMENT_CHARACTER)) return false;
  const wchar_t* name = element->FindAttribute(FIELD_FOLDER);
  if (!holds(name != nullptr, L"ParseCharacter: invalid XML structure (folder)")) return false;
  const std::wstring folder = RepositoryPaths::Character(path, name);
  const bool previews = Disk::FolderExists(RepositoryPaths::Previews(folder));
  if (!holds(previews, L"ParseCharacter: subfolder \"previews\" does not exist")) return false;
  const bool skin = Disk::FolderExists(RepositoryPaths::Skin(folder));
  if (!holds(skin, L"ParseCharacter: subfolder \"skin\" does not exist")) return false;

  CharacterData* character = addCharacter();
  if (!character) return false;
  CopyAllAttributes(character, element);
  character->SetData(FIELD_FOLDER, folder.c_str());
  forEachChild(element, [character](const XmlElement& child) { ParseXmlElement(&child, character); });
  character->ValidateCloths();
  character->SortClothsAlphabetically();
  return true;
}

bool NetXMLParser2::ParseGlobalAssets(const XmlElement* element) {
  if (!element) return false;
  forEachChild(element, [](const XmlElement& child) { ParseGlobalAsset(&child); });
  return true;
}

bool NetXMLParser2::ParseGlobalAsset(const XmlElement* element) {
  if (!element || !isNamed(*element, ELEMENT_ASSET)) return false;
  const int index = Data2::AddGlobalAsset();
  if (index < 0) return false;
  DataContainer* asset = Data2::GetGlobalAsset(index);
  CopyAllAttributes(asset, element);
  forEachChild(element,
               [asset](const XmlElement& child) { copyIfThere(Data2::AddMaterialToGlobalaAsset(asset), child); });
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
    if (!isNamed(*element, list.name)) continue;
    Debug::AddDebugMessage(DEBUG_INFO, list.note);
    return list.handle(element, character);
  }
}

void NetXMLParser2::HandleSkins(const XmlElement* element, CharacterData* character) {
  if (!element || !character) return;
  SetBaseCategoryName(element, character, SKINS);
  forEachChild(element, ELEMENT_SKIN, [character](const XmlElement& skin) { addElement(*character, SKINS, skin); });
}

void NetXMLParser2::HandleCloth(const XmlElement* element, CharacterData* character) {
  if (!element || !character) return;
  SetBaseCategoryName(element, character, CLOTH);
  forEachChild(element, ELEMENT_CLOTHING, [character](const XmlElement& clothing) {
    const int index = addElement(*character, CLOTH, clothing);
    if (index < 0) return;
    markAvailability(*character->GetContainerElement(CLOTH, index), *character);
    forEachChild(&clothing, [&](const XmlElement& child) { addClothChild(*character, index, child); });
  });
}

void NetXMLParser2::HandlePoses(const XmlElement* element, CharacterData* character) {
  if (!element || !character) return;
  SetBaseCategoryName(element, character, POSES);
  forEachChild(element, ELEMENT_POSE, [character](const XmlElement& pose) {
    const int index = addElement(*character, POSES, pose);
    if (index < 0) return;
    forEachChild(&pose, [&](const XmlElement& child) { copyIfThere(character->AddMandatoryElement(index), child); });
  });
}

void NetXMLParser2::HandleCategories(const XmlElement* element, CharacterData* character) {
  if (!element || !character) return;
  forEachChild(element, ELEMENT_CATEGORY,
               [character](const XmlElement& category) { addElement(*character, CATEGORIES, category); });
}

void NetXMLParser2::HandleAssets(const XmlElement* element, CharacterData* character) {
  if (!element || !character) return;
  forEachChild(element, ELEMENT_ASSET, [character](const XmlElement& asset) {
    const int index = addElement(*character, ASSETS, asset);
    if (index < 0) return;
    forEachChild(&asset, [&](const XmlElement& child) { copyIfThere(character->AddMaterialToAsset(index), child); });
  });
}

void NetXMLParser2::HandleAssetMatrix(const XmlElement* element, CharacterData* character) {
  if (!element || !character) return;
  character->ReserveAssetMatrix(element->childCount);
  forEachChild(element, ELEMENT_MATRIX, [character](const XmlElement& matrix) {
    DataContainer row;
    CopyAllAttributes(&row, &matrix);
    character->AddAssetMatrixElement(&row);
  });
}

void NetXMLParser2::CopyAllAttributes(DataContainer* record, const XmlElement* element) {
  if (!record || !element) return;
  record->SetAllData(element->attributes, element->attributeCount);
  Data2::RegisterID(record);
}

void NetXMLParser2::SetBaseCategoryName(const XmlElement* element, CharacterData* character, CONTAINER container) {
  if (!element || !character || container == CATEGORIES || container == ASSETS) return;
  const wchar_t* name = element->FindAttribute(FIELD_NAME);
  if (name) character->SetContainerName(container, name);
}

}  // namespace ZORVEL
