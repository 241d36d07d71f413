#include "host/files/PictureFile.h"

#include <QBuffer>
#include <QImage>

#include "host/files/WholeFile.h"

namespace host {

std::string writePicture(const QImage& picture, const std::filesystem::path& file) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!picture.save(&buffer, "PNG")) return "the picture cannot be written as PNG";
  return writeWholeFile(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace host
