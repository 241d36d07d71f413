#pragma once

#include <box3.h>

#include <memory>

namespace host {

struct Mesh;

/// What an object of the scene offers to those who measure, hit and draw it.
class Geometry {
 public:
  virtual ~Geometry() = default;
  /// In object space; empty for an object that takes no room.
  virtual Box3 bounds() const = 0;
  /// Null for an object that is not drawn as a surface.
  virtual std::shared_ptr<const Mesh> mesh() const { return nullptr; }
};

}  // namespace host
