#include "scene/OptionalField.h"

#include "model/DataContainer.h"

namespace ZORVEL {

const wchar_t* OptionalField(const DataContainer* record, const wchar_t* field) {
  if (record == nullptr || !record->CheckDatafield(field)) return nullptr;
  bool found = false;
  return record->GetData(field, found);
}

}  // namespace ZORVEL
