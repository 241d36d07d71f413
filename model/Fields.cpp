#include "model/Fields.h"

#include <cwchar>

#include "model/DataContainer.h"

namespace ZORVEL {

const wchar_t* Fields::Text(const DataContainer* record, const wchar_t* field) {
  bool found = false;
  return record ? record->GetData(field, found) : nullptr;
}

const wchar_t* Fields::OptionalText(const DataContainer* record, const wchar_t* field) {
  return record && record->CheckDatafield(field) ? Text(record, field) : nullptr;
}

std::wstring Fields::TextOrEmpty(const DataContainer* record, const wchar_t* field) {
  const wchar_t* text = OptionalText(record, field);
  return text ? text : std::wstring();
}

bool Fields::Equals(const DataContainer* record, const wchar_t* field, const wchar_t* text) {
  const wchar_t* value = OptionalText(record, field);
  return value && text && std::wcscmp(value, text) == 0;
}

}  // namespace ZORVEL
