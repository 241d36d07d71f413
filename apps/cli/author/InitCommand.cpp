#include "apps/cli/author/InitCommand.h"

#include <iostream>
#include <vector>

#include "apps/support/ExitStatus.h"
#include "host/files/PrintableText.h"
#include "host/files/TemporaryFolder.h"
#include "host/files/Uninterrupted.h"
#include "samples/repository/StarterRepository.h"

namespace cli {

using namespace apps;

namespace fs = std::filesystem;

namespace {

int refuse(const std::string& text, ExitStatus status) {
  host::printLine(std::cerr, "zorvel init: " + text);
  return status;
}

/// Why nothing can be written there; empty when it can.
std::string whyRefused(const fs::path& folder) {
  if (folder.empty()) return "DIR needs a name.";
  std::error_code error;
  const fs::file_status status = fs::status(folder, error);
  if (!fs::exists(status)) return {};
  if (!fs::is_directory(status)) return folder.string() + " is not a folder.";
  const bool empty = fs::is_empty(folder, error);
  if (error) return folder.string() + " cannot be read: " + error.message() + '.';
  return empty ? std::string() : folder.string() + " is not empty; nothing was written.";
}

/// What was made in a folder, taken away again unless it is to be kept.
class Made {
 public:
  ~Made() {
    std::error_code ignored;
    for (const fs::path& path : paths_) fs::remove_all(path, ignored);
  }
  void add(const fs::path& path) { paths_.push_back(path); }
  void keep() { paths_.clear(); }

 private:
  std::vector<fs::path> paths_;
};

/// The folder, with those above it that are missing; of what is made, the uppermost is noted.
std::string makeFolder(const fs::path& folder, Made& made) {
  fs::path uppermost;
  std::error_code error;
  for (fs::path path = fs::absolute(folder, error); !path.empty() && !fs::exists(path, error);
       path = path.parent_path())
    uppermost = path;
  if (!uppermost.empty()) made.add(uppermost);
  fs::create_directories(folder, error);
  return error ? "cannot make the folder " + folder.string() + ": " + error.message() : std::string();
}

/// With the folders first, so that there is no description before everything that it names.
std::string copyInto(const fs::path& from, const fs::path& to, Made& made) {
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(from)) {
    files.insert(entry.is_directory() ? files.begin() : files.end(), entry.path());
  }
  for (const fs::path& file : files) {
    const fs::path target = to / file.filename();
    made.add(target);
    std::error_code error;
    fs::copy(file, target, fs::copy_options::recursive, error);
    if (error) return "cannot write " + target.string() + ": " + error.message();
  }
  return {};
}

/// All of it or nothing.
std::string putInto(const fs::path& from, const fs::path& folder) {
  const host::Uninterrupted whole;
  Made made;
  std::string error = makeFolder(folder, made);
  if (error.empty()) error = copyInto(from, folder, made);
  if (error.empty()) made.keep();
  return error;
}

}  // namespace

int runInit(const fs::path& folder) {
  if (const std::string refusal = whyRefused(folder); !refusal.empty()) return refuse(refusal, EXIT_USAGE);
  const host::TemporaryFolder ready;
  if (ready.path().empty()) return refuse("No temporary folder can be made.", EXIT_INTERNAL);
  std::string error = samples::writeStarterRepository(ready.path());
  if (error.empty()) error = putInto(ready.path(), folder);
  if (!error.empty()) return refuse(error, EXIT_INTERNAL);
  host::printLine(std::cout, "Wrote " + folder.string());
  host::printLine(std::cout, "zorvel.xml says what is in it and where the rest belongs.");
  return EXIT_CLEAN;
}

}  // namespace cli
