#include "host/view/Texture.h"

#include <QImageReader>
#include <array>
#include <cmath>

#include "host/view/ColorCurves.h"

namespace host {

namespace {

constexpr qint64 MOST_PIXELS = 64'000'000;

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

}  // namespace

Texture::Result Texture::read(const std::filesystem::path& file) {
  QImageReader reader(QString::fromStdString(file.u8string()));
  reader.setDecideFormatFromContent(true);
  const QSize size = reader.size();
  if (size.isValid() && qint64(size.width()) * size.height() > MOST_PIXELS) {
    return {nullptr, "the picture has more than 64 megapixels"};
  }
  if (!size.isValid() && reader.canRead()) return {nullptr, "the picture does not say how large it is"};
  const QImage picture = reader.read();
  if (picture.isNull()) return {nullptr, reader.errorString().toStdString()};
  return {std::make_shared<Texture>(picture, file), {}};
}

Texture::Texture(const QImage& picture, std::filesystem::path file)
    : picture_(picture.convertToFormat(QImage::Format_RGB32)), file_(std::move(file)) {}

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
