#include "tests/support/HostilePictures.h"

#include <QBuffer>
#include <QImageWriter>

namespace support {

std::string encoded(const QSize& size, const char* form, QImage::Format format, const QColor& color) {
  QImage image(size, format);
  if (format == QImage::Format_Mono) {
    image.fill(color == Qt::white ? 1U : 0U);
  } else {
    image.fill(color);
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, form);
  return bytes.toStdString();
}

std::string hugePng() {
  return QByteArray::fromHex(
             "89504e470d0a1a0a0000000d4948445200004e2000004e2008020000006c12d16e0000000049444154"
             "35af061e0000000049454e44ae426082")
      .toStdString();
}

std::string pngWithPackedTexts(int count) {
  constexpr std::size_t behindTheHead = 33;
  std::string bytes = encoded({7, 5}, "PNG");
  const std::string chunk("\0\0\0\5zTXtk\0\0xx\0\0\0\0", 17);
  for (int i = 0; i < count; ++i) bytes.insert(behindTheHead, chunk);
  return bytes;
}

std::string progressiveJpeg(const QSize& size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QImageWriter writer(&buffer, "JPG");
  writer.setProgressiveScanWrite(true);
  writer.write(image);
  return bytes.toStdString();
}

std::string jpegWithScans(int count) {
  std::string bytes = encoded({7, 5}, "JPG");
  const std::string scan("\xFF\xDA\0\x08\x01\x01\0\0\x3F\0", 10);
  for (int i = 1; i < count; ++i) bytes.insert(bytes.size() - 2, scan);
  return bytes;
}

std::string gifOnCanvas(int width, int height) {
  std::string bytes("GIF89awwhh\x80\0\0\xFF\0\0\0\0\0,\0\0\0\0\x07\0\x05\0\0\x02\x02\x44\x01\0;", 35);
  bytes[6] = static_cast<char>(width & 0xFF);
  bytes[7] = static_cast<char>(width >> 8);
  bytes[8] = static_cast<char>(height & 0xFF);
  bytes[9] = static_cast<char>(height >> 8);
  return bytes;
}

}  // namespace support
