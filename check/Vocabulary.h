#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace check {

/// Every kind of element that a description is read for. A name alone does not tell: a "material" is another thing in a
/// clothing than in an asset.
enum class EntryKind {
  Repository,
  SharedAssets,
  SharedAsset,
  SharedMaterial,
  Character,
  Skins,
  Skin,
  Cloth,
  Clothing,
  Style,
  Exclude,
  Select,
  Poses,
  Pose,
  MandatoryAsset,
  Categories,
  Category,
  Assets,
  Asset,
  AssetMaterial,
  AssetMatrix,
  MatrixRow
};

enum class AttributeKind { Id, Reference, File, Folder, Number, Address, Choice, Text };

/// What is lost without an attribute.
enum class Need {
  ToBeRead,    ///< the element is left out while reading
  ToBeUsed,    ///< it cannot be seen, chosen or built
  ToLookWell,  ///< the artist misses something
  Free,        ///< nothing
  Unused,      ///< even with it: it is kept, and nobody reads it
  Forbidden    ///< the plug-in sets it itself and overwrites or misreads what the description says
};

/// A text that means something; any other one counts as what AttributeEntry::without says.
struct AttributeValue {
  const wchar_t* text;
  const char* meaning;
};

struct AttributeEntry {
  const wchar_t* name;
  AttributeKind kind;
  Need need;
  const char* meaning;
  const char* readBy;
  const char* without;
  std::vector<AttributeValue> values = {};
  /// Of a reference: what it names the id of.
  EntryKind target = EntryKind::Repository;
};

/// How many of a kind make sense in its parent; any number is read, in any order.
enum class Count { One, AtMostOne, OneOrMore, Any };

/// One kind of element. All texts live as long as the program.
struct ElementEntry {
  EntryKind kind;
  const wchar_t* name;
  /// That of the document element is itself.
  EntryKind parent;
  Count count;
  /// Whether it is read whatever its name: the name is only the usual one.
  bool isNameFree;
  const char* becomes;
  /// Of all elements of the kind; empty for nothing.
  const char* without;
  std::vector<AttributeEntry> attributes;
};

/// In document order, parents before what they hold.
const std::vector<ElementEntry>& allEntries();
const ElementEntry& entryOf(EntryKind kind);
std::vector<const ElementEntry*> childrenOf(EntryKind parent);

/// What an element of some name is in a parent.
struct ElementLookup {
  enum class Answer {
    Read,              ///< as the entry
    ReadUnderAnyName,  ///< as the entry, which usually has another name
    LetterCase,        ///< skipped; the entry has the name that is meant
    Elsewhere,         ///< skipped; the entry is one of those that are read in other parents under that name
    Unknown            ///< skipped; the entry is the one of the nearest name, or null
  };
  Answer answer;
  const ElementEntry* entry;

  bool isRead() const { return answer == Answer::Read || answer == Answer::ReadUnderAnyName; }
};

ElementLookup elementAt(EntryKind parent, std::wstring_view name);
/// The parents in which elements of this name are read, as a text: "\"assets\", \"globalAssets\" or \"pose\"".
std::string placesOf(std::wstring_view name);

/// What an attribute of some name is on an element.
struct AttributeLookup {
  enum class Answer {
    Known,       ///< as the entry: see its need
    OfXml,       ///< xmlns, xml:* or xsi:*, which may stand anywhere; no entry
    LetterCase,  ///< never read; the entry has the name that is meant
    Unknown      ///< never read; the entry is the one of the nearest name, or null
  };
  Answer answer;
  const AttributeEntry* entry;
};

AttributeLookup attributeAt(const ElementEntry& element, std::wstring_view name);

}  // namespace check
