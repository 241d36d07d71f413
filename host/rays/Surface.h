#pragma once

#include <color.h>

#include <memory>

namespace host {

class Texture;

/// How a part of a mesh looks.
struct Surface {
  /// Linear light; the texture multiplies it.
  Color color = Color(0.55F, 0.53F, 0.50F);
  /// Null for a plain colour.
  std::shared_ptr<const Texture> texture;
  /// From 0, polished, to 1, dull.
  float roughness = 0.7F;
  /// From 0, not there, to 1, solid.
  float opacity = 1.0F;
  /// From 0 to 1: how far light creeps around the surface.
  float softness = 0.0F;
};

}  // namespace host
