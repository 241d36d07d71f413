#pragma once

class Mtl;
class Texmap;

namespace ZORVEL {

/// Points every bitmap inside a material at one folder, and brings the one material parameter that is a length into
/// scene units. Call it once for a material fresh from its library: the length is multiplied each time.
class TextureRedirection {
 public:
  TextureRedirection() = delete;

  /// The folder ends in a separator.
  static void RedirectMaterial(Mtl* material, const wchar_t* mapsFolder);
  static void RedirectMap(Texmap* map, const wchar_t* mapsFolder);
};

}  // namespace ZORVEL
