#include "model/Data2.h"

#include <algorithm>
#include <cwchar>
#include <memory>
#include <new>
#include <vector>

#include "core/Debug.h"
#include "model/CharacterData.h"
#include "model/Fields.h"
#include "model/RecordIndex.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryValidation.h"
#include "model/UniqueIndex.h"
#include "model/UniqueRegistry.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

struct RepositoryStore {
  std::vector<std::unique_ptr<CharacterData>> characters;
  std::vector<std::unique_ptr<DataContainer>> globalAssets;
  bool validated = false;
};

RepositoryStore& TheStore() {
  static RepositoryStore instance;
  return instance;
}

template <class Record>
Record* FindRecord(const std::vector<std::unique_ptr<Record>>& records, int index, const wchar_t* message) {
  if (static_cast<std::size_t>(index) < records.size()) return records[static_cast<std::size_t>(index)].get();
  Debug::AddDebugMessage(DEBUG_ERROR, message);
  return nullptr;
}

/// Both lookups by id share the text of the message.
template <class Record>
Record* FindRecord(const std::vector<std::unique_ptr<Record>>& records, const wchar_t* id) {
  if (!id) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"Data2::GetCharacter: invalid argument");
    return nullptr;
  }
  const auto at = [&records](int place) { return records[static_cast<std::size_t>(place)].get(); };
  if (const RecordIndex* index = RecordIndex::Of(&records, static_cast<int>(records.size()), at, IndexedField::Id)) {
    const int place = index->FindFirst(id);
    return place < 0 ? nullptr : at(place);
  }
  for (const auto& record : records) {
    const wchar_t* recordId = Fields::Text(record.get(), FIELD_ID);
    if (recordId && std::wcscmp(recordId, id) == 0) return record.get();
  }
  return nullptr;
}

const UniqueIndex* IndexOf(const std::vector<std::unique_ptr<DataContainer>>& records) {
  const auto at = [&records](int place) { return records[static_cast<std::size_t>(place)].get(); };
  return UniqueIndex::Of(&records, static_cast<int>(records.size()), at);
}

template <class Record>
int AddRecord(std::vector<std::unique_ptr<Record>>& records, const wchar_t* message) {
  std::unique_ptr<Record> record(new (std::nothrow) Record);
  if (!record) {
    Debug::AddDebugMessage(DEBUG_ERROR, message);
    return -1;
  }
  records.push_back(std::move(record));
  RecordIndex::NoteChange();
  return static_cast<int>(records.size()) - 1;
}

}  // namespace

int Data2::AddCharacter() { return AddRecord(TheStore().characters, L"Could not get memory for CharacterData!"); }

int Data2::AddCharacter(const wchar_t* name, const wchar_t* id, const wchar_t* url) {
  const int index = AddCharacter();
  if (index < 0) return index;
  CharacterData* character = GetCharacter(index);
  character->SetData(FIELD_ID, id);
  character->SetData(FIELD_NAME, name);
  character->SetData(FIELD_URL, url);
  RegisterID(character);
  return index;
}

CharacterData* Data2::GetCharacter(int index) {
  return FindRecord(TheStore().characters, index, L"Data2::GetCharacter: index out of range");
}

CharacterData* Data2::GetCharacter(const wchar_t* id) { return FindRecord(TheStore().characters, id); }

int Data2::GetCharacterCount() { return static_cast<int>(TheStore().characters.size()); }

int Data2::AddGlobalAsset() { return AddRecord(TheStore().globalAssets, L"Could not get memory for GlobalAsset!"); }

DataContainer* Data2::GetGlobalAsset(int index) {
  return FindRecord(TheStore().globalAssets, index, L"Data2::GetGlobalAsset: index out of range");
}

int Data2::GetGlobalAssetCount() { return static_cast<int>(TheStore().globalAssets.size()); }

DataContainer* Data2::AddMaterialToGlobalaAsset(DataContainer* globalAsset) {
  if (!globalAsset) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"Data2::AddMaterialToGlobalaAsset: could not get asset element");
    return nullptr;
  }
  auto* material = new (std::nothrow) DataContainer;
  if (material) globalAsset->AddChild(material);
  return material;
}

bool Data2::CheckAssetGlobal(const DataContainer* asset) { return Fields::Equals(asset, FIELD_TYPE, VALUE_GLOBAL); }

DataContainer* Data2::GetGlobalAssetForAsset(const DataContainer* asset) {
  const wchar_t* globalId = Fields::OptionalText(asset, FIELD_GLOBAL_ID);
  return globalId ? FindGlobalAssetById(globalId) : nullptr;
}

DataContainer* Data2::FindGlobalAssetById(const wchar_t* id) { return FindRecord(TheStore().globalAssets, id); }

bool Data2::GetGlobalAssetAndMaterial(int unique, DataContainer*& globalAsset, DataContainer*& material) {
  const auto& records = TheStore().globalAssets;
  if (const UniqueIndex* index = IndexOf(records)) {
    const UniqueIndex::Entry* const entry = index->Find(unique);
    if (!entry) return false;
    globalAsset = records[static_cast<std::size_t>(entry->place)].get();
    material = entry->child;
    return true;
  }
  for (const auto& record : records) {
    if (FindRecordOrChild(unique, *record, material)) {
      globalAsset = record.get();
      return true;
    }
  }
  return false;
}

int Data2::GetUnique(const DataContainer* element) {
  if (element) return UniqueRegistry::GetUnique(*element);
  Debug::AddDebugMessage(DEBUG_ERROR, L"Data2::GetUnique: invalid argument");
  return 0;
}

void Data2::RegisterID(const DataContainer* element) {
  if (!element) return Debug::AddDebugMessage(DEBUG_ERROR, L"Data2::RegisterID: invalid argument");
  UniqueRegistry::GetUnique(*element);
}

int Data2::NewUnique() { return UniqueRegistry::NewUnique(); }

const wchar_t* Data2::GetIdForUnique(int unique) { return Fields::Text(UniqueRegistry::Find(unique), FIELD_ID); }

bool Data2::IsGlobalAssetUnique(int unique) {
  const DataContainer* element = UniqueRegistry::Find(unique);
  const auto& records = TheStore().globalAssets;
  if (const UniqueIndex* index = element ? IndexOf(records) : nullptr) {
    const UniqueIndex::Entry* const entry = index->Find(unique);
    return entry && !entry->child;
  }
  return element &&
         std::any_of(records.begin(), records.end(), [element](const auto& record) { return record.get() == element; });
}

bool Data2::FindRecordOrChild(int unique, const DataContainer& record, DataContainer*& material) {
  if (GetUnique(&record) == unique) {
    material = nullptr;
    return true;
  }
  for (int i = 0; i < record.GetChildCount(); ++i) {
    DataContainer* child = record.GetChild(i);
    if (child && GetUnique(child) == unique) {
      material = child;
      return true;
    }
  }
  return false;
}

void Data2::Clear() {
  RepositoryStore& store = TheStore();
  // The ids go first, so that destroying the records has nothing to release.
  UniqueRegistry::Clear();
  store.characters.clear();
  store.globalAssets.clear();
  RecordIndex::NoteChange();
  store.validated = false;
}

void Data2::SetValidated(bool validated) {
  if (validated) ValidateAll();
  TheStore().validated = validated;
}

bool Data2::IsValidated() { return TheStore().validated; }

void Data2::ValidateAll() {
  Debug::AddDebugMessage(DEBUG_INFO, L"validate data...");
  RepositoryValidation::ValidateGlobalAssets();
  for (const auto& character : TheStore().characters) RepositoryValidation::ValidateCharacter(character.get());
}

}  // namespace ZORVEL
