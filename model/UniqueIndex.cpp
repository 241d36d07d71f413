#include "model/UniqueIndex.h"

#include <algorithm>
#include <map>

#include "model/Data2.h"
#include "model/DataContainer.h"
#include "model/RecordIndex.h"

namespace ZORVEL {

namespace {

const int SHORTEST_LIST = 16;

bool IsBefore(const UniqueIndex::Entry& left, const UniqueIndex::Entry& right) { return left.unique < right.unique; }

}  // namespace

const UniqueIndex* UniqueIndex::Of(const void* list, int count, const At& at) {
  static std::map<const void*, UniqueIndex> made;
  static std::uint64_t madeAt = 0;
  if (count < SHORTEST_LIST) return nullptr;
  if (madeAt != RecordIndex::GetChanges()) made.clear();
  madeAt = RecordIndex::GetChanges();
  const auto found = made.find(list);
  if (found != made.end()) return &found->second;
  UniqueIndex& index = made[list];
  for (int place = 0; place < count; ++place) index.Add(at(place), place);
  std::sort(index.m_entries.begin(), index.m_entries.end(), &IsBefore);
  return &index;
}

void UniqueIndex::Add(DataContainer* record, int place) {
  if (!record) return;
  m_entries.push_back({Data2::GetUnique(record), place, nullptr});
  for (int i = 0; i < record->GetChildCount(); ++i) {
    DataContainer* const child = record->GetChild(i);
    if (child) m_entries.push_back({Data2::GetUnique(child), place, child});
  }
}

const UniqueIndex::Entry* UniqueIndex::Find(int unique) const {
  const auto found = std::lower_bound(m_entries.begin(), m_entries.end(), Entry{unique, 0, nullptr}, &IsBefore);
  return found != m_entries.end() && found->unique == unique ? &*found : nullptr;
}

}  // namespace ZORVEL
