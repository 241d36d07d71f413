#include "model/CharacterData.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <new>
#include <utility>

#include "core/Debug.h"
#include "core/Disk.h"
#include "model/Fields.h"
#include "model/NumberText.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"
#include "model/Utf16Order.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

DataContainer* Refuse(const wchar_t* message) {
  Debug::AddDebugMessage(DEBUG_ERROR, message);
  return nullptr;
}

DataContainer* AppendChild(DataContainer& parent) {
  auto* child = new (std::nothrow) DataContainer;
  if (child) parent.AddChild(child);
  return child;
}

struct NewField {
  const wchar_t* name;
  const wchar_t* text;
};

bool AppendRecord(DataContainer& list, std::initializer_list<NewField> fields) {
  auto* record = new (std::nothrow) DataContainer;
  if (!record) return false;
  for (const NewField& field : fields) record->SetData(field.name, field.text);
  return list.AddChild(record);
}

const wchar_t* OrEmpty(const wchar_t* text) { return text ? text : L""; }

/// Held here because a character has thousands of rows.
struct MatrixFields {
  FieldName poseID{FIELD_POSE_ID};
  FieldName assetID{FIELD_MATRIX_ASSET_ID};
  FieldName xpos{FIELD_XPOS};
  FieldName ypos{FIELD_YPOS};
  FieldName zpos{FIELD_ZPOS};
  FieldName xrot{FIELD_XROT};
  FieldName yrot{FIELD_YROT};
  FieldName zrot{FIELD_ZROT};
};

float Coordinate(const DataContainer& row, FieldName field) {
  bool found = false;
  const double value = NumberFromText(row.GetData(field, found));
  const float largest = std::numeric_limits<float>::max();
  if (!(std::fabs(value) > static_cast<double>(largest))) return static_cast<float>(value);
  return std::copysign(std::numeric_limits<float>::infinity(), value < 0 ? -1.0F : 1.0F);
}

bool IsKind(int kind, int count) { return kind >= 0 && kind < count; }

}  // namespace

// Building

int CharacterData::AddContainerElement(CONTAINER container) {
  if (!IsKind(container, CONTAINER_COUNT)) return -1;
  DataContainer& list = m_containers[container];
  DataContainer* element = AppendChild(list);
  if (!element) return -1;
  for (int group = 0; container == CLOTH && group < CLOTH_CHILD_COUNT; ++group) AppendChild(*element);
  return list.GetChildCount() - 1;
}

void CharacterData::SetContainerName(CONTAINER container, const wchar_t* name) {
  if (container == SKINS) m_skinsName += OrEmpty(name);
  if (container == POSES) m_posesName += OrEmpty(name);
  if (container == CLOTH) m_clothName += OrEmpty(name);
}

DataContainer* CharacterData::AddChildToClothContainer(int clothIndex, CLOTH_CHILD group) {
  if (clothIndex >= GetCount(CLOTH)) return Refuse(L"CharacterData::AddChildToClothContainer: index out of range");
  if (!GetContainerElement(CLOTH, clothIndex)) {
    return Refuse(L"CharacterData::AddChildToClothContainer: could not get cloth element");
  }
  DataContainer* children = FindClothGroup(clothIndex, group);
  if (!children) return Refuse(L"CharacterData::AddChildToClothContainer: could not get subContainerDC");
  return AppendChild(*children);
}

DataContainer* CharacterData::AddMaterialToCloth(int clothIndex) {
  if (clothIndex >= GetCount(CLOTH)) return Refuse(L"CharacterData::AddMaterialToCloth: index out of range");
  if (!GetContainerElement(CLOTH, clothIndex)) {
    return Refuse(L"CharacterData::AddMaterialToCloth: could not get cloth element");
  }
  DataContainer* materials = FindClothGroup(clothIndex, MATERIAL);
  if (!materials) return Refuse(L"CharacterData::AddMaterialToCloth: could not get materials element");
  return AppendChild(*materials);
}

DataContainer* CharacterData::AddMandatoryElement(int poseIndex) {
  if (poseIndex >= GetCount(POSES)) return Refuse(L"CharacterData::AddMandatoryElement: index out of range");
  DataContainer* pose = GetContainerElement(POSES, poseIndex);
  if (!pose) return Refuse(L"CharacterData::AddMandatoryElement: could not get pose element");
  return AppendChild(*pose);
}

DataContainer* CharacterData::AddMaterialToAsset(int assetIndex) {
  if (assetIndex >= GetCount(ASSETS)) return Refuse(L"CharacterData::AddMaterialToAsset: index out of range");
  DataContainer* asset = GetContainerElement(ASSETS, assetIndex);
  if (!asset) return Refuse(L"CharacterData::AddMaterialToAsset: could not get asset element");
  return AppendChild(*asset);
}

bool CharacterData::AddAssetMatrixElement(const DataContainer* element) {
  if (!element) return false;
  Debug::AddDebugMessage(DEBUG_INFO, L"add asset matrix element...");
  static const MatrixFields fields;
  bool found = false;
  const wchar_t* poseID = element->GetData(fields.poseID, found);
  if (!found) return false;
  const wchar_t* assetID = element->GetData(fields.assetID, found);
  if (!found) return false;
  const float xpos = Coordinate(*element, fields.xpos);
  const float ypos = Coordinate(*element, fields.ypos);
  const float zpos = Coordinate(*element, fields.zpos);
  const float xrot = Coordinate(*element, fields.xrot);
  const float yrot = Coordinate(*element, fields.yrot);
  const float zrot = Coordinate(*element, fields.zrot);
  AddAssetMatrixElement(poseID, assetID, xpos, ypos, zpos, xrot, yrot, zrot);
  return true;
}

void CharacterData::AddAssetMatrixElement(const wchar_t* poseID, const wchar_t* assetID, float xpos, float ypos,
                                          float zpos, float xrot, float yrot, float zrot) {
  m_assetMatrix.push_back({OrEmpty(poseID), OrEmpty(assetID), xpos, ypos, zpos, xrot, yrot, zrot});
}

void CharacterData::ReserveAssetMatrix(int count) {
  if (count <= 0) return;
  const std::size_t needed = m_assetMatrix.size() + static_cast<std::size_t>(count);
  // With many small matrices, room for each alone would move all rows each time.
  if (needed > m_assetMatrix.capacity()) m_assetMatrix.reserve(std::max(needed, 2 * m_assetMatrix.size()));
}

bool CharacterData::AddSkinElement(const wchar_t* id, const wchar_t* name, const wchar_t* preview, const wchar_t* url) {
  return AppendRecord(m_containers[SKINS],
                      {{FIELD_ID, id}, {FIELD_NAME, name}, {FIELD_PREVIEW, preview}, {FIELD_URL, url}});
}

bool CharacterData::AddClothElement(const wchar_t* id, const wchar_t* name, const wchar_t* folder, const wchar_t* url) {
  return AppendRecord(m_containers[CLOTH],
                      {{FIELD_ID, id}, {FIELD_NAME, name}, {FIELD_FOLDER, folder}, {FIELD_URL, url}});
}

bool CharacterData::AddPoseElement(const wchar_t* id, const wchar_t* name, const wchar_t* folder, const wchar_t* url) {
  return AppendRecord(m_containers[POSES],
                      {{FIELD_ID, id}, {FIELD_NAME, name}, {FIELD_FOLDER, folder}, {FIELD_URL, url}});
}

bool CharacterData::AddCategoryElement(const wchar_t* id, const wchar_t* name, const wchar_t* selection,
                                       const wchar_t* required) {
  return AppendRecord(m_containers[CATEGORIES],
                      {{FIELD_ID, id}, {FIELD_NAME, name}, {FIELD_SELECTION, selection}, {FIELD_REQUIRED, required}});
}

bool CharacterData::AddAssetElement(const wchar_t* id, const wchar_t* name, const wchar_t* type, const wchar_t* folder,
                                    const wchar_t* category, const wchar_t* url) {
  return AppendRecord(m_containers[ASSETS], {{FIELD_ID, id},
                                             {FIELD_NAME, name},
                                             {FIELD_TYPE, type},
                                             {FIELD_FOLDER, folder},
                                             {FIELD_CATEGORY, category},
                                             {FIELD_URL, url}});
}

std::vector<ClothWithoutPreview> CharacterData::ValidateCloths() {
  std::vector<ClothWithoutPreview> dropped;
  DataContainer& cloths = m_containers[CLOTH];
  if (cloths.GetChildCount() == 0) return dropped;
  const std::wstring folder = Fields::TextOrEmpty(this, FIELD_FOLDER);
  for (int i = 0; i < cloths.GetChildCount(); ++i) {
    DataContainer* cloth = cloths.GetChild(i);
    if (!cloth) continue;
    std::wstring preview = RepositoryPaths::ClothPreview(folder, cloth);
    if (Disk::FileExists(preview)) continue;
    cloth->SetInvalid();
    dropped.push_back({i, std::move(preview)});
  }
  cloths.RemoveInvalidChildren();
  return dropped;
}

void CharacterData::SortClothsAlphabetically() {
  struct NamedCloth {
    const wchar_t* name;
    DataContainer* cloth;
  };
  DataContainer& cloths = m_containers[CLOTH];
  std::vector<NamedCloth> sorted;
  sorted.reserve(static_cast<std::size_t>(cloths.GetChildCount()));
  for (int i = 0; i < cloths.GetChildCount(); ++i) {
    sorted.push_back({Fields::OptionalText(cloths.GetChild(i), FIELD_NAME), cloths.GetChild(i)});
  }
  std::stable_sort(sorted.begin(), sorted.end(), [](const NamedCloth& left, const NamedCloth& right) {
    return CompareUtf16(left.name, right.name) < 0;
  });
  int slot = 0;
  for (const NamedCloth& named : sorted) cloths.SetChild(slot++, named.cloth);
}

// The lists

DataContainer* CharacterData::GetContainerElement(CONTAINER container, int index) const {
  return IsKind(container, CONTAINER_COUNT) ? m_containers[container].GetChild(index) : nullptr;
}

int CharacterData::GetCount(CONTAINER container) const {
  return IsKind(container, CONTAINER_COUNT) ? m_containers[container].GetChildCount() : 0;
}

const wchar_t* CharacterData::GetContainerName(CONTAINER container) const {
  if (container == SKINS) return m_skinsName.c_str();
  if (container == POSES) return m_posesName.c_str();
  return container == CLOTH ? m_clothName.c_str() : nullptr;
}

DataContainer* CharacterData::FindClothGroup(int clothIndex, CLOTH_CHILD group) const {
  const DataContainer* cloth = GetContainerElement(CLOTH, clothIndex);
  return cloth && IsKind(group, CLOTH_CHILD_COUNT) ? cloth->GetChild(group) : nullptr;
}

int CharacterData::GetClothChildCount(int clothIndex, CLOTH_CHILD group) const {
  const DataContainer* children = nullptr;
  if (clothIndex >= GetCount(CLOTH)) {
    Refuse(L"CharacterData::GetClothChildCount: index out of range");
  } else if (!GetContainerElement(CLOTH, clothIndex)) {
    Refuse(L"CharacterData::GetClothChildCount: could not get cloth element");
  } else if (!(children = FindClothGroup(clothIndex, group))) {
    Refuse(L"CharacterData::GetClothChildCount: could not get subContainerDC");
  }
  return children ? children->GetChildCount() : -1;
}

DataContainer* CharacterData::GetClothChildElement(int clothIndex, CLOTH_CHILD group, int index) const {
  if (clothIndex >= GetCount(CLOTH)) return Refuse(L"CharacterData::GetClothChildElement: clothIndex out of range");
  if (!GetContainerElement(CLOTH, clothIndex)) {
    return Refuse(L"CharacterData::GetClothChildElement: could not get cloth element");
  }
  const DataContainer* children = FindClothGroup(clothIndex, group);
  if (!children) return Refuse(L"CharacterData::GetClothChildElement: could not get subContainerDC");
  // The bound is the wrong way round and stays so: nothing depends on this operation, and its answers are agreed.
  if (children->GetChildCount() < index) return children->GetChild(index);
  return Refuse(L"CharacterData::GetClothChildElement: index out of range");
}

}  // namespace ZORVEL
