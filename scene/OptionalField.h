#pragma once

namespace ZORVEL {

class DataContainer;

/// The field's text, borrowed from the record; null, without a message, for a null record and a missing field.
const wchar_t* OptionalField(const DataContainer* record, const wchar_t* field);

}  // namespace ZORVEL
