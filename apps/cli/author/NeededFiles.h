#pragma once

#include <string>
#include <vector>

#include "apps/cli/author/Element.h"
#include "apps/cli/author/NewEntry.h"

namespace cli {

struct NeededFile {
  /// Windows-shaped, below the root.
  std::wstring path;
  /// For a person: what kind of file, a picture's size in pixels, the material that a library has to hold.
  std::string what;
};

/// The files that a new entry needs and that are not there yet. `description` has the entry in it already; the root
/// is a whole path.
std::vector<NeededFile> neededFiles(const std::wstring& root, const Element& description, const NewEntry& entry);

}  // namespace cli
