#pragma once

#include <string>

namespace ZORVEL {

/// The dialog in which the user chooses the repository's description.
class RepositoryDialog {
 public:
  RepositoryDialog() = delete;

  /// Drive and folder of the chosen file, ending in a backslash; empty when the user chose none.
  static std::wstring AskForFolder();
};

}  // namespace ZORVEL
