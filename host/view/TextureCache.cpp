#include "host/view/TextureCache.h"

namespace host {

TextureCache& TextureCache::instance() {
  static TextureCache cache;
  return cache;
}

Texture::Reading TextureCache::get(const std::filesystem::path& file) {
  const auto reading = files_.get(file, [](const std::filesystem::path& path) -> SharedFiles<Texture>::Reading {
    Texture::Reading fresh = Texture::read(path);
    return {std::move(fresh.texture), std::move(fresh.error)};
  });
  return {reading.value, reading.error};
}

}  // namespace host
