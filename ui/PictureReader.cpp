#include "ui/PictureReader.h"

#include <windows.h>

#include <QFile>
#include <QImageReader>

namespace ZORVEL {

namespace {

const qint64 MOST_PIXELS = qint64{64} * 1000 * 1000;

/// Empty when the picture may be decoded.
QString WhyRefused(const QImageReader& reader, const QSize& size) {
  if (!reader.canRead()) return QStringLiteral("it is not a picture");
  if (size.isEmpty()) return QStringLiteral("its size is unknown");
  if (qint64(size.width()) * size.height() > MOST_PIXELS) {
    return QStringLiteral("it is too large (%1 x %2 pixels)").arg(size.width()).arg(size.height());
  }
  return QString();
}

}  // namespace

QImage PictureReader::Read(const std::wstring& path, const QSize& box, QString& problem) {
  std::FILE* stream = _wfopen(path.c_str(), L"rb");
  QFile file;
  if (stream == nullptr || !file.open(stream, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
    problem = QStringLiteral("it cannot be opened");
    return QImage();
  }
  QImageReader reader(&file);
  reader.setDecideFormatFromContent(true);
  const QSize size = reader.size();
  problem = WhyRefused(reader, size);
  if (!problem.isEmpty()) return QImage();
  reader.setClipRect(QRect(QPoint(), size.boundedTo(box)));
  QImage image = reader.read();
  if (image.isNull()) problem = reader.errorString();
  return image;
}

}  // namespace ZORVEL
