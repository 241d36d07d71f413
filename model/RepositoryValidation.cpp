#include "model/RepositoryValidation.h"

#include <string>

#include "core/Debug.h"
#include "core/Disk.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"

namespace ZORVEL {

namespace {

/// True when the record has a "folder", and the path that this gives it is an existing folder.
bool HasFolder(const DataContainer& record, const std::wstring& path) {
  return Fields::Text(&record, RepositoryFormat::FIELD_FOLDER) && Disk::FolderExists(path);
}

void ValidateAsset(DataContainer* asset, const wchar_t* characterFolder) {
  if (!Data2::CheckAssetGlobal(asset)) {
    RepositoryValidation::ValidateElement(asset, characterFolder);
    return;
  }
  const DataContainer* globalAsset = Data2::GetGlobalAssetForAsset(asset);
  if (globalAsset) asset->SetFastFlag(FLAG_VALID, globalAsset->GetFastFlag(FLAG_VALID));
}

/// Of a record without the mark whose own folder was looked for.
Refusal WhyFolderNotFound(const DataContainer& record, const std::wstring& path) {
  const bool named = record.CheckDatafield(RepositoryFormat::FIELD_FOLDER);
  return named ? Refusal(WhyNot::FolderMissing, path) : Refusal(WhyNot::FolderUnnamed, RepositoryFormat::FIELD_FOLDER);
}

Refusal WhyStandInUnmarked(const DataContainer& asset) {
  const DataContainer* globalAsset = Data2::GetGlobalAssetForAsset(&asset);
  if (globalAsset) return RepositoryValidation::WhyUnmarked(*globalAsset, nullptr);
  const wchar_t* id = Fields::OptionalText(&asset, RepositoryFormat::FIELD_GLOBAL_ID);
  return id ? Refusal(WhyNot::GlobalUnknown, id) : Refusal(WhyNot::GlobalUnnamed, RepositoryFormat::FIELD_GLOBAL_ID);
}

}  // namespace

void RepositoryValidation::ValidateGlobalAssets() {
  if (Data2::GetGlobalAssetCount() == 0) return;
  const std::wstring root = RepositoryPaths::Root();
  for (int i = 0; i < Data2::GetGlobalAssetCount(); ++i) {
    DataContainer* globalAsset = Data2::GetGlobalAsset(i);
    const bool valid = HasFolder(*globalAsset, RepositoryPaths::GlobalAsset(root, globalAsset));
    if (!valid) Debug::AddDebugMessage(DEBUG_INFO, L"set global asset invalid...");
    globalAsset->SetFastFlag(FLAG_VALID, valid);
  }
}

void RepositoryValidation::ValidateCharacter(CharacterData* character) {
  if (!character) return;
  const wchar_t* folder = Fields::Text(character, RepositoryFormat::FIELD_FOLDER);
  const bool valid = folder && Disk::FolderExists(folder);
  character->SetFastFlag(FLAG_VALID, valid);
  if (!valid) return;
  for (int i = 0; i < character->GetCount(CLOTH); ++i) {
    ValidateElement(character->GetContainerElement(CLOTH, i), folder);
  }
  for (int i = 0; i < character->GetCount(POSES); ++i) {
    ValidateElement(character->GetContainerElement(POSES, i), folder);
  }
  for (int i = 0; i < character->GetCount(ASSETS); ++i) {
    ValidateAsset(character->GetContainerElement(ASSETS, i), folder);
  }
}

bool RepositoryValidation::ValidateElement(DataContainer* element, const wchar_t* baseFolder) {
  if (!element || !baseFolder) return false;
  const bool valid = HasFolder(*element, RepositoryPaths::Element(baseFolder, element));
  if (!valid) Debug::AddDebugMessage(DEBUG_INFO, L"set element invalid...");
  element->SetFastFlag(FLAG_VALID, valid);
  return valid;
}

Refusal RepositoryValidation::WhyUnmarked(const DataContainer& record, const CharacterData* character) {
  if (record.GetFastFlag(FLAG_VALID)) return Refusal();
  if (!character) return WhyFolderNotFound(record, RepositoryPaths::GlobalAsset(RepositoryPaths::Root(), &record));
  const std::wstring folder = Fields::TextOrEmpty(character, RepositoryFormat::FIELD_FOLDER);
  if (&record == character) return WhyFolderNotFound(record, folder);
  if (!character->GetFastFlag(FLAG_VALID)) return Refusal(WhyNot::NeverChecked, folder);
  if (Data2::CheckAssetGlobal(&record)) return WhyStandInUnmarked(record);
  return WhyFolderNotFound(record, RepositoryPaths::Element(folder, &record));
}

}  // namespace ZORVEL
