#include "model/DataContainer.h"
#include "model/RepositoryFormat.h"

#include <algorithm>
#include <cwchar>

#include "core/Debug.h"
#include "model/RecordIndex.h"
#include "model/UniqueRegistry.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

std::unique_ptr<wchar_t[]> CopyText(const wchar_t* text) {
  const std::size_t size = std::wcslen(text) + 1;
  std::unique_ptr<wchar_t[]> copy(new wchar_t[size]);
  std::wmemcpy(copy.get(), text, size);
  return copy;
}

// Most names differ in the first character already.
bool SameText(const wchar_t* left, const wchar_t* right) { return *left == *right && std::wcscmp(left, right) == 0; }

}  // namespace

DataContainer::~DataContainer() {
  if (m_unique != 0) UniqueRegistry::Release(*this);
  m_fields.clear();
  if (!m_children.empty()) RecordIndex::NoteChange();
  for (DataContainer* child : m_children) delete child;
}

const DataContainer::Field* DataContainer::FindField(const wchar_t* name) const {
  for (const Field& field : m_fields) {
    if (SameText(field.name.GetText(), name)) return &field;
  }
  return nullptr;
}

const DataContainer::Field* DataContainer::FindField(FieldName name) const {
  for (const Field& field : m_fields) {
    if (field.name == name) return &field;
  }
  return nullptr;
}

void DataContainer::SetField(FieldName name, const wchar_t* text, std::unique_ptr<wchar_t[]> ownText) {
  for (Field& field : m_fields) {
    if (!(field.name == name)) continue;
    field.text = text;
    field.ownText = std::move(ownText);
    return;
  }
  m_fields.push_back({name, text, std::move(ownText)});
}

void DataContainer::SetData(const wchar_t* field, const wchar_t* data) {
  if (!field) return Debug::AddDebugMessage(DEBUG_ERROR, L"SetData: invalida argument field");
  if (!data) return Debug::AddDebugMessage(DEBUG_ERROR, L"SetData: invalida argument data");
  std::unique_ptr<wchar_t[]> copy = CopyText(data);
  const wchar_t* const text = copy.get();
  SetField(FieldName(field), text, std::move(copy));
  if (RecordIndex::IsIndexed(field)) RecordIndex::NoteChange();
}

void DataContainer::SetAllData(const FieldText* fields, int count) {
  if (!m_fields.empty() || m_texts) {
    for (int i = 0; i < count; ++i) SetData(fields[i].name.GetText(), fields[i].text);
    return;
  }
  RecordIndex::NoteChange();
  std::size_t size = 0;
  for (int i = 0; i < count; ++i) size += std::wcslen(fields[i].text) + 1;
  m_texts.reset(new wchar_t[size]);
  m_fields.reserve(static_cast<std::size_t>(count));
  wchar_t* place = m_texts.get();
  for (int i = 0; i < count; ++i) {
    SetField(fields[i].name, place, nullptr);
    const wchar_t* text = fields[i].text;
    while ((*place++ = *text++) != 0) {
    }
  }
}

const wchar_t* DataContainer::GetData(const wchar_t* field, bool& found) const {
  if (!field) {
    found = false;
    Debug::AddDebugMessage(DEBUG_ERROR, L"GetData: invalida argument field");
    return nullptr;
  }
  return TextOrComplaint(FindField(field), field, found);
}

const wchar_t* DataContainer::GetData(FieldName field, bool& found) const {
  return TextOrComplaint(FindField(field), field.GetText(), found);
}

const wchar_t* DataContainer::TextOrComplaint(const Field* field, const wchar_t* name, bool& found) {
  found = field != nullptr;
  if (found) return field->text;
  Debug::AddDebugMessage(DEBUG_WARNING, L"Missing datafield:");
  Debug::AddDebugMessage(DEBUG_WARNING, name);
  return nullptr;
}

bool DataContainer::CheckDatafield(const wchar_t* field) const {
  if (!field) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"CheckDatafield: invalida argument field");
    return false;
  }
  return FindField(field) != nullptr;
}

bool DataContainer::AddChild(DataContainer* child) {
  if (!child) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"AddChild: invalid argument child");
    return false;
  }
  m_children.push_back(child);
  RecordIndex::NoteChange();
  return true;
}

DataContainer* DataContainer::GetChild(int index) const {
  if (index < 0) return nullptr;
  if (index >= GetChildCount()) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"GetChild: index out of range");
    return nullptr;
  }
  return m_children[static_cast<std::size_t>(index)];
}

bool DataContainer::SetChild(int index, DataContainer* child) {
  if (index < 0) return false;
  if (index >= GetChildCount()) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"SetChild: index out of range");
    return false;
  }
  m_children[static_cast<std::size_t>(index)] = child;
  RecordIndex::NoteChange();
  return true;
}

int DataContainer::GetChildCount() const { return static_cast<int>(m_children.size()); }

const RecordIndex* DataContainer::GetChildIndex(IndexedField field) const {
  const auto at = [this](int place) { return m_children[static_cast<std::size_t>(place)]; };
  return RecordIndex::Of(this, GetChildCount(), at, field);
}

bool DataContainer::GetFastFlag(int flag) const {
  if (flag < 0 || flag >= FAST_FLAG_COUNT) {
    Debug::AddDebugMessage(DEBUG_WARNING, L"DataContainer::GetFastFlag : flag out of range!");
    return false;
  }
  return m_fastFlags[flag];
}

void DataContainer::SetFastFlag(int flag, bool value) {
  if (flag < 0 || flag >= FAST_FLAG_COUNT) {
    return Debug::AddDebugMessage(DEBUG_WARNING, L"DataContainer::SetFastFlag : flag out of range!");
  }
  m_fastFlags[flag] = value;
}

void DataContainer::SetType(DataType type) {
  if (m_type != TYPE_NONE) return Debug::AddDebugMessage(DEBUG_WARNING, L"SetType: type already set");
  m_type = type;
}

DataType DataContainer::GetType() const { return m_type; }

DataType DataContainer::ClassifyType(const DataContainer* record) {
  if (!record) return TYPE_NONE;
  bool found = false;
  const wchar_t* type = record->GetData(FIELD_TYPE, found);
  if (!found) return TYPE_NONE;
  if (std::wcscmp(type, VALUE_COMMON) == 0) return TYPE_COMMON;
  return std::wcscmp(type, VALUE_SPECIFIC) == 0 ? TYPE_SPECIFIC : TYPE_NONE;
}

bool DataContainer::IsValid() const { return m_valid; }

void DataContainer::SetInvalid() { m_valid = false; }

void DataContainer::RemoveInvalidChildren() {
  // A slot that holds null has no marker that could be set: it is dropped with the invalid ones.
  const auto firstDropped = std::stable_partition(m_children.begin(), m_children.end(),
                                                  [](const DataContainer* child) { return child && child->IsValid(); });
  const std::vector<DataContainer*> dropped(firstDropped, m_children.end());
  m_children.erase(firstDropped, m_children.end());
  RecordIndex::NoteChange();
  for (DataContainer* child : dropped) delete child;
}

}  // namespace ZORVEL
