#pragma once

#include <color.h>

#include <QImage>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "host/files/Room.h"
#include "host/meshes/Mesh.h"

namespace host {

/// A picture to be laid on a surface, repeated beyond its edges. Never changes.
class Texture {
 public:
  struct Result;

  /// Reads PNG, JPEG, GIF and BMP; one of more pixels than 8192 by 8192 is refused before it is decoded. A large one is
  /// kept smaller where the scene's textures would take too much memory; see TextureRoom.
  static Result read(const std::filesystem::path& file);
  explicit Texture(const QImage& picture, std::filesystem::path file = {}, std::vector<Room::Share> shares = {});

  /// Linear light, between pixels bilinear. Any coordinates may be given.
  Color at(const TexCoord& coord) const;
  /// Where it was read from; empty for a picture made in memory.
  const std::filesystem::path& file() const { return file_; }
  /// RGB32.
  const QImage& picture() const { return picture_; }

 private:
  Color pixel(int x, int y) const;

  QImage picture_;
  std::filesystem::path file_;
  std::vector<Room::Share> shares_;
};

/// The texture, or one line that says why there is none.
struct Texture::Result {
  std::shared_ptr<const Texture> texture;
  std::string error;
  /// Whether the reason lies elsewhere than in the file.
  bool mayPass = false;
};

}  // namespace host
