#pragma once

#include <functional>
#include <string>
#include <vector>

#include "check/Findings.h"
#include "check/FolderIndex.h"
#include "check/Vocabulary.h"
#include "model/CharacterData.h"
#include "model/PageOffer.h"
#include "model/PiecePlan.h"

namespace check {

/// A picture that the window shows.
struct ShownPicture {
  std::wstring path;
  ZORVEL::PageKind page;
  const ZORVEL::DataContainer* record;
};

/// A mesh that is there and that something is built from.
struct UsedMesh {
  std::wstring path;
  ZORVEL::ElementKind kind;
  const ZORVEL::DataContainer* record;
};

/// A material that something is built with.
struct UsedMaterial {
  std::wstring name;
  std::vector<std::wstring> libraries;
  const ZORVEL::DataContainer* record;
};

/// What the rules work with: the repository in the plug-in's store, what lies on disk, and where findings go. Files
/// that have to be looked into are noted on the way and read at the end, all at once.
struct Survey {
  Findings& findings;
  FolderIndex& files;
  /// As the settings hold it.
  std::wstring root;
  std::vector<ShownPicture> pictures;
  std::vector<UsedMesh> meshes;
  std::vector<UsedMaterial> materials;

  const ZORVEL::XmlElement* elementOf(const ZORVEL::DataContainer* record) const {
    return findings.description().elementOf(record);
  }
  /// Where the record begins in the description; 0 when that is not known.
  int lineOf(const ZORVEL::DataContainer* record) const {
    const ZORVEL::XmlElement* element = elementOf(record);
    return element != nullptr ? element->line : 0;
  }
  std::string shown(const std::wstring& path) const { return files.shown(path); }
  /// "; did you mean "anna"?", or nothing when none of the known is near. Who gets thousands of names wrong gets hints
  /// for the first of them only: each is compared with all that are known.
  std::string hintAt(const std::wstring& wanted, const std::function<std::vector<std::string>()>& known);

  /// How many pairs of letters may still be compared for hints.
  double hintWork = 2e8;
};

/// What a person calls an element in the middle of a sentence: "clothing", "shared asset".
const char* wordFor(EntryKind kind);

/// Empty for a record without one.
std::wstring idOf(const ZORVEL::DataContainer* record);

}  // namespace check
