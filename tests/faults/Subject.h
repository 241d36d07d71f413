#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "tests/faults/Fault.h"
#include "tests/support/TemporaryFolder.h"

namespace support {

/// How one run ended.
struct Ending {
  /// Of the exit; -1 when a signal ended it.
  int status = -1;
  int signal = 0;
  bool isInTime = true;
  std::string out;
  std::string err;
  /// What is in the folder of results, by name.
  std::map<std::string, std::string> results;
  /// What is where nothing should be: temporary files, and files of the run's own home.
  std::vector<std::string> leftOver;
  faults::Tally tally = {};
};

/// A program that is run again and again in a place of its own: with a home, a folder for temporary files and one for
/// results, which are emptied for each run.
class Subject {
 public:
  /// `folder` is for nobody else.
  explicit Subject(std::filesystem::path folder);

  /// In the arguments "@" stands for the folder of results. Who wants to watch gets the lines of the library.
  Ending run(const std::vector<std::string>& command, const Fault& fault, std::vector<std::string>* watched = nullptr);

  /// Where the program is started.
  const std::filesystem::path& folder() const { return folder_; }
  std::filesystem::path results() const { return folder_ / "results"; }
  std::filesystem::path temporary() const { return folder_ / "temporary"; }

 private:
  void clear() const;
  /// What a run says must not depend on where it is made.
  std::string withoutPlace(std::string text) const;
  std::vector<std::string> environment(const Fault& fault, bool isWatched) const;

  std::filesystem::path folder_;
};

}  // namespace support
