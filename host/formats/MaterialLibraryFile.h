#pragma once

#include <imtl.h>

#include <string>
#include <string_view>
#include <vector>

#include "host/services/Ref.h"

namespace host {

/// In bytes.
constexpr std::size_t LARGEST_LIBRARY = std::size_t{64} << 20U;

/// What a material library file holds. Every reading makes new materials.
struct MaterialLibraryContent {
  std::vector<Ref<Mtl>> materials;
  /// One line that says why nothing could be read; empty on success.
  std::string error;
  /// In bytes, of a file that was read.
  std::size_t size = 0;
  /// No such file, which a search through several libraries takes for granted.
  bool missing = false;
};

/// Reads the embedded host's open form of a material library: JSON with materials of any class, their parameter blocks,
/// sub-materials, sub-texture slots and bitmaps. `path` is Windows-shaped. One of more than `most` bytes is not read.
MaterialLibraryContent readMaterialLibrary(const std::wstring& path, std::size_t most = LARGEST_LIBRARY);
/// The same of a text that was read already.
MaterialLibraryContent readMaterialLibraryText(std::string_view text);

}  // namespace host
