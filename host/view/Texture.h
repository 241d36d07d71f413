#pragma once

#include <color.h>

#include <QImage>
#include <filesystem>
#include <memory>
#include <string>

#include "host/meshes/Mesh.h"

namespace host {

/// A picture to be laid on a surface, repeated beyond its edges. Never changes.
class Texture {
 public:
  struct Result;

  /// Reads any picture format that Qt knows; one of more than 64 megapixels is refused before it is decoded.
  static Result read(const std::filesystem::path& file);
  explicit Texture(const QImage& picture, std::filesystem::path file = {});

  /// Linear light, between pixels bilinear. Any coordinates may be given.
  Color at(const TexCoord& coord) const;
  /// Where it was read from; empty for a picture made in memory.
  const std::filesystem::path& file() const { return file_; }

 private:
  Color pixel(int x, int y) const;

  QImage picture_;
  std::filesystem::path file_;
};

/// The texture, or one line that says why there is none.
struct Texture::Result {
  std::shared_ptr<const Texture> texture;
  std::string error;
};

}  // namespace host
