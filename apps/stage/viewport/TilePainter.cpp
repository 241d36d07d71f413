#include "apps/stage/viewport/TilePainter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>
#include <vector>

#include "host/view/ColorCurves.h"

namespace stage {

namespace {

/// sRGB from 0 to 1, multiplied by alpha.
using Channels = std::array<float, 4>;

Channels channelsOf(const host::Coverage& coverage) {
  if (!(coverage.alpha > 0.0F)) return {};
  const float alpha = std::min(1.0F, coverage.alpha);
  const auto channel = [&](float light) { return host::toSrgb(std::min(1.0F, light / coverage.alpha)) * alpha; };
  return {channel(coverage.color.r), channel(coverage.color.g), channel(coverage.color.b), alpha};
}

QRgb pixelOf(const Channels& c) {
  const auto byte = [](float value) { return std::clamp(static_cast<int>(std::floor(value * 255.0F + 0.5F)), 0, 255); };
  return qRgba(byte(c[0]), byte(c[1]), byte(c[2]), byte(c[3]));
}

Channels between(const Channels& a, const Channels& b, float share) {
  Channels result;
  for (std::size_t i = 0; i < result.size(); ++i) result[i] = a[i] + (b[i] - a[i]) * share;
  return result;
}

QRgb* line(QImage& image, int y) { return reinterpret_cast<QRgb*>(image.scanLine(y)); }

/// Fills the tile from samples that stand `step` pixels apart, `columns` of them in a row.
QImage spread(const std::vector<Channels>& samples, int columns, int step, const QSize& size) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < size.height(); ++y) {
    QRgb* out = line(image, y);
    const float down = static_cast<float>(y % step) / static_cast<float>(step);
    const Channels* above = samples.data() + static_cast<std::ptrdiff_t>(y / step) * columns;
    for (int x = 0; x < size.width(); ++x) {
      const float across = static_cast<float>(x % step) / static_cast<float>(step);
      const Channels* left = above + x / step;
      out[x] =
          pixelOf(between(between(left[0], left[1], across), between(left[columns], left[columns + 1], across), down));
    }
  }
  return image;
}

host::RenderOptions optionsFor(const QSize& picture, int samples) {
  host::RenderOptions options;
  options.width = picture.width();
  options.height = picture.height();
  options.samples = samples;
  options.background = host::RenderOptions::Background::Transparent;
  return options;
}

}  // namespace

TilePainter::Tracer::Tracer(const host::RayScene& scene, const host::Camera& view, const QSize& picture, int samples)
    : camera(view), options(optionsFor(picture, samples)), tracer(scene, camera, options) {}

TilePainter::TilePainter(const host::RayScene& scene, const host::Camera& camera, const QSize& picture) {
  for (int level = 0; level < TileBoard::QUALITY_COUNT; ++level) {
    const int samples = TileBoard::quality(level).samples;
    if (tracers_.count(samples) != 0) continue;
    tracers_.emplace(std::piecewise_construct, std::forward_as_tuple(samples),
                     std::forward_as_tuple(scene, camera, picture, samples));
  }
}

QImage TilePainter::paint(const TileBoard::Task& task, const std::atomic<bool>& stop) const {
  const TileBoard::Quality& quality = TileBoard::quality(task.level);
  if (quality.step > 1) return paintCoarse(task.where, quality.step, stop);
  const host::PixelTracer& tracer = tracers_.at(quality.samples).tracer;
  QImage image(task.where.size(), QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < image.height(); ++y) {
    if (stop) return {};
    QRgb* out = line(image, y);
    for (int x = 0; x < image.width(); ++x) {
      out[x] = pixelOf(channelsOf(tracer.pixel(task.where.x() + x, task.where.y() + y)));
    }
  }
  return image;
}

QImage TilePainter::paintCoarse(const QRect& where, int step, const std::atomic<bool>& stop) const {
  const host::PixelTracer& tracer = tracers_.at(1).tracer;
  // One more row and column than the tile has: neighbours share them, so that no seam shows.
  const int columns = (where.width() - 1) / step + 2;
  const int rows = (where.height() - 1) / step + 2;
  std::vector<Channels> samples;
  samples.reserve(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
  for (int row = 0; row < rows; ++row) {
    if (stop) return {};
    for (int column = 0; column < columns; ++column) {
      samples.push_back(channelsOf(tracer.pixel(where.x() + column * step, where.y() + row * step)));
    }
  }
  return spread(samples, columns, step, where.size());
}

}  // namespace stage
