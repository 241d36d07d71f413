#include "check/rules/FolderRules.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "apps/support/ModelText.h"
#include "core/WindowsNames.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"
#include "model/RepositoryValidation.h"

namespace check {

using ZORVEL::CharacterData;
using ZORVEL::DataContainer;
using ZORVEL::Fields;
using ZORVEL::WhyNot;
using ZORVEL::XmlElement;
using namespace ZORVEL::RepositoryFormat;

namespace {

const wchar_t* const GLOBAL = L"global_assets";

/// As the description has it: for a character the record holds the whole path.
std::wstring writtenAttribute(const XmlElement* element, const wchar_t* name) {
  return element != nullptr ? element->GetText(name) : L"";
}

bool isSeparator(wchar_t c) { return c == L'\\' || c == L'/'; }

/// Of a path the first name, which it is shortened by.
std::wstring_view nextName(std::wstring_view& path) {
  const auto end = static_cast<std::size_t>(std::find_if(path.begin(), path.end(), &isSeparator) - path.begin());
  const std::wstring_view name = path.substr(0, end);
  path.remove_prefix(std::min(path.size(), end + 1));
  return name;
}

/// How many folders below the one that it begins in the path ends; nothing when it leaves that on the way.
std::optional<int> depthOf(std::wstring_view path, int depth) {
  while (!path.empty()) {
    const std::wstring_view name = nextName(path);
    if (name == L"..") --depth;
    if (name != L".." && name != L"." && !name.empty()) ++depth;
    if (depth < 0) return std::nullopt;
  }
  return depth;
}

}  // namespace

void FolderRules::run() {
  for (const DataContainer* shared : apps::globalAssets()) {
    lookAt(*shared, nullptr, RuleId::GlobalFolderMissing, EntryKind::SharedAsset);
    lookAtName(*shared, FIELD_FOLDER, GLOBAL);
    lookAtPictures(*shared, apps::childrenOf(*shared), GLOBAL);
  }
  for (const CharacterData* character : apps::characters()) lookAt(*character);
}

void FolderRules::lookAt(const CharacterData& character) {
  const std::wstring folder = writtenAttribute(survey_.elementOf(&character), FIELD_FOLDER);
  lookAtName(character, FIELD_FOLDER, L"");
  if (folder.empty()) {
    survey_.findings.add(RuleId::FolderEmpty, &character, {wordFor(EntryKind::Character)});
  }
  for (const DataContainer* skin : apps::elementsOf(character, ZORVEL::SKINS))
    lookAtName(*skin, FIELD_PREVIEW, folder + L"\\skin");
  for (const DataContainer* clothing : apps::elementsOf(character, ZORVEL::CLOTH)) {
    lookAt(*clothing, &character, RuleId::ClothingFolderMissing, EntryKind::Clothing);
    lookAtName(*clothing, FIELD_FOLDER, folder);
    lookAtPictures(*clothing, apps::clothChildren(*clothing, ZORVEL::MATERIAL), folder);
  }
  for (const DataContainer* pose : apps::elementsOf(character, ZORVEL::POSES)) {
    lookAt(*pose, &character, RuleId::PoseFolderMissing, EntryKind::Pose);
    lookAtName(*pose, FIELD_FOLDER, folder);
  }
  for (const DataContainer* asset : apps::elementsOf(character, ZORVEL::ASSETS)) {
    // What stands for a shared asset has no folder of its own.
    if (ZORVEL::Data2::CheckAssetGlobal(asset) || survey_.isExplained(asset)) continue;
    lookAt(*asset, &character, RuleId::AssetFolderMissing, EntryKind::Asset);
    lookAtName(*asset, FIELD_FOLDER, folder);
    lookAtPictures(*asset, apps::childrenOf(*asset), folder);
  }
}

void FolderRules::lookAt(const DataContainer& record, const CharacterData* character, RuleId missing, EntryKind kind) {
  const ZORVEL::Refusal refusal = ZORVEL::RepositoryValidation::WhyUnmarked(record, character);
  if (refusal.why == WhyNot::FolderMissing) {
    survey_.findings.add(missing, &record, {survey_.shown(refusal.concerned)});
  } else if (refusal.why == WhyNot::FolderUnnamed && kind == EntryKind::Clothing) {
    survey_.findings.add(RuleId::ClothingFolderUnnamed, &record, {});
  } else if (refusal.why == WhyNot::FolderUnnamed) {
    survey_.findings.add(RuleId::FolderUnnamed, &record, {wordFor(kind)});
  } else if (refusal.why == WhyNot::Nothing && Fields::Equals(&record, FIELD_FOLDER, L"")) {
    survey_.findings.add(RuleId::FolderEmpty, &record, {wordFor(kind)});
  }
}

void FolderRules::lookAtPictures(const DataContainer& owner, const std::vector<DataContainer*>& materials,
                                 const std::wstring& around) {
  if (survey_.findings.has(RuleId::FolderOutside, &owner)) return;
  const std::wstring folder = around + L'\\' + Fields::TextOrEmpty(&owner, FIELD_FOLDER);
  for (const DataContainer* material : materials) lookAtName(*material, FIELD_PREVIEW, folder);
}

/// `around` is the folder below the root that the path is joined to; most paths are joined to the one before.
bool FolderRules::leadsOut(const std::wstring& around, const std::wstring& path) {
  if (around != around_) {
    around_ = around;
    depth_ = depthOf(around, 0);
  }
  if (!depth_ || !depthOf(path, *depth_)) return true;
  return path.size() > 1 && path[1] == L':';
}

void FolderRules::lookAtName(const DataContainer& record, const wchar_t* attribute, const std::wstring& around) {
  const std::wstring path = writtenAttribute(survey_.elementOf(&record), attribute);
  if (path.empty()) return;
  if (leadsOut(around, path)) return survey_.findings.add(RuleId::FolderOutside, &record, {attribute, path});
  for (std::wstring_view rest = path; !rest.empty();) {
    const std::wstring name(nextName(rest));
    if (name.empty() || name == L"." || name == L"..") continue;
    const ZORVEL::NameRefusal refusal = ZORVEL::WindowsNames::WhyRefused(name);
    if (refusal.fault == ZORVEL::NameFault::None) continue;
    return survey_.findings.add(RuleId::NameRefusedByWindows, &record, {attribute, path, refusal.GetText()});
  }
}

}  // namespace check
