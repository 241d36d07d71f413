#include "host/view/TextureCache.h"

namespace host {

TextureCache& sharedTextures() {
  static TextureCache cache(Texture::read);
  return cache;
}

}  // namespace host
