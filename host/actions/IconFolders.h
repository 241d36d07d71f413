#pragma once

#include <maxicon.h>

#include <QImage>
#include <filesystem>
#include <vector>

namespace host {

/// Finds the pictures of icons: strips of square icons side by side, named after the icon's prefix, as <prefix>_24i.bmp
/// and <prefix>_16i.bmp, each with a mask of the same shape, _24a.bmp and _16a.bmp, that is white where the icon is
/// solid.
class IconFolders {
 public:
  /// Searched in that order; without regard to the case of names.
  void set(std::vector<std::filesystem::path> folders) { folders_ = std::move(folders); }

  /// For a button of that many pixels: the strip of 16 up to 16 pixels, else that of 24, at the strip's own size. The
  /// background is transparent with a mask. A null image for null, an icon of another kind, a missing or unreadable
  /// strip, and an index outside it.
  QImage picture(const MaxIcon* icon, int pixels) const;

 private:
  QImage strip(const std::wstring& file) const;

  std::vector<std::filesystem::path> folders_;
};

}  // namespace host
