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
#include "model/RecordIndex.h"
#include "model/RepositoryFormat.h"
#include "model/Selection2.h"
#include "model/UniqueIndex.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

/// A global asset that there is always does; one that there is not is listed as the character's own, whatever its pose.
bool NeedsMatrixRow(const DataContainer* asset, const DataContainer* globalAsset) {
  return Data2::CheckAssetGlobal(asset) ? globalAsset != nullptr : !CharacterData::IsSpecific(asset);
}

/// Null when the asset stands for none, or for one that there is not.
DataContainer* GlobalBehind(const DataContainer* asset) {
  return Data2::CheckAssetGlobal(asset) ? Data2::GetGlobalAssetForAsset(asset) : nullptr;
}

/// Of an entry of a select group.
bool NamesMaterial(const DataContainer* entry, const wchar_t* materialId) {
  return Fields::Equals(entry, FIELD_MATERIAL_ID, materialId);
}

bool NamesMaterialOf(const DataContainer* entry, const DataContainer& record) {
  for (int i = 0; i < record.GetChildCount(); ++i) {
    if (NamesMaterial(entry, Fields::OptionalText(record.GetChild(i), FIELD_ID))) return true;
  }
  return false;
}

}  // namespace

DataContainer* CharacterData::FindElementById(const DataContainer* container, const wchar_t* id) {
  if (!container || !id) return nullptr;
  if (const RecordIndex* index = container->GetChildIndex(IndexedField::Id)) {
    return container->GetChild(index->FindFirst(id));
  }
  for (int i = 0; i < container->GetChildCount(); ++i) {
    DataContainer* child = container->GetChild(i);
    const wchar_t* childId = Fields::Text(child, FIELD_ID);
    if (childId && std::wcscmp(childId, id) == 0) return child;
  }
  return nullptr;
}

DataContainer* CharacterData::GetSkin(const wchar_t* id) const { return FindElementById(&m_containers[SKINS], id); }

DataContainer* CharacterData::GetPose(const wchar_t* id) const { return FindElementById(&m_containers[POSES], id); }

DataContainer* CharacterData::GetCloth(const wchar_t* id) const { return FindElementById(&m_containers[CLOTH], id); }

DataContainer* CharacterData::GetAsset(const wchar_t* id) const { return FindElementById(&m_containers[ASSETS], id); }

DataContainer* CharacterData::GetStyle(const wchar_t* clothId, const wchar_t* styleId) const {
  if (!clothId || !styleId) return nullptr;
  const DataContainer* cloth = GetCloth(clothId);
  // A cloth added without groups has no styles.
  if (!cloth || cloth->GetChildCount() == 0) return nullptr;
  return FindElementById(cloth->GetChild(MATERIAL), styleId);
}

DataContainer* CharacterData::GetCategory(const DataContainer* asset) const {
  if (!asset) return nullptr;
  const wchar_t* id = Fields::OptionalText(asset, FIELD_CATEGORY);
  if (id) return FindElementById(&m_containers[CATEGORIES], id);
  Debug::AddDebugMessage(DEBUG_WARNING, L"CharacterData::GetCategory: invalid asset");
  return nullptr;
}

DataContainer* CharacterData::GetCategoryForGlobalAsset(const DataContainer* globalAsset) const {
  return globalAsset ? GetCategory(FindLocalAssetForGlobal(globalAsset)) : nullptr;
}

void CharacterData::GetAssetsForCategory(std::vector<DataContainer*>& assets, const DataContainer* category) const {
  for (const ListedAsset& listed : ListAssetsForCategory(category)) {
    if (listed.whyNot == WhyNot::Nothing) assets.push_back(listed.record);
  }
}

std::vector<ListedAsset> CharacterData::ListAssetsForCategory(const DataContainer* category) const {
  std::vector<ListedAsset> listed;
  const wchar_t* categoryId = Fields::OptionalText(category, FIELD_ID);
  if (!categoryId) return listed;
  const DataContainer* cloth = GetCloth(Selection2::GetCloth());
  for (DataContainer* asset : AssetsWith(IndexedField::Category, FIELD_CATEGORY, categoryId)) {
    listed.push_back(ListAsset(asset, cloth));
  }
  return listed;
}

std::vector<DataContainer*> CharacterData::AssetsWith(IndexedField indexed, const wchar_t* field,
                                                      const wchar_t* text) const {
  std::vector<DataContainer*> assets;
  if (const RecordIndex* index = m_containers[ASSETS].GetChildIndex(indexed)) {
    for (const RecordIndex::Entry& entry : index->Find(text))
      assets.push_back(GetContainerElement(ASSETS, entry.place));
    return assets;
  }
  for (int i = 0; i < GetCount(ASSETS); ++i) {
    DataContainer* asset = GetContainerElement(ASSETS, i);
    if (Fields::Equals(asset, field, text)) assets.push_back(asset);
  }
  return assets;
}

ListedAsset CharacterData::ListAsset(DataContainer* asset, const DataContainer* cloth) const {
  const wchar_t* id = Fields::OptionalText(asset, FIELD_ID);
  DataContainer* globalAsset = GlobalBehind(asset);
  if (globalAsset && id) globalAsset->SetData(FIELD_LOCAL_ASSET_ID, id);
  ListedAsset listed = {asset, globalAsset ? globalAsset : asset, WhyNot::Nothing};
  if (NeedsMatrixRow(asset, globalAsset) && !FindAssetMatrixElement(Selection2::GetPose(), id)) {
    Debug::AddDebugMessage(DEBUG_INFO, L"CharacterData::GetAssetsForCategory found no matrix for ");
    listed.whyNot = WhyNot::NoMatrixRow;
  } else if (IsAssetExcludedByCloth(cloth, asset)) {
    listed.whyNot = WhyNot::Excluded;
  }
  return listed;
}

bool CharacterData::CheckAssetStyleForClothSelection(const DataContainer* asset, const DataContainer* material) const {
  if (!asset) return false;
  const wchar_t* localId = Fields::OptionalText(asset, FIELD_LOCAL_ASSET_ID);
  const wchar_t* assetId = localId ? localId : Fields::Text(asset, FIELD_ID);
  const wchar_t* materialId = Fields::Text(material, FIELD_ID);
  const DataContainer* cloth = GetCloth(Selection2::GetCloth());
  const DataContainer* selects = cloth && cloth->GetChildCount() > SELECT ? cloth->GetChild(SELECT) : nullptr;
  if (!selects || !assetId) return false;
  if (const RecordIndex* index = selects->GetChildIndex(IndexedField::AssetId)) {
    const RecordIndex::Entries entries = index->Find(assetId);
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const RecordIndex::Entry& entry) {
      return !material || NamesMaterial(entry.record, materialId);
    });
    index->TellLacking(found != entries.end() ? found->place : selects->GetChildCount());
    return found != entries.end();
  }
  for (int i = 0; i < selects->GetChildCount(); ++i) {
    const DataContainer* entry = selects->GetChild(i);
    const wchar_t* entryAsset = Fields::Text(entry, FIELD_ASSET_ID);
    if (!entryAsset || std::wcscmp(entryAsset, assetId) != 0) continue;
    if (!material || NamesMaterial(entry, materialId)) return true;
  }
  return false;
}

bool CharacterData::FindsSelected(const DataContainer* entry) const {
  const wchar_t* id = Fields::OptionalText(entry, FIELD_ASSET_ID);
  if (!id) return false;
  for (const DataContainer* asset : AssetsWith(IndexedField::Id, FIELD_ID, id)) {
    const DataContainer* globalAsset = GlobalBehind(asset);
    const DataContainer& record = globalAsset ? *globalAsset : *asset;
    if (record.GetChildCount() == 0 || NamesMaterialOf(entry, record)) return true;
  }
  return false;
}

bool CharacterData::GetAssetAndMaterial(int unique, DataContainer*& asset, DataContainer*& material) const {
  const auto at = [this](int place) { return GetContainerElement(ASSETS, place); };
  if (const UniqueIndex* index = UniqueIndex::Of(&m_containers[ASSETS], GetCount(ASSETS), at)) {
    const UniqueIndex::Entry* const entry = index->Find(unique);
    if (!entry) return false;
    asset = at(entry->place);
    material = entry->child;
    return true;
  }
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
  OrderAssetMatrix();
  // A page of assets asks for each of them, and there may be a row for each asset in each pose.
  const auto found = std::lower_bound(m_matrixOrder.begin(), m_matrixOrder.end(), 0U, [&](std::uint32_t row, unsigned) {
    const int order = m_assetMatrix[row].assetID.compare(assetID);
    return order < 0 || (order == 0 && m_assetMatrix[row].poseID < poseID);
  });
  if (found == m_matrixOrder.end()) return nullptr;
  const AssetMatrixElement& row = m_assetMatrix[*found];
  return row.assetID == assetID && row.poseID == poseID ? &row : nullptr;
}

void CharacterData::OrderAssetMatrix() const {
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
  const wchar_t* assetId = Fields::Text(asset, FIELD_ID);
  return assetId && FindElementById(cloth->GetChild(EXCLUDE), assetId) != nullptr;
}

bool CharacterData::IsSpecific(const DataContainer* asset) { return Fields::Equals(asset, FIELD_TYPE, VALUE_SPECIFIC); }

bool CharacterData::IsMultiple(const DataContainer* category) {
  return Fields::Equals(category, FIELD_SELECTION, VALUE_MULTIPLE);
}

bool CharacterData::IsRequired(const DataContainer* category) {
  return Fields::Equals(category, FIELD_REQUIRED, VALUE_TRUE);
}

DataContainer* CharacterData::FindLocalAssetForGlobal(const DataContainer* globalAsset) const {
  const wchar_t* globalId = Fields::OptionalText(globalAsset, FIELD_ID);
  if (!globalId) return nullptr;
  for (DataContainer* asset : AssetsWith(IndexedField::GlobalId, FIELD_GLOBAL_ID, globalId)) {
    if (Data2::CheckAssetGlobal(asset)) return asset;
  }
  return nullptr;
}

DataContainer* CharacterData::ResolveAsset(const DataContainer* element) const {
  const wchar_t* id = Fields::OptionalText(element, FIELD_ID);
  if (!id) return nullptr;
  DataContainer* asset = GetAsset(id);
  return Data2::CheckAssetGlobal(asset) ? Data2::GetGlobalAssetForAsset(asset) : asset;
}

}  // namespace ZORVEL
