#pragma once

#include <QSize>
#include <cstddef>

#include "host/files/Room.h"

namespace host {

/// How much the textures of a scene may take together, so that small files cannot use up all memory or time. One that
/// is large is kept smaller than its file has it; ten of 8192 by 8192 pixels find room.
class TextureRoom {
 public:
  static TextureRoom& instance();

  /// The picture is kept smaller by this factor, in both directions; 1 for as it is, which nearly all are.
  int shrinkingOf(const QSize& size) const;
  /// Whether so many bytes may be used for as long as it takes to decode a picture.
  bool mayUse(std::size_t bytes) const;

  /// For what is kept, in bytes.
  Room& kept() { return kept_; }
  /// For what was decoded for them, in pixels.
  Room& decoded() { return decoded_; }

 private:
  TextureRoom();

  Room kept_;
  Room decoded_;
};

}  // namespace host
