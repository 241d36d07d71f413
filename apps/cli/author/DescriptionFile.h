#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "apps/cli/author/Element.h"
#include "apps/cli/author/TextEncoding.h"
#include "apps/cli/author/XmlSpans.h"

namespace cli {

/// The description of a repository as a file that an author keeps: entries are added to it and nothing else is touched.
class DescriptionFile {
 public:
  /// Look at error() before anything else.
  explicit DescriptionFile(const std::filesystem::path& repository);

  /// One line; empty when the description could be read and can be added to.
  const std::string& error() const { return error_; }
  /// The document element.
  const Element& root() const { return root_; }

  /// Writes the file with the additions, whole or not at all. Answers an empty text, or what went wrong: nothing is
  /// written that does not read as what was there and the additions.
  [[nodiscard]] std::string add(const std::vector<Addition>& additions) const;

 private:
  std::string read(const std::filesystem::path& repository);

  std::filesystem::path file_;
  std::string bytes_;
  TextEncoding encoding_;
  XmlSpan spans_;
  Element root_;
  std::string error_;
};

}  // namespace cli
