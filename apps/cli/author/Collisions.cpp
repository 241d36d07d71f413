#include "apps/cli/author/Collisions.h"

#include <set>

#include "apps/cli/author/RecordOf.h"
#include "core/WindowsNames.h"
#include "host/files/NameCase.h"
#include "host/files/Paths.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"

namespace cli {

using namespace ZORVEL::RepositoryFormat;
using ZORVEL::WindowsNames::AreAlike;

namespace {

namespace paths = ZORVEL::RepositoryPaths;

/// In capitals, as names are compared.
using Names = std::multiset<std::wstring>;

std::string inQuotes(const std::wstring& text) { return '"' + host::toUtf8(text) + '"'; }

/// Those of the strip and of the page of poses.
Names picturesOf(const std::vector<const Element*>& clothing, const std::vector<const Element*>& poses) {
  Names names;
  for (const Element* cloth : clothing) {
    names.insert(host::inCapitals(paths::ClothPreview({}, RecordOf(*cloth).get())));
    for (const Element* pose : poses) {
      names.insert(host::inCapitals(paths::PosePicture({}, cloth->text(FIELD_ID), RecordOf(*pose).get())));
    }
  }
  return names;
}

}  // namespace

std::string whyIdTaken(const std::wstring& id, const std::string& word, const std::vector<const Element*>& others) {
  for (const Element* element : others) {
    const std::wstring other = element->text(FIELD_ID);
    if (!AreAlike(other, id)) continue;
    const std::string there = "There is already a " + word + " with the id " + inQuotes(other);
    return other == id ? there + "." : there + ", which Windows does not tell from " + inQuotes(id) + ".";
  }
  return {};
}

std::string whyFolderTaken(const std::wstring& folder, const std::vector<const Element*>& others) {
  for (const Element* other : others) {
    if (!AreAlike(other->text(FIELD_FOLDER), folder)) continue;
    return "The folder " + inQuotes(folder) + " is that of " + inQuotes(other->text(FIELD_ID)) +
           "; --folder names another.";
  }
  return {};
}

std::string whyFolderReserved(const std::wstring& folder, const std::vector<std::wstring>& reserved) {
  for (const std::wstring& name : reserved) {
    if (AreAlike(name, folder)) return "The folder " + inQuotes(name) + " has another use; --folder names one.";
  }
  return {};
}

std::string whyPictureTaken(const Element& added, std::vector<const Element*> clothing,
                            std::vector<const Element*> poses) {
  const Names before = picturesOf(clothing, poses);
  (added.name == ELEMENT_POSE ? poses : clothing).push_back(&added);
  Names fresh = picturesOf(clothing, poses);
  for (const std::wstring& picture : before) fresh.erase(fresh.find(picture));
  std::set<std::wstring> taken(before.begin(), before.end());
  for (const std::wstring& picture : fresh) {
    if (taken.insert(picture).second) continue;
    return "With the id " + inQuotes(added.text(FIELD_ID)) + " two pictures would have one name, " +
           host::nativePath(picture).filename().string() + " (in whatever letters).";
  }
  return {};
}

}  // namespace cli
