#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace reference {

struct Document {
  std::filesystem::path file;
  std::string text;
};

/// What the documents below a folder like docs/ ought to hold. Of repository-format.md only what stands between its
/// marks is written; the rest is as it is there.
std::vector<Document> documents(const std::filesystem::path& folder);

/// Empty for a file that cannot be read.
std::string contentOf(const std::filesystem::path& file);

}  // namespace reference
