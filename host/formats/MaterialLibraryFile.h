#pragma once

#include <imtl.h>

#include <string>
#include <string_view>
#include <vector>

#include "host/services/Ref.h"

namespace host {

/// What a material library file holds. Every reading makes new materials.
struct MaterialLibraryContent {
  std::vector<Ref<Mtl>> materials;
  /// One line that says why nothing could be read; empty on success.
  std::string error;
  /// No such file, which a search through several libraries takes for granted.
  bool missing = false;
};

/// Reads the embedded host's open form of a material library: JSON with materials of any class, their parameter blocks,
/// sub-materials, sub-texture slots and bitmaps. `path` is Windows-shaped.
MaterialLibraryContent readMaterialLibrary(const std::wstring& path);
/// The same of a text that was read already.
MaterialLibraryContent readMaterialLibraryText(std::string_view text);

}  // namespace host
