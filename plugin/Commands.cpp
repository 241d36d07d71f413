#include "plugin/Commands.h"

#include <maxscript/maxscript.h>

#include <string>

#include "core/Debug.h"
#include "core/Settings.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "plugin/RepositoryDialog.h"
#include "repository/Parser2.h"
#include "scene/BuildReport.h"
#include "scene/CharacterBuilder.h"
#include "scene/Placement.h"
#include "ui/MainWindow.h"

namespace ZORVEL {

namespace {

/// Set while the window rebuilds its tabs for a new pose.
bool rebuildingTabs = false;

void LogError(const wchar_t* text) { Debug::AddDebugMessage(DEBUG_ERROR, text); }

const wchar_t* IdOf(unsigned int unique) { return Data2::GetIdForUnique(static_cast<int>(unique)); }

bool SettingsAreLoaded() { return Settings::CheckSingleton() || Settings::LoadSettings(); }

void LoadRepository() {
  Parser2::ParseRepository(Settings::GetPath());
  Data2::SetValidated(true);
}

void ReplaceRepository() {
  Data2::Clear();
  LoadRepository();
  if (Data2::GetCharacterCount() == 0) Debug::AddDebugMessage(DEBUG_INFO, L"No Characters found!");
  MainWindow::Rebuild();
}

/// What a command about an asset works with; without a category there is nothing to do.
struct AssetChoice {
  const CharacterData* character = nullptr;
  const DataContainer* category = nullptr;
};

AssetChoice FindAsset(unsigned int unique) {
  AssetChoice choice;
  choice.character = Data2::GetCharacter(Selection2::GetCharacter());
  if (choice.character == nullptr) return choice;
  DataContainer* asset = nullptr;
  DataContainer* material = nullptr;
  if (Data2::GetGlobalAssetAndMaterial(static_cast<int>(unique), asset, material)) {
    choice.category = choice.character->GetCategoryForGlobalAsset(asset);
  } else if (choice.character->GetAssetAndMaterial(static_cast<int>(unique), asset, material)) {
    choice.category = choice.character->GetCategory(asset);
  }
  return choice;
}

bool MayBeDeselected(const AssetChoice& choice) {
  return !CharacterData::IsRequired(choice.category) ||
         Selection2::CountSelectedInCategory(choice.category, choice.character) >= 2;
}

void ClearElements() {
  Selection2::SetCloth(nullptr);
  Selection2::SetPose(nullptr);
  Selection2::SetStyle(nullptr);
  Selection2::SetSkin(nullptr);
  Selection2::ClearAssets();
}

}  // namespace

void Commands::CallMainWindow() {
  Debug::AddDebugMessage(DEBUG_INFO, L"CallMainWindow");
  if (ValidateData()) MainWindow::OpenMainWindow();
}

bool Commands::ValidateData() {
  if (Data2::IsValidated()) return true;
  Selection2::Reset();
  if (!SettingsAreLoaded()) {
    LogError(L"Commands::ValidateData could not load settings!");
    return false;
  }
  if (!Settings::GetPathSet() && !SetPath()) return false;
  LoadRepository();
  return true;
}

void Commands::LoadData() {
  if (!Settings::CheckSingleton()) return LogError(L"Commands::LoadData settings not initiated!");
  if (!Settings::GetPathSet()) return LogError(L"Commands::LoadData called without valid settings");
}

void Commands::ReloadRepository() {
  // The text names another command; it is kept as it is.
  if (!SettingsAreLoaded()) return LogError(L"Commands::ValidateData could not load settings!");
  Selection2::Reset();
  ReplaceRepository();
}

void Commands::ResetRepository() {
  Selection2::Reset();
  if (!SettingsAreLoaded()) return LogError(L"Commands::ResetRepository could not load settings!");
  if (SetPath()) ReplaceRepository();
}

bool Commands::SetPath() {
  const std::wstring folder = RepositoryDialog::AskForFolder();
  if (folder.empty()) {
    Debug::AddDebugMessage(DEBUG_INFO, L"User selected no directory");
    return false;
  }
  Debug::AddDebugMessage(DEBUG_INFO, folder.c_str());
  Settings::StorePath(folder.c_str());
  return true;
}

void Commands::CreateCharacter() {
  ExecuteMAXScriptScript(L"animButtonState=false");
  BuildReport report;
  INode* parent = CharacterBuilder::BuildSelectedCharacter(report);
  if (parent == nullptr) return LogError(L"Commands::CreateCharacter could not create character");
  Placement::StartPlacement(parent);
}

void Commands::SetSelectedCharacterUnique(unsigned int character, bool updateGui) {
  if (character == 0) return LogError(L"Commands::SetSelectedCharacterUnique: invalid unqiue");
  if (const wchar_t* id = IdOf(character)) {
    Selection2::SetCharacter(id);
    ClearElements();
  }
  if (updateGui) MainWindow::UpdateCharacterSelectionFromGUI();
}

void Commands::SetSelectedClothUnique(unsigned int character, unsigned int cloth, bool updateGui) {
  if (const wchar_t* id = IdOf(character)) Selection2::SetCharacter(id);
  if (const wchar_t* id = IdOf(cloth)) {
    Selection2::SetCloth(id);
    Selection2::SetPose(nullptr);
    Selection2::SetStyle(nullptr);
    Selection2::ClearAssets();
  }
  if (updateGui) MainWindow::UpdateCharacterSelectionFromGUI();
}

void Commands::SetSelectedPose(unsigned int pose, bool updateGui) {
  if (rebuildingTabs) return;
  Selection2::SetPose(IdOf(pose));
  if (!updateGui) return;
  rebuildingTabs = true;
  MainWindow::RebuildTabs();
  rebuildingTabs = false;
  MainWindow::UpdateElementSelection();
}

void Commands::SetSelectedSkin(unsigned int skin, bool updateGui) {
  if (rebuildingTabs) return;
  Selection2::SetSkin(IdOf(skin));
  if (updateGui) MainWindow::UpdateElementSelection();
}

void Commands::SetSelectedStyle(unsigned int style, bool updateGui) {
  if (rebuildingTabs) return;
  Selection2::SetStyle(IdOf(style));
  if (updateGui) MainWindow::UpdateElementSelection();
}

void Commands::SetSelectedAsset(unsigned int asset, bool updateGui) {
  if (rebuildingTabs || asset == 0) return;
  const AssetChoice choice = FindAsset(asset);
  if (choice.character == nullptr) return;
  if (choice.category != nullptr) {
    if (!CharacterData::IsMultiple(choice.category)) {
      Selection2::RemoveAssetsOfCategory(choice.category, choice.character);
    }
    Selection2::AddAsset(static_cast<int>(asset));
  }
  if (updateGui) MainWindow::UpdateElementSelection();
}

void Commands::SetDeselectedAsset(unsigned int asset, bool updateGui) {
  if (asset == 0) return;
  const AssetChoice choice = FindAsset(asset);
  if (choice.character == nullptr) return;
  if (choice.category != nullptr && MayBeDeselected(choice)) Selection2::RemoveAsset(static_cast<int>(asset));
  if (updateGui) MainWindow::UpdateElementSelection();
}

}  // namespace ZORVEL
