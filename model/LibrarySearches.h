#pragma once

#include <functional>
#include <string>
#include <vector>

#include "model/MaterialResult.h"

namespace ZORVEL {

/// The search for a material through the libraries of a repository, whoever looks into them.
class LibrarySearches {
 public:
  LibrarySearches() = delete;

  using Look = std::function<LibraryState(const std::wstring& file, const wchar_t* name)>;

  /// Looks into one library after the other and ends with the first that holds the material. A null name is searched
  /// for nowhere.
  static MaterialResult Run(const wchar_t* name, const std::vector<std::wstring>& files, const Look& look);
};

}  // namespace ZORVEL
