#include "model/RepositoryValidation.h"

#include <string>

#include "core/Debug.h"
#include "core/Disk.h"
#include "core/Settings.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"

namespace ZORVEL {

namespace {

/// True when the record has a "folder" and `base` joined with it is an existing folder.
bool hasFolderBelow(const DataContainer& record, const std::wstring& base) {
  const wchar_t* folder = Fields::Text(&record, RepositoryFormat::FIELD_FOLDER);
  return folder && Disk::FolderExists(base + folder);
}

void validateAsset(DataContainer* asset, const wchar_t* characterFolder) {
  if (!Data2::CheckAssetGlobal(asset)) {
    RepositoryValidation::ValidateElement(asset, characterFolder);
    return;
  }
  const DataContainer* globalAsset = Data2::GetGlobalAssetForAsset(asset);
  if (globalAsset) asset->SetFastFlag(FLAG_VALID, globalAsset->GetFastFlag(FLAG_VALID));
}

}  // namespace

void RepositoryValidation::ValidateGlobalAssets() {
  if (Data2::GetGlobalAssetCount() == 0) return;
  const wchar_t* root = Settings::GetPath();
  const std::wstring base = std::wstring(root ? root : L"") + RepositoryFormat::GLOBAL_ASSETS_FOLDER;
  for (int i = 0; i < Data2::GetGlobalAssetCount(); ++i) {
    DataContainer* globalAsset = Data2::GetGlobalAsset(i);
    const bool valid = hasFolderBelow(*globalAsset, base);
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
    validateAsset(character->GetContainerElement(ASSETS, i), folder);
  }
}

bool RepositoryValidation::ValidateElement(DataContainer* element, const wchar_t* baseFolder) {
  if (!element || !baseFolder) return false;
  const bool valid = hasFolderBelow(*element, std::wstring(baseFolder) + RepositoryFormat::SEPARATOR);
  if (!valid) Debug::AddDebugMessage(DEBUG_INFO, L"set element invalid...");
  element->SetFastFlag(FLAG_VALID, valid);
  return valid;
}

}  // namespace ZORVEL
