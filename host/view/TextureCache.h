#pragma once

#include "host/files/FileCache.h"
#include "host/view/Texture.h"

namespace host {

/// Decoded textures by path, size and time of their files. A texture dies with its last user.
using TextureCache = FileCache<Texture, Texture::Result>;

/// The one that all pictures share.
TextureCache& sharedTextures();

}  // namespace host
