#pragma once

#include <string>
#include <vector>

class Mtl;

namespace ZORVEL {

/// Points every bitmap inside a material at one folder, and brings the one material parameter that is a length into
/// scene units. Call it once for a material fresh from its library: the length is multiplied each time.
class TextureRedirection {
 public:
  TextureRedirection() = delete;

  /// The files, each once and in order, that the bitmaps would name. Changes nothing and asks neither the disk nor
  /// the host. The folder ends in a separator.
  static std::vector<std::wstring> Targets(Mtl& material, const std::wstring& mapsFolder);
  /// The folder ends in a separator. Answers the files that the bitmaps now name and that are not there, each once.
  static std::vector<std::wstring> Redirect(Mtl& material, const std::wstring& mapsFolder);
};

}  // namespace ZORVEL
