#pragma once

namespace ZORVEL {

class DataContainer;

/// Which record each unique id names. Ids go up in steps of 10 and are never handed out twice until Clear. A record
/// keeps its own id, so that asking again costs nothing; the registry keeps the way back, one pointer an id.
class UniqueRegistry {
 public:
  /// The next id, naming nothing.
  static int NewUnique();
  /// The record's id, a new one when it has none or its id is from before the last Clear.
  static int GetUnique(const DataContainer& element);
  /// Null for an id that names nothing.
  static const DataContainer* Find(int unique);
  /// Called by a record that is being destroyed.
  static void Release(const DataContainer& element);
  /// Forgets all ids and starts anew with 1010.
  static void Clear();
};

}  // namespace ZORVEL
