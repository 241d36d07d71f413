#include "check/rules/FileRules.h"

#include <set>

#include "check/rules/NamedFiles.h"
#include "core/Settings.h"
#include "core/WindowsNames.h"
#include "host/files/Paths.h"
#include "model/RepositoryPaths.h"

namespace check {

using ZORVEL::DiskEntry;
using ZORVEL::PathKeeping;

namespace {

/// MAX_PATH with the zero at the end.
constexpr std::size_t LONGEST_PATH = 259;

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
  if (survey_.files.caseDifferences().empty()) return;
  std::set<std::string> exact;
  for (const std::wstring& file : survey_.files.askedFor()) exact.insert(survey_.shown(survey_.root + file));
  for (const FolderIndex::CaseDifference& one : survey_.files.caseDifferences()) {
    // Where another element names it exactly, two ids are alike.
    if (exact.count(one.found) > 0) continue;
    survey_.findings.addToFile(RuleId::FileLetterCase, one.found, {one.wanted, one.found});
  }
}

void FileRules::lookAtUnreferenced() {
  if (survey_.files.unreferenced().empty()) return;
  if (!NamedFiles(survey_).refer()) return;
  const std::string maps = survey_.shown(ZORVEL::RepositoryPaths::Maps(survey_.root));
  for (const auto& [file, count] : survey_.files.unreferenced()) {
    // Whatever cannot be built may need the texture.
    if (file.compare(0, maps.size(), maps) == 0 && survey_.findings.hasOtherThanHints()) continue;
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
    const std::size_t length = ZORVEL::WindowsNames::CountUnits(root) + ZORVEL::WindowsNames::CountUnits(path);
    if (length <= LONGEST_PATH) continue;
    const std::string file = survey_.shown(survey_.root + path);
    survey_.findings.addToFile(RuleId::PathTooLong, file, {root, file, static_cast<int>(length)});
  }
}

}  // namespace check
