#pragma once

namespace ZORVEL {

/// The way in for whoever wants a repository loaded.
class Parser2 {
 public:
  /// Adds the repository below the root folder `path` to the store, which it never empties. False when the folder has
  /// no readable description; the store is untouched then.
  static bool ParseRepository(const wchar_t* path);
};

}  // namespace ZORVEL
