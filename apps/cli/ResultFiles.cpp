#include "apps/cli/ResultFiles.h"

#include <sys/stat.h>

#include <algorithm>

#include "host/files/NameCase.h"
#include "host/files/Paths.h"
#include "host/files/WholeFile.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

/// The same for two names of a file, as far as names tell.
using Place = std::pair<fs::path, std::wstring>;

Place placeOf(const fs::path& file) {
  std::error_code error;
  const fs::path written = fs::absolute(host::writtenFile(file), error).lexically_normal();
  return {fs::weakly_canonical(written.parent_path(), error),
          host::inCapitals(host::toWide(written.filename().string()))};
}

/// False when one of them is not there.
bool areOne(const fs::path& a, const fs::path& b) {
  struct stat first {};
  struct stat second {};
  return ::stat(a.c_str(), &first) == 0 && ::stat(b.c_str(), &second) == 0 && first.st_dev == second.st_dev &&
         first.st_ino == second.st_ino;
}

bool hasOtherNames(const fs::path& file) {
  std::error_code error;
  return fs::hard_link_count(file, error) > 1 && !error;
}

bool liesIn(const fs::path& file, const fs::path& folder) {
  std::error_code error;
  const fs::path place = fs::canonical(file, error);
  const fs::path root = error ? fs::path() : fs::canonical(folder, error);
  return !error && std::mismatch(root.begin(), root.end(), place.begin(), place.end()).first == root.end();
}

}  // namespace

void ResultFiles::add(const std::string& option, const fs::path& file) {
  std::error_code error;
  if (!file.empty() && !fs::is_other(fs::status(file, error))) results_.push_back({option, file});
}

std::string ResultFiles::whyTheSame() const {
  for (auto first = results_.begin(); first != results_.end(); ++first) {
    const auto isSame = [first](const Result& other) {
      return placeOf(first->file) == placeOf(other.file) || areOne(first->file, other.file);
    };
    const auto second = std::find_if(first + 1, results_.end(), isSame);
    if (second == results_.end()) continue;
    return first->option + " and " + second->option + " name the same file, \"" + second->file.string() +
           "\"; nothing was written.";
  }
  return {};
}

std::string ResultFiles::whyTaken(const Paths& files, const std::string& option, const fs::path& meant) const {
  for (const Result& result : results_) {
    if (result.option == option && areOne(result.file, meant)) continue;
    const auto taken =
        std::find_if(files.begin(), files.end(), [&result](const fs::path& file) { return areOne(result.file, file); });
    if (taken == files.end()) continue;
    return result.option + ": \"" + result.file.string() + "\" is \"" + taken->string() +
           "\", a file of the repository or one that was read; nothing was written.";
  }
  return {};
}

bool ResultFiles::mayReplaceIn(const fs::path& folder) const {
  return std::any_of(results_.begin(), results_.end(), [&folder](const Result& result) {
    return hasOtherNames(result.file) || liesIn(result.file, folder);
  });
}

}  // namespace cli
