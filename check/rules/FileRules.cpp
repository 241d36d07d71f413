#include "check/rules/FileRules.h"

#include "apps/support/ModelText.h"
#include "core/Settings.h"
#include "host/files/Paths.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"

namespace check {

using ZORVEL::DiskEntry;
using ZORVEL::PathKeeping;

namespace {

/// MAX_PATH with the zero at the end.
constexpr std::size_t LONGEST_PATH = 259;

std::size_t unitsOf(const std::wstring& text) {
  std::size_t units = 0;
  for (const wchar_t c : text) units += static_cast<unsigned long>(c) > 0xFFFF ? 2 : 1;
  return units;
}

bool endsInSeparator(const std::wstring& path) {
  return !path.empty() && (path.back() == L'\\' || path.back() == L'/');
}

}  // namespace

void FileRules::run(const std::string& targetRoot) {
  lookAtOverlays();
  lookAtLetterCase();
  lookAtUnreferenced();
  for (const auto& [link, target] : survey_.files.linksOut()) {
    survey_.findings.addToFile(RuleId::FolderOutside, link, {link, target});
  }
  for (const auto& [folder, problem] : survey_.files.unreadableFolders()) {
    survey_.findings.addToFile(RuleId::FileUnreadable, folder, {folder.empty() ? "the folder" : folder, problem});
  }
  if (targetRoot.empty()) return lookAtKeeping(survey_.root);
  // Where the artists have it; where it lies here does not matter then.
  const std::wstring root = host::toWide(targetRoot);
  lookAtKeeping(root);
  if (!endsInSeparator(root)) survey_.findings.addToFile(RuleId::RootWithoutSeparator, "", {root});
  lookAtLengths(root);
}

void FileRules::lookAtOverlays() {
  for (const std::wstring& overlay :
       {ZORVEL::RepositoryPaths::ClothOverlay(survey_.root), ZORVEL::RepositoryPaths::ElementOverlay(survey_.root)}) {
    if (survey_.files.Look(overlay) == DiskEntry::File) continue;
    survey_.findings.addToFile(RuleId::OverlayMissing, "", {survey_.shown(overlay)});
  }
}

void FileRules::lookAtLetterCase() {
  for (const FolderIndex::CaseDifference& one : survey_.files.caseDifferences()) {
    survey_.findings.addToFile(RuleId::FileLetterCase, one.found, {one.wanted, one.found});
  }
}

/// Pictures under the names that the layout of a repository has for them, whether the window shows them or not.
void FileRules::referToNamedPictures() {
  using ZORVEL::RepositoryPaths::AssetPicture;
  for (const ZORVEL::DataContainer* shared : apps::globalAssets()) {
    survey_.files.Look(AssetPicture(ZORVEL::RepositoryPaths::GlobalAsset(survey_.root, shared)));
  }
  for (const ZORVEL::CharacterData* character : apps::characters()) {
    const std::wstring folder = ZORVEL::Fields::TextOrEmpty(character, ZORVEL::RepositoryFormat::FIELD_FOLDER);
    const auto refer = [&](const ZORVEL::DataContainer* record) {
      survey_.files.Look(ZORVEL::RepositoryPaths::ClothPreview(folder, record));
    };
    refer(character);
    survey_.files.Look(AssetPicture(ZORVEL::RepositoryPaths::Previews(folder)));
    for (const ZORVEL::CONTAINER container : {ZORVEL::SKINS, ZORVEL::CLOTH, ZORVEL::POSES, ZORVEL::ASSETS}) {
      for (const ZORVEL::DataContainer* record : apps::elementsOf(*character, container)) {
        refer(record);
        for (const ZORVEL::DataContainer* child : apps::childrenOf(*record)) {
          refer(child);
          for (const ZORVEL::DataContainer* style : apps::childrenOf(*child)) refer(style);
        }
      }
    }
    for (const ZORVEL::DataContainer* asset : apps::elementsOf(*character, ZORVEL::ASSETS)) {
      survey_.files.Look(AssetPicture(ZORVEL::RepositoryPaths::Element(folder, asset)));
    }
  }
}

void FileRules::lookAtUnreferenced() {
  referToNamedPictures();
  for (const auto& [file, count] : survey_.files.unreferenced()) {
    const std::string text = file + (count > 1 ? " (" + std::to_string(count) + " files)" : "");
    survey_.findings.addToFile(RuleId::FileUnreferenced, file, {text});
  }
}

void FileRules::lookAtKeeping(const std::wstring& root) {
  const ZORVEL::KeptPath kept = ZORVEL::Settings::WhatIsKept(root);
  const char* const why[] = {"", "it has characters beyond Latin-1", "it is too short", "it is too long"};
  if (kept.keeping != PathKeeping::Whole) {
    survey_.findings.addToFile(RuleId::RootNotKept, "", {root, why[static_cast<int>(kept.keeping)]});
  }
}

void FileRules::lookAtLengths(const std::wstring& root) {
  for (const std::wstring& path : survey_.files.askedFor()) {
    const std::size_t length = unitsOf(root) + unitsOf(path);
    if (length <= LONGEST_PATH) continue;
    const std::string file = survey_.shown(survey_.root + path);
    survey_.findings.addToFile(RuleId::PathTooLong, file, {root, file, static_cast<int>(length)});
  }
}

}  // namespace check
