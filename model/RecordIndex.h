#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace ZORVEL {

class DataContainer;

enum class IndexedField { Id, GlobalId, Category, AssetId };

/// Finds the records of a long list by the text of a field. It answers as going through the list would: it is made when
/// it is first asked for, and anew after any list of records or any such field has changed.
class RecordIndex {
 public:
  struct Entry {
    const wchar_t* text;  // borrowed from the record
    int place;            // in the list
    const DataContainer* record;
  };
  /// In the order of the list.
  struct Entries {
    const Entry* first;
    const Entry* last;
    // The names that a loop over them asks for.
    const Entry* begin() const { return first; }  // NOLINT(readability-identifier-naming)
    const Entry* end() const { return last; }     // NOLINT(readability-identifier-naming)
  };
  /// The record at a place of the list, which may be null.
  using At = std::function<const DataContainer*(int place)>;

  /// Null for a short list: to go through that costs less. The address tells one list from another.
  static const RecordIndex* Of(const void* list, int count, const At& at, IndexedField field);

  Entries Find(const wchar_t* text) const;
  /// The place of the first, -1 when there is none. As going through the list would, it logs that the field is missing
  /// for every record before that one which lacks it; of very many for the first only.
  int FindFirst(const wchar_t* text) const;

  static bool IsIndexed(const wchar_t* field);
  /// As going through the list would, up to the place, logs that the field is missing.
  void TellLacking(int place) const;
  /// A list of records, or such a field of a record, has changed.
  static void NoteChange() { ++m_changes; }
  /// How often; whoever keeps what was found in a list asks this.
  static std::uint64_t GetChanges() { return m_changes; }

 private:
  RecordIndex(int count, const At& at, IndexedField field);

  static std::uint64_t m_changes;

  const wchar_t* m_field;
  std::vector<Entry> m_entries;  // by text, then by place
  std::vector<Entry> m_lacking;  // records without the field, by place
};

}  // namespace ZORVEL
