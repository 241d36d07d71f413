#pragma once

#include "host/files/SharedFiles.h"
#include "host/view/Texture.h"

namespace host {

/// Textures decoded when first needed, shared by path, size and time of the file. A texture dies with its last user.
class TextureCache {
 public:
  static TextureCache& instance();

  /// `file` is resolved already.
  Texture::Reading get(const std::filesystem::path& file);

 private:
  SharedFiles<Texture> files_;
};

}  // namespace host
