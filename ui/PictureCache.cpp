#include "ui/PictureCache.h"

#include <QPainter>
#include <algorithm>

#include "ui/PictureReader.h"

namespace ZORVEL {

namespace {

const int MOST_KIBIBYTES = 256 * 1024;

int KibibytesOf(const Picture& picture) {
  const qint64 bytes = qint64(picture.pixmap.width()) * picture.pixmap.height() * 4;
  return std::max(1, static_cast<int>(bytes / 1024));
}

}  // namespace

bool PictureSource::operator==(const PictureSource& other) const {
  return path == other.path && stamp == other.stamp && overlay == other.overlay && overlayStamp == other.overlayStamp &&
         box == other.box;
}

uint qHash(const PictureSource& source, uint seed) {
  const std::size_t name = std::hash<std::wstring>()(source.path);
  return ::qHash(static_cast<quint64>(name), seed) ^ ::qHash(static_cast<quint64>(source.stamp.time), seed + 1) ^
         ::qHash(source.box.width(), seed + 2) ^ ::qHash(static_cast<quint64>(source.overlayStamp.time), seed + 3);
}

PictureCache& PictureCache::Instance() {
  static PictureCache cache;
  return cache;
}

PictureCache::PictureCache() : m_pictures(MOST_KIBIBYTES) {}

Picture PictureCache::Get(const PictureSource& source) {
  if (const Picture* known = m_pictures.object(source)) return *known;
  auto* picture = new Picture(Decode(source));
  Picture result = *picture;
  m_pictures.insert(source, picture, KibibytesOf(result));
  return result;
}

void PictureCache::Clear() { m_pictures.clear(); }

Picture PictureCache::Decode(const PictureSource& source) {
  Picture picture;
  ++m_decoded;
  QImage image = PictureReader::Read(source.path, source.box, picture.problem);
  if (image.isNull()) return picture;
  image = image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
  const QImage overlay = ReadOverlay(source);
  if (!overlay.isNull()) QPainter(&image).drawImage(0, 0, overlay);
  picture.pixmap = QPixmap::fromImage(image);
  return picture;
}

QImage PictureCache::ReadOverlay(const PictureSource& source) {
  if (!source.overlayStamp.exists) return QImage();
  PictureSource alone;
  alone.path = source.overlay;
  alone.stamp = source.overlayStamp;
  alone.box = source.box;
  return Get(alone).pixmap.toImage();
}

}  // namespace ZORVEL
