#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace cli {

/// The files that a command is to write, to be asked before it writes any of them. Devices and pipes are none of them.
class ResultFiles {
 public:
  using Paths = std::vector<std::filesystem::path>;

  /// An empty path is none.
  void add(const std::string& option, const std::filesystem::path& file);

  /// Why two of them are one file, by whatever names, also where the file system ignores letter case; empty when none
  /// are. Nothing need be there yet.
  std::string whyTheSame() const;

  /// Why one of them must not take the place of what the command has read, or of what belongs to the repository; empty
  /// when they may. `meant` is a file that the option of that name replaces on purpose.
  std::string whyTaken(const Paths& files, const std::string& option = {},
                       const std::filesystem::path& meant = {}) const;

  /// Whether one replaces a file that may lie in the folder, also by another name.
  bool mayReplaceIn(const std::filesystem::path& folder) const;

 private:
  struct Result {
    std::string option;
    std::filesystem::path file;
  };

  std::vector<Result> results_;
};

}  // namespace cli
