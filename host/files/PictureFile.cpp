#include "host/files/PictureFile.h"

#include <QBuffer>
#include <QImage>

#include "host/files/WholeFile.h"

namespace host {

QByteArray pngBytes(const QImage& picture) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  return picture.save(&buffer, "PNG") ? bytes : QByteArray();
}

std::string writePicture(const QImage& picture, const std::filesystem::path& file) {
  const QByteArray bytes = pngBytes(picture);
  if (bytes.isEmpty()) return "the picture cannot be written as PNG";
  return writeWholeFile(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace host
