#pragma once

#include "model/CharacterData.h"

namespace ZORVEL {

struct XmlElement;

/// Reads the description of a repository into the store, one operation for each kind of element. Every record is filled
/// with all attributes of its element and takes a unique id, in document order. Elements of other names are passed
/// over.
class NetXMLParser2 {
 public:
  /// False, with the store untouched, when there is no description or it is no well-formed "zorvel" document. True even
  /// when every character in it was refused.
  static bool ParseRepositoryXML(const wchar_t* path);
  static bool ParseRepositoryElement(const XmlElement* element, const wchar_t* path);
  /// False when the element is refused: no "folder", or that folder lacks "previews" or "skin".
  static bool ParseCharacter(const XmlElement* element, const wchar_t* path);
  static bool ParseGlobalAssets(const XmlElement* element);
  static bool ParseGlobalAsset(const XmlElement* element);

  static void ParseXmlElement(const XmlElement* element, CharacterData* character);
  static void HandleSkins(const XmlElement* element, CharacterData* character);
  static void HandleCloth(const XmlElement* element, CharacterData* character);
  static void HandlePoses(const XmlElement* element, CharacterData* character);
  static void HandleCategories(const XmlElement* element, CharacterData* character);
  static void HandleAssets(const XmlElement* element, CharacterData* character);
  static void HandleAssetMatrix(const XmlElement* element, CharacterData* character);

  static void CopyAllAttributes(DataContainer* record, const XmlElement* element);
  /// The list's "name" becomes its display name; categories and assets have none.
  static void SetBaseCategoryName(const XmlElement* element, CharacterData* character, CONTAINER container);
};

}  // namespace ZORVEL
