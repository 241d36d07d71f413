#include "ui/MainWindowGenericTab.h"

#include "plugin/Commands.h"
#include "core/Settings.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "ui/ClothInPose.h"
#include "ui/Log.h"
#include "ui/MainWindowGeneralElement.h"
#include "ui/Texts.h"

namespace ZORVEL {

namespace {

/// Where the asset's pictures lie.
std::wstring FolderOf(const DataContainer* asset, const CharacterData& character) {
  const std::wstring base = Data2::CheckAssetGlobal(asset) ? Settings::GetPath() + std::wstring(L"\\global_assets\\")
                                                           : Texts::Field(&character, L"folder") + L"\\";
  return base + Texts::Field(asset, L"folder");
}

}  // namespace

void MainWindowGenericTab::SetCategoryInfo(bool multiple, bool required) {
  m_multiple = multiple;
  m_required = required;
}

void MainWindowGenericTab::FillAssets(const std::vector<DataContainer*>& assets, const CharacterData& character) {
  m_elementCount = 0;
  const ClothInPose worn = ClothInPose::Chosen(character);
  if (!worn.IsComplete()) return;
  for (const DataContainer* asset : assets) {
    if (asset == nullptr || !asset->GetFastFlag(FLAG_VALID)) continue;
    if (asset->GetChildCount() > 0) {
      HandleAssetStyles(asset, character, worn);
    } else {
      HandleAsset(asset, character, worn);
    }
  }
}

void MainWindowGenericTab::HandleAsset(const DataContainer* asset, const CharacterData& character,
                                       const ClothInPose& worn) {
  AddAsset(asset, nullptr, Texts::Field(asset, L"name"), FolderOf(asset, character) + L"\\preview.png", character,
           worn);
}

void MainWindowGenericTab::HandleAssetStyles(const DataContainer* asset, const CharacterData& character,
                                             const ClothInPose& worn) {
  const std::wstring folder = FolderOf(asset, character) + L"\\";
  const std::wstring name = Texts::Field(asset, L"name") + L" : ";
  for (int i = 0; i < asset->GetChildCount(); ++i) {
    const DataContainer* style = asset->GetChild(i);
    if (style == nullptr) continue;
    AddAsset(asset, style, name + Texts::Field(style, L"name"), folder + Texts::Field(style, L"preview"), character,
             worn);
  }
}

void MainWindowGenericTab::AddAsset(const DataContainer* asset, const DataContainer* style, const std::wstring& text,
                                    const std::wstring& picture, const CharacterData& character,
                                    const ClothInPose& worn) {
  const int unique = Data2::GetUnique(style != nullptr ? style : asset);
  ElementPtr element = MakeElement<MainWindowGeneralElement>(unique, text, picture, worn);
  if (element == nullptr) return;
  Append(std::move(element));
  if (m_elementCount++ == 0 && m_required) Choose(unique);
  if (character.CheckAssetStyleForClothSelection(asset, style)) Choose(unique);
}

void MainWindowGenericTab::Choose(int unique) {
  SelectElement(unique);
  // What is required and goes with the clothing too is worn once.
  if (!Selection2::CheckSelectedAsset(unique)) Commands::SetSelectedAsset(static_cast<unsigned int>(unique), false);
}

void MainWindowGenericTab::SelectedElement(int unique) {
  LogInfo(L"selected an asset in the GUI");
  Commands::SetSelectedAsset(static_cast<unsigned int>(unique), true);
}

void MainWindowGenericTab::UnselectElement(int unique) {
  LogInfo(L"de-select an asset in the GUI");
  Commands::SetDeselectedAsset(static_cast<unsigned int>(unique), true);
}

}  // namespace ZORVEL
