#include "model/RecordIndex.h"

#include <algorithm>
#include <cwchar>
#include <limits>
#include <map>
#include <utility>

#include "model/Fields.h"
#include "model/RepositoryFormat.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

const int SHORTEST_LIST = 16;
// Of records without the field, each time that the list is asked: who has more has no ids at all, and asks as often.
const int MOST_TOLD = 200;

/// By IndexedField.
const wchar_t* const INDEXED_FIELDS[] = {FIELD_ID, FIELD_GLOBAL_ID, FIELD_CATEGORY, FIELD_ASSET_ID};

struct TextOrder {
  bool operator()(const RecordIndex::Entry& left, const RecordIndex::Entry& right) const {
    return std::wcscmp(left.text, right.text) < 0;
  }
};

}  // namespace

std::uint64_t RecordIndex::m_changes = 0;

const RecordIndex* RecordIndex::Of(const void* list, int count, const At& at, IndexedField field) {
  static std::map<std::pair<const void*, IndexedField>, RecordIndex> made;
  static std::uint64_t madeAt = 0;
  if (count < SHORTEST_LIST) return nullptr;
  if (madeAt != m_changes) made.clear();
  madeAt = m_changes;
  const auto key = std::make_pair(list, field);
  const auto found = made.find(key);
  return found != made.end() ? &found->second : &made.emplace(key, RecordIndex(count, at, field)).first->second;
}

RecordIndex::RecordIndex(int count, const At& at, IndexedField field)
    : m_field(INDEXED_FIELDS[static_cast<int>(field)]) {
  for (int place = 0; place < count; ++place) {
    const DataContainer* record = at(place);
    const wchar_t* text = Fields::OptionalText(record, m_field);
    if (record) (text ? m_entries : m_lacking).push_back({text, place, record});
  }
  std::stable_sort(m_entries.begin(), m_entries.end(), TextOrder());
}

RecordIndex::Entries RecordIndex::Find(const wchar_t* text) const {
  const auto found = std::equal_range(m_entries.begin(), m_entries.end(), Entry{text, 0, nullptr}, TextOrder());
  const Entry* const first = m_entries.data();
  return {first + (found.first - m_entries.begin()), first + (found.second - m_entries.begin())};
}

int RecordIndex::FindFirst(const wchar_t* text) const {
  const Entries found = Find(text);
  const bool isFound = found.first != found.last;
  TellLacking(isFound ? found.first->place : std::numeric_limits<int>::max());
  return isFound ? found.first->place : -1;
}

void RecordIndex::TellLacking(int place) const {
  int told = 0;
  for (const Entry& lacking : m_lacking) {
    if (lacking.place > place || ++told > MOST_TOLD) break;
    Fields::Text(lacking.record, m_field);
  }
}

bool RecordIndex::IsIndexed(const wchar_t* field) {
  return std::any_of(std::begin(INDEXED_FIELDS), std::end(INDEXED_FIELDS),
                     [field](const wchar_t* indexed) { return std::wcscmp(indexed, field) == 0; });
}

}  // namespace ZORVEL
