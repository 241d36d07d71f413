#include "model/Selection2.h"

#include <string>

#include "core/Debug.h"
#include "model/ChosenAssets.h"

namespace ZORVEL {

namespace {

struct Choice {
  std::wstring character;
  std::wstring cloth;
  std::wstring pose;
  std::wstring skin;
  std::wstring style;
  ChosenAssets assets;
};

Choice& TheChoice() {
  static Choice instance;
  return instance;
}

const wchar_t* NullIfEmpty(const std::wstring& text) { return text.empty() ? nullptr : text.c_str(); }

void SetChoice(std::wstring& value, const wchar_t* id) {
  if (id) {
    value = id;
  } else {
    value.clear();
  }
}

}  // namespace

const wchar_t* Selection2::GetCharacter() { return TheChoice().character.c_str(); }
const wchar_t* Selection2::GetCloth() { return NullIfEmpty(TheChoice().cloth); }
const wchar_t* Selection2::GetPose() { return NullIfEmpty(TheChoice().pose); }
const wchar_t* Selection2::GetSkin() { return NullIfEmpty(TheChoice().skin); }
const wchar_t* Selection2::GetStyle() { return NullIfEmpty(TheChoice().style); }

void Selection2::SetCharacter(const wchar_t* id) { SetChoice(TheChoice().character, id); }
void Selection2::SetCloth(const wchar_t* id) { SetChoice(TheChoice().cloth, id); }
void Selection2::SetPose(const wchar_t* id) { SetChoice(TheChoice().pose, id); }
void Selection2::SetSkin(const wchar_t* id) { SetChoice(TheChoice().skin, id); }
void Selection2::SetStyle(const wchar_t* id) { SetChoice(TheChoice().style, id); }

void Selection2::AddAsset(int unique) { TheChoice().assets.Add(unique); }

void Selection2::RemoveAsset(int unique) { TheChoice().assets.Remove(unique); }

void Selection2::ClearAssets() { TheChoice().assets.Clear(); }

bool Selection2::CheckSelectedAsset(int unique) { return TheChoice().assets.Contains(unique); }

int Selection2::GetAssetCount() { return static_cast<int>(TheChoice().assets.GetUniques().size()); }

int Selection2::GetAsset(int index) {
  if (index >= 0 && index < GetAssetCount()) return TheChoice().assets.GetUniques()[static_cast<std::size_t>(index)];
  Debug::AddDebugMessage(DEBUG_ERROR, L"Selection2::GetAsset: index out of range!");
  return 0;
}

void Selection2::RemoveAssetsOfCategory(const DataContainer* category, const CharacterData* character) {
  if (character) TheChoice().assets.RemoveCategory(category, *character);
}

int Selection2::CountSelectedInCategory(const DataContainer* category, const CharacterData* character) {
  return category && character ? 0 : -1;
}

void Selection2::Reset() {
  SetCharacter(nullptr);
  SetCloth(nullptr);
  SetPose(nullptr);
  SetSkin(nullptr);
  ClearAssets();
}

}  // namespace ZORVEL
