#include "host/actions/IconFolders.h"

#include "host/files/Paths.h"

namespace host {

QImage IconFolders::strip(const std::wstring& file) const {
  for (const std::filesystem::path& folder : folders_) {
    QImage image(QString::fromStdString(resolvePath(toWide((folder / toUtf8(file)).string())).string()));
    if (!image.isNull()) return image;
  }
  return {};
}

QImage IconFolders::picture(const MaxIcon* icon, int pixels) const {
  const auto* named = dynamic_cast<const MaxBmpFileIcon*>(icon);
  if (named == nullptr) return {};
  const std::wstring prefix = std::wstring(named->prefix().data()) + (pixels <= 16 ? L"_16" : L"_24");
  const QImage icons = strip(prefix + L"i.bmp");
  const int side = icons.height();
  if (icons.isNull() || named->index() < 1 || named->index() > icons.width() / side) return {};
  const QRect cell((named->index() - 1) * side, 0, side, side);
  QImage result = icons.copy(cell).convertToFormat(QImage::Format_ARGB32);
  const QImage mask = strip(prefix + L"a.bmp");
  if (mask.size() == icons.size()) result.setAlphaChannel(mask.copy(cell).convertToFormat(QImage::Format_Grayscale8));
  return result;
}

}  // namespace host
