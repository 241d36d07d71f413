#pragma once

#include <string>
#include <vector>

class Mtl;

namespace ZORVEL {

struct RedirectedTexture {
  std::wstring from;
  std::wstring to;
};

struct RedirectionOutlook {
  /// In order and each once, though a file may be the aim of several.
  std::vector<RedirectedTexture> textures;
  /// The length has a type that cannot be scaled.
  bool hasOddLength = false;
  /// A material that is used several times within the one has its length scaled as often.
  bool isScaledAgain = false;
};

/// Points every bitmap inside a material at one folder, and brings the one material parameter that is a length into
/// scene units. Call it once for a material fresh from its library: the length is multiplied each time.
class TextureRedirection {
 public:
  TextureRedirection() = delete;

  /// What Redirect would do. Changes nothing and asks neither the disk nor the host. The folder ends in a separator.
  static RedirectionOutlook LookAhead(Mtl& material, const std::wstring& mapsFolder);
  /// The folder ends in a separator. Answers the files that the bitmaps now name and that are not there, each once.
  static std::vector<std::wstring> Redirect(Mtl& material, const std::wstring& mapsFolder);
};

}  // namespace ZORVEL
