#include "tests/support/PictureFiles.h"

#include <QImage>
#include <stdexcept>

#include "host/files/PictureFile.h"

namespace support {

void writePicture(const TemporaryFolder& folder, const std::string& file, const QSize& size, const QColor& color) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(color);
  const std::string problem = host::writePicture(image, folder.write(file, ""));
  if (!problem.empty()) throw std::runtime_error(problem);
}

}  // namespace support
