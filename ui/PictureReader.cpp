#include "ui/PictureReader.h"

#include <windows.h>

#include <QFile>
#include <QImageReader>
#include <QPixelFormat>

#include "ui/PictureForm.h"

namespace ZORVEL {

namespace {

const qint64 MOST_PIXELS = qint64{8192} * 8192;
/// Of a picture that is decoded whole, as most are even when a corner is shown.
const qint64 MOST_BYTES = qint64{256} << 20;

qint64 BytesOf(const QImageReader& reader, const QSize& size) {
  const QImage::Format format = reader.imageFormat();
  const int bits = format == QImage::Format_Invalid ? 32 : QImage::toPixelFormat(format).bitsPerPixel();
  return qint64{size.width()} * size.height() * bits / 8;
}

/// Empty when the picture may be decoded.
QString WhyRefused(const QImageReader& reader, const QSize& size) {
  if (!reader.canRead()) return QStringLiteral("it is not a picture");
  if (size.isEmpty()) return QStringLiteral("its size is unknown");
  if (qint64{size.width()} * size.height() > MOST_PIXELS || BytesOf(reader, size) > MOST_BYTES) {
    return QStringLiteral("it is too large (%1 x %2 pixels)").arg(size.width()).arg(size.height());
  }
  return QString();
}

/// Leaves the reader ready to decode.
QSize SizeIn(QImageReader& reader, QString& problem) {
  const QByteArray form = PictureForm::Of(*reader.device(), problem);
  if (form.isEmpty()) return QSize();
  reader.setAutoDetectImageFormat(false);
  reader.setFormat(form);
  const QSize size = reader.size();
  problem = WhyRefused(reader, size);
  return problem.isEmpty() ? size : QSize();
}

}  // namespace

QSize PictureReader::Measure(QIODevice& device, QString& problem) {
  QImageReader reader(&device);
  return SizeIn(reader, problem);
}

QImage PictureReader::Read(const std::wstring& path, const QSize& box, QString& problem) {
  std::FILE* stream = _wfopen(path.c_str(), L"rb");
  QFile file;
  if (stream == nullptr || !file.open(stream, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
    problem = QStringLiteral("it cannot be opened");
    return QImage();
  }
  QImageReader reader(&file);
  const QSize size = SizeIn(reader, problem);
  if (size.isEmpty()) return QImage();
  reader.setClipRect(QRect(QPoint(), size.boundedTo(box)));
  QImage image = reader.read();
  if (image.isNull()) problem = reader.errorString();
  return image;
}

}  // namespace ZORVEL
