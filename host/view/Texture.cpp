#include "host/view/Texture.h"

#include <QFile>
#include <QImageReader>
#include <QPixelFormat>
#include <algorithm>
#include <array>
#include <cmath>

#include "host/files/PictureForm.h"
#include "host/files/RegularFile.h"
#include "host/view/ColorCurves.h"
#include "host/view/TextureRoom.h"

namespace host {

namespace {

constexpr std::size_t MOST_PIXELS = std::size_t{8192} * 8192;

const std::array<float, 256>& linearOfByte() {
  static const std::array<float, 256> table = [] {
    std::array<float, 256> values{};
    for (std::size_t i = 0; i < values.size(); ++i) values[i] = toLinear(static_cast<float>(i) / 255.0F);
    return values;
  }();
  return table;
}

/// Where a coordinate falls among `count` pixels in a row: the two to mix, and how much of the second.
struct Between {
  int first;
  int second;
  float share;
};

Between between(float coordinate, int count) {
  const float wrapped = std::isfinite(coordinate) ? coordinate - std::floor(coordinate) : 0.0F;
  const float place = wrapped * static_cast<float>(count) - 0.5F;
  const float low = std::floor(place);
  const int first = static_cast<int>(low);
  return {(first + count) % count, (first + 1) % count, place - low};
}

Color mix(const Color& a, const Color& b, float share) {
  return {a.r + (b.r - a.r) * share, a.g + (b.g - a.g) * share, a.b + (b.b - a.b) * share};
}

std::size_t pixelsOf(const QSize& size) {
  return static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
}

QSize shrunk(const QSize& size, int factor) {
  return {std::max(1, size.width() / factor), std::max(1, size.height() / factor)};
}

/// What decoding takes at a time, besides what is kept.
std::size_t bytesToDecode(const QImageReader& reader, const PictureForm& form, int shrinking) {
  constexpr std::size_t coefficients = 6;
  const QImage::Format format = reader.imageFormat();
  const std::size_t bits = format == QImage::Format_Invalid ? 32 : QImage::toPixelFormat(format).bitsPerPixel();
  const std::size_t whole = pixelsOf(reader.size());
  const std::size_t kept = form.isProgressive ? coefficients * whole : 0;
  if (shrinking == 1 && bits == 32) return kept;
  return kept + (form.shrinksWhileReading ? pixelsOf(shrunk(reader.size(), shrinking)) * 16 : whole * bits / 8);
}

/// Strip by strip: Qt would make a whole picture of 32 bits first, whatever this one has. Null for a picture that is.
QImage shrunkWhole(const QImage& picture, const QSize& size, int factor) {
  QImage result(picture.isNull() ? QSize() : size, QImage::Format_RGB32);
  for (int y = 0; y < size.height() && !result.isNull(); ++y) {
    const QImage strip = picture.copy(0, y * factor, picture.width(), factor).convertToFormat(QImage::Format_RGB32);
    const QImage line = strip.scaled(size.width(), 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (line.isNull()) return line;
    const auto* from = reinterpret_cast<const QRgb*>(line.constScanLine(0));
    std::copy_n(from, size.width(), reinterpret_cast<QRgb*>(result.scanLine(y)));
  }
  return result;
}

/// Null where it cannot be decoded.
QImage decoded(QImageReader& reader, const PictureForm& form, int shrinking) {
  const QSize size = shrunk(reader.size(), shrinking);
  if (shrinking == 1) return reader.read();
  if (!form.shrinksWhileReading) return shrunkWhole(reader.read(), size, shrinking);
  reader.setScaledSize(size);
  return reader.read();
}

Texture::Result decode(QImageReader& reader, const PictureForm& form, const std::filesystem::path& file) {
  TextureRoom& room = TextureRoom::instance();
  const int shrinking = room.shrinkingOf(reader.size());
  const Room::Share pixels = room.decoded().take(pixelsOf(reader.size()));
  const Room::Share bytes = room.kept().take(pixelsOf(shrunk(reader.size(), shrinking)) * sizeof(QRgb));
  if (pixels == nullptr || bytes == nullptr || !room.mayUse(bytesToDecode(reader, form, shrinking))) {
    return {nullptr, "the scene has no room for it: its textures are too large together", true};
  }
  const QImage picture = decoded(reader, form, shrinking);
  if (picture.isNull()) return {nullptr, reader.errorString().toStdString(), false};
  return {std::make_shared<Texture>(picture, file, std::vector<Room::Share>{pixels, bytes}), {}, false};
}

}  // namespace

Texture::Result Texture::read(const std::filesystem::path& path) {
  RegularFile regular(path);
  if (!regular.isOpen()) return {nullptr, regular.problem(), false};
  QFile file;
  file.open(regular.release(), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
  const PictureForm form = pictureForm(file);
  if (!form.problem.empty()) return {nullptr, form.problem, false};
  QImageReader reader(&file, form.name);
  reader.setAutoDetectImageFormat(false);
  if (reader.size().isEmpty()) return {nullptr, "the picture does not say how large it is", false};
  if (pixelsOf(reader.size()) > MOST_PIXELS) {
    return {nullptr, "the picture has more pixels than 8192 by 8192", false};
  }
  return decode(reader, form, path);
}

Texture::Texture(const QImage& picture, std::filesystem::path file, std::vector<Room::Share> shares)
    : picture_(picture.convertToFormat(QImage::Format_RGB32)), file_(std::move(file)), shares_(std::move(shares)) {}

Color Texture::at(const TexCoord& coord) const {
  if (picture_.isNull()) return {1, 1, 1};
  const Between x = between(coord.u, picture_.width());
  const Between y = between(1.0F - coord.v, picture_.height());
  return mix(mix(pixel(x.first, y.first), pixel(x.second, y.first), x.share),
             mix(pixel(x.first, y.second), pixel(x.second, y.second), x.share), y.share);
}

Color Texture::pixel(int x, int y) const {
  const QRgb value = reinterpret_cast<const QRgb*>(picture_.constScanLine(y))[x];
  const std::array<float, 256>& linear = linearOfByte();
  return {linear[static_cast<std::size_t>(qRed(value))], linear[static_cast<std::size_t>(qGreen(value))],
          linear[static_cast<std::size_t>(qBlue(value))]};
}

}  // namespace host
