#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace ZORVEL {

class DataContainer;

/// Finds records of a long list, and their children, by unique id. It is made when it is first asked for, and anew
/// after any list of records has changed; then records that have no id yet get one, in the order of the list.
class UniqueIndex {
 public:
  struct Entry {
    int unique;
    int place;             // in the list
    DataContainer* child;  // null for the record itself
  };
  using At = std::function<DataContainer*(int place)>;

  /// Null for a short list: to go through that costs less. The address tells one list from another.
  static const UniqueIndex* Of(const void* list, int count, const At& at);

  /// Null when the id is none of theirs.
  const Entry* Find(int unique) const;

 private:
  void Add(DataContainer* record, int place);

  std::vector<Entry> m_entries;  // by id
};

}  // namespace ZORVEL
