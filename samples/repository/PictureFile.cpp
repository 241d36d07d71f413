#include "samples/repository/PictureFile.h"

#include <QBuffer>

#include "samples/repository/TextFile.h"

namespace samples {

std::string writePicture(const QImage& picture, const std::vector<std::filesystem::path>& files) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (picture.isNull() || !picture.save(&buffer, "PNG")) return "cannot draw " + files.front().string();
  for (const std::filesystem::path& file : files) {
    if (const std::string error = writeTextFile(file, bytes.toStdString()); !error.empty()) return error;
  }
  return {};
}

}  // namespace samples
