// The lookups of CharacterData; building and lists are in CharacterData.cpp.
#include <algorithm>
#include <cstdint>
#include <cwchar>
#include <numeric>
#include <tuple>

#include "core/Debug.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/Selection2.h"

namespace ZORVEL {

DataContainer* CharacterData::FindElementById(const DataContainer* container, const wchar_t* id) {
  if (!container || !id) return nullptr;
  for (int i = 0; i < container->GetChildCount(); ++i) {
    DataContainer* child = container->GetChild(i);
    const wchar_t* childId = Fields::Text(child, L"id");
    if (childId && std::wcscmp(childId, id) == 0) return child;
  }
  return nullptr;
}

DataContainer* CharacterData::GetSkin(const wchar_t* id) const { return FindElementById(&m_containers[SKINS], id); }

DataContainer* CharacterData::GetPose(const wchar_t* id) const { return FindElementById(&m_containers[POSES], id); }

DataContainer* CharacterData::GetCloth(const wchar_t* id) const { return FindElementById(&m_containers[CLOTH], id); }

DataContainer* CharacterData::GetStyle(const wchar_t* clothId, const wchar_t* styleId) const {
  if (!clothId || !styleId) return nullptr;
  const DataContainer* cloth = GetCloth(clothId);
  // A cloth added without groups has no styles.
  if (!cloth || cloth->GetChildCount() == 0) return nullptr;
  return FindElementById(cloth->GetChild(MATERIAL), styleId);
}

DataContainer* CharacterData::GetCategory(const DataContainer* asset) const {
  if (!asset) return nullptr;
  const wchar_t* id = Fields::OptionalText(asset, L"category");
  if (id) return FindElementById(&m_containers[CATEGORIES], id);
  Debug::AddDebugMessage(DEBUG_WARNING, L"CharacterData::GetCategory: invalid asset");
  return nullptr;
}

DataContainer* CharacterData::GetCategoryForGlobalAsset(const DataContainer* globalAsset) const {
  return globalAsset ? GetCategory(FindLocalAssetForGlobal(globalAsset)) : nullptr;
}

void CharacterData::GetAssetsForCategory(std::vector<DataContainer*>& assets, const DataContainer* category) const {
  const wchar_t* categoryId = Fields::OptionalText(category, L"id");
  if (!categoryId) return;
  const DataContainer* cloth = GetCloth(Selection2::GetCloth());
  for (int i = 0; i < GetCount(ASSETS); ++i) {
    DataContainer* asset = GetContainerElement(ASSETS, i);
    if (!Fields::Equals(asset, L"category", categoryId)) continue;
    DataContainer* candidate = findOfferedAsset(asset);
    if (candidate && !IsAssetExcludedByCloth(cloth, asset)) assets.push_back(candidate);
  }
}

DataContainer* CharacterData::findOfferedAsset(DataContainer* asset) const {
  const wchar_t* id = Fields::OptionalText(asset, L"id");
  DataContainer* candidate = asset;
  bool placedByMatrix = !IsSpecific(asset);
  if (Data2::CheckAssetGlobal(asset)) {
    DataContainer* globalAsset = Data2::GetGlobalAssetForAsset(asset);
    placedByMatrix = globalAsset != nullptr;
    if (globalAsset) {
      if (id) globalAsset->SetData(L"local_asset_id", id);
      candidate = globalAsset;
    }
  }
  if (!placedByMatrix || FindAssetMatrixElement(Selection2::GetPose(), id)) return candidate;
  Debug::AddDebugMessage(DEBUG_INFO, L"CharacterData::GetAssetsForCategory found no matrix for ");
  return nullptr;
}

bool CharacterData::CheckAssetStyleForClothSelection(const DataContainer* asset, const DataContainer* material) const {
  if (!asset) return false;
  const wchar_t* localId = Fields::OptionalText(asset, L"local_asset_id");
  const wchar_t* assetId = localId ? localId : Fields::Text(asset, L"id");
  const wchar_t* materialId = Fields::Text(material, L"id");
  const DataContainer* cloth = GetCloth(Selection2::GetCloth());
  const DataContainer* selects = cloth && cloth->GetChildCount() > SELECT ? cloth->GetChild(SELECT) : nullptr;
  if (!selects || !assetId) return false;
  for (int i = 0; i < selects->GetChildCount(); ++i) {
    const DataContainer* entry = selects->GetChild(i);
    const wchar_t* entryAsset = Fields::Text(entry, L"asset_id");
    if (!entryAsset || std::wcscmp(entryAsset, assetId) != 0) continue;
    if (!material || Fields::Equals(entry, L"material_id", materialId)) return true;
  }
  return false;
}

bool CharacterData::GetAssetAndMaterial(int unique, DataContainer*& asset, DataContainer*& material) const {
  for (int i = 0; i < GetCount(ASSETS); ++i) {
    DataContainer* candidate = GetContainerElement(ASSETS, i);
    if (candidate && Data2::FindRecordOrChild(unique, *candidate, material)) {
      asset = candidate;
      return true;
    }
  }
  return false;
}

const AssetMatrixElement* CharacterData::FindAssetMatrixElement(const wchar_t* poseID, const wchar_t* assetID) const {
  if (!poseID || !assetID) return nullptr;
  orderAssetMatrix();
  // A page of assets asks for each of them, and there may be a row for each asset in each pose.
  const auto found = std::lower_bound(m_matrixOrder.begin(), m_matrixOrder.end(), 0U, [&](std::uint32_t row, unsigned) {
    const int order = m_assetMatrix[row].assetID.compare(assetID);
    return order < 0 || (order == 0 && m_assetMatrix[row].poseID < poseID);
  });
  if (found == m_matrixOrder.end()) return nullptr;
  const AssetMatrixElement& row = m_assetMatrix[*found];
  return row.assetID == assetID && row.poseID == poseID ? &row : nullptr;
}

void CharacterData::orderAssetMatrix() const {
  if (m_matrixOrder.size() == m_assetMatrix.size()) return;
  m_matrixOrder.resize(m_assetMatrix.size());
  std::iota(m_matrixOrder.begin(), m_matrixOrder.end(), 0U);
  // Of several rows for the same two the first counts.
  std::stable_sort(m_matrixOrder.begin(), m_matrixOrder.end(), [this](std::uint32_t a, std::uint32_t b) {
    return std::tie(m_assetMatrix[a].assetID, m_assetMatrix[a].poseID) <
           std::tie(m_assetMatrix[b].assetID, m_assetMatrix[b].poseID);
  });
}

bool CharacterData::IsAssetExcludedByCloth(const DataContainer* cloth, const DataContainer* asset) const {
  if (!cloth || !asset || cloth->GetChildCount() <= EXCLUDE) return false;
  const wchar_t* assetId = Fields::Text(asset, L"id");
  return assetId && FindElementById(cloth->GetChild(EXCLUDE), assetId) != nullptr;
}

bool CharacterData::IsSpecific(const DataContainer* asset) { return Fields::Equals(asset, L"type", L"specific"); }

bool CharacterData::IsMultiple(const DataContainer* category) {
  return Fields::Equals(category, L"selection", L"multiple");
}

bool CharacterData::IsRequired(const DataContainer* category) { return Fields::Equals(category, L"required", L"true"); }

DataContainer* CharacterData::FindLocalAssetForGlobal(const DataContainer* globalAsset) const {
  const wchar_t* globalId = Fields::OptionalText(globalAsset, L"id");
  if (!globalId) return nullptr;
  for (int i = 0; i < GetCount(ASSETS); ++i) {
    DataContainer* asset = GetContainerElement(ASSETS, i);
    if (Data2::CheckAssetGlobal(asset) && Fields::Equals(asset, L"globalID", globalId)) return asset;
  }
  return nullptr;
}

DataContainer* CharacterData::ResolveAsset(const DataContainer* element) const {
  const wchar_t* id = Fields::OptionalText(element, L"id");
  if (!id) return nullptr;
  DataContainer* asset = FindElementById(&m_containers[ASSETS], id);
  return Data2::CheckAssetGlobal(asset) ? Data2::GetGlobalAssetForAsset(asset) : asset;
}

}  // namespace ZORVEL
