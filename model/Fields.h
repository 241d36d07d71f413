#pragma once

#include <string>

namespace ZORVEL {

class DataContainer;

/// Readings of single fields that several lookups share.
class Fields {
 public:
  /// Null for a null record and for a missing field, which is logged.
  static const wchar_t* Text(const DataContainer* record, const wchar_t* field);
  /// Null for a null record and for a missing field, silently.
  static const wchar_t* OptionalText(const DataContainer* record, const wchar_t* field);
  /// Empty for a null record and for a missing field, silently.
  static std::wstring TextOrEmpty(const DataContainer* record, const wchar_t* field);
  /// True when the field is present and equal to the text, which may be null; silent.
  static bool Equals(const DataContainer* record, const wchar_t* field, const wchar_t* text);
};

}  // namespace ZORVEL
