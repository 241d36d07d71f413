#pragma once

#include <deque>
#include <functional>
#include <set>
#include <string>
#include <tuple>
#include <unordered_set>
#include <utility>
#include <vector>

#include "check/Findings.h"
#include "check/FolderIndex.h"
#include "check/Vocabulary.h"
#include "model/CharacterData.h"
#include "model/PageOffer.h"
#include "model/PiecePlan.h"

namespace check {

/// Paths of files, each kept once: many elements may name the same.
class PathPool {
 public:
  /// Stays where it is.
  const std::wstring& keep(const std::wstring& path) { return *paths_.insert(path).first; }
  const std::vector<std::wstring>& keep(const std::vector<std::wstring>& paths) { return *lists_.insert(paths).first; }

 private:
  std::unordered_set<std::wstring> paths_;
  std::set<std::vector<std::wstring>> lists_;
};

/// A picture that the window shows.
struct ShownPicture {
  const std::wstring& path;
  ZORVEL::PageKind page;
  const ZORVEL::DataContainer* record;
};

/// A mesh that is there and that something is built from.
struct UsedMesh {
  const std::wstring& path;
  ZORVEL::ElementKind kind;
  const ZORVEL::DataContainer* record;
};

/// A material that something is built with.
struct UsedMaterial {
  /// The record's own.
  const wchar_t* name;
  const std::vector<std::wstring>& libraries;
  const ZORVEL::DataContainer* record;
};

/// A pose on the page that the window shows for one clothing.
struct PoseOffer {
  const ZORVEL::DataContainer* clothing;
  const ZORVEL::DataContainer* pose;
  /// Grey when it is shown and refused.
  bool isShown;
  ZORVEL::Refusal refusal;
};

/// What the rules work with: the repository in the plug-in's store, what lies on disk, and where findings go. Files
/// that have to be looked into are noted on the way and read at the end, all at once.
struct Survey {
  Findings& findings;
  FolderIndex& files;
  /// As the settings hold it.
  std::wstring root;
  std::deque<ShownPicture> pictures;
  std::deque<UsedMesh> meshes;
  std::deque<UsedMaterial> materials;
  PathPool paths = {};
  /// Elements that were skipped and hold what the other elements refer to: the element around them and their kind.
  std::set<std::pair<const ZORVEL::XmlElement*, EntryKind>> lostLists = {};
  /// Assets that another type is meant for than they are read with.
  std::set<const ZORVEL::XmlElement*> misread = {};
  /// Pose and asset of a character that a row of the asset matrix seems to mean and misses; empty for any.
  std::set<std::tuple<const ZORVEL::CharacterData*, std::wstring, std::wstring>> missedPairs = {};
  /// All poses, for each clothing that has an id of its own; empty when nobody wants to know.
  std::deque<PoseOffer> poseOffers = {};
  bool keepsOffers = false;

  const ZORVEL::XmlElement* elementOf(const ZORVEL::DataContainer* record) const {
    return findings.description().elementOf(record);
  }
  /// Where the record begins in the description; 0 when that is not known.
  int lineOf(const ZORVEL::DataContainer* record) const {
    const ZORVEL::XmlElement* element = elementOf(record);
    return element != nullptr ? element->line : 0;
  }
  std::string shown(const std::wstring& path) const { return files.shown(path); }
  /// Whether a list of the character is misspelt: that explains what is not found in it.
  bool isLost(const ZORVEL::CharacterData& character, EntryKind list) const {
    return lostLists.count({elementOf(&character), list}) > 0;
  }
  /// What is told of the record explains whatever else is wrong with its files and its places.
  bool isExplained(const ZORVEL::DataContainer* record) const {
    return misread.count(elementOf(record)) > 0 || findings.has(RuleId::GlobalWithoutType, record) ||
           findings.has(RuleId::FolderEmpty, record);
  }
  /// As in a finding; empty for a record that no element was read into.
  std::string pathOf(const ZORVEL::DataContainer* record) const;
  /// For the middle of a sentence: "there is no mesh anna/dress/a_b.vrmesh".
  std::string reasonOf(const ZORVEL::Refusal& refusal) const;
  /// Empty when none of the known is near. Who gets thousands of names wrong gets hints for the first of them only:
  /// each is compared with all that are known.
  std::wstring nearestTo(const std::wstring& wanted, const std::function<std::vector<std::string>()>& known);
  /// The same as a hint.
  std::string hintAt(const std::wstring& wanted, const std::function<std::vector<std::string>()>& known);

  /// How many pairs of letters may still be compared for hints.
  double hintWork = 2e8;
};

/// What a person calls an element in the middle of a sentence: "clothing", "shared asset".
const char* wordFor(EntryKind kind);

/// Empty for a record without one.
std::wstring idOf(const ZORVEL::DataContainer* record);

/// "; did you mean "anna"?", or nothing for an empty name.
std::string hintAt(const std::wstring& nearest);

}  // namespace check
