#include "samples/Previews.h"

#include <cmath>

#include "host/rays/RayScene.h"
#include "host/view/ColorCurves.h"
#include "host/view/Renderer.h"

namespace samples {
namespace {

Point3 toPoint(const Vec3& v) { return {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)}; }

host::Surface toSurface(const Material& material, const Previews::Textures& textures) {
  host::Surface surface;
  surface.color =
      host::toLinear(Color(static_cast<float>(material.color.redF()), static_cast<float>(material.color.greenF()),
                           static_cast<float>(material.color.blueF())));
  surface.roughness = static_cast<float>(material.roughness);
  surface.opacity = static_cast<float>(material.opacity);
  surface.softness = static_cast<float>(std::min(material.softness / 5.0, 1.0));
  const auto found = textures.find(material.texture);
  if (found != textures.end()) surface.texture = found->second;
  return surface;
}

// Few rays leave a grain behind, which neighbours of nearly the same colour take away. Edges and patterns stay.
QImage withoutGrain(const QImage& picture) {
  constexpr int reach = 2, sameness = 22;
  QImage smooth = picture;
  for (int y = 0; y < picture.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(smooth.scanLine(y));
    for (int x = 0; x < picture.width(); ++x) {
      const QRgb own = picture.pixel(x, y);
      int red = 0, green = 0, blue = 0, sum = 0;
      for (int j = std::max(y - reach, 0); j <= std::min(y + reach, picture.height() - 1); ++j) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(j));
        for (int i = std::max(x - reach, 0); i <= std::min(x + reach, picture.width() - 1); ++i) {
          const QRgb other = row[i];
          const int apart = std::abs(qRed(own) - qRed(other)) + std::abs(qGreen(own) - qGreen(other)) +
                            std::abs(qBlue(own) - qBlue(other));
          const int weight = std::max(sameness - apart, 0);
          red += weight * qRed(other);
          green += weight * qGreen(other);
          blue += weight * qBlue(other);
          sum += weight;
        }
      }
      const int half = sum / 2;
      line[x] = qRgb((red + half) / sum, (green + half) / sum, (blue + half) / sum);
    }
  }
  return smooth;
}

}  // namespace

host::ViewItem Previews::item(std::shared_ptr<const host::Mesh> mesh, const Material& material,
                              const Frame& place) const {
  host::ViewItem item;
  item.mesh = std::move(mesh);
  item.toWorld = Matrix3(toPoint(place.x), toPoint(place.y), toPoint(place.z), toPoint(place.origin));
  if (material.kind != Material::Kind::Multi) item.surfaces = {toSurface(material, m_textures)};
  for (const Material& part : material.parts) item.surfaces.push_back(toSurface(part, m_textures));
  return item;
}

QImage Previews::take(std::vector<host::ViewItem> items, const View& view, int width, int height) const {
  host::RayScene scene;
  scene.setItems(std::move(items));
  constexpr double angle = 0.24;
  const double distance = 0.5 * view.height / std::tan(0.5 * angle);
  const double turn = radians(view.turn), above = radians(view.above);
  const Vec3 back{-std::sin(turn) * std::cos(above), -std::cos(turn) * std::cos(above), std::sin(above)};
  const host::Camera camera(toPoint(view.target + back * distance), toPoint(view.target), static_cast<float>(angle));
  host::RenderOptions options;
  options.width = width;
  options.height = height;
  options.samples = m_samples;
  options.enough = 4;
  options.ground = view.ground;
  options.background = host::RenderOptions::Background::Plain;
  options.backgroundColor = QColor(56, 57, 60);
  options.threads = 1;
  const QImage picture = host::render(scene, camera, options);
  return m_samples > 2 ? withoutGrain(picture) : picture;
}

Previews::View Previews::around(const std::vector<host::ViewItem>& items, double widthByHeight) {
  host::RayScene scene;
  scene.setItems(items);
  const Box3 box = scene.bounds();
  const Vec3 low{box.pmin.x, box.pmin.y, box.pmin.z};
  const Vec3 high{box.pmax.x, box.pmax.y, box.pmax.z};
  View view;
  view.target = (low + high) * 0.5;
  view.turn = 32;
  view.above = 14;
  const Vec3 size = high - low;
  const double wide = size.x * std::cos(radians(view.turn)) + size.y * std::sin(radians(view.turn));
  const double tall = size.z * std::cos(radians(view.above)) + std::max(size.x, size.y) * std::sin(radians(view.above));
  view.height = 1.04 * std::max(tall, wide / widthByHeight);
  view.ground = false;
  return view;
}

QImage Previews::notAvailable(int width, int height) {
  QImage image(width, height, QImage::Format_ARGB32);
  const double radius = 0.24 * width;
  const double cx = 0.5 * width, cy = 0.62 * width;
  for (int y = 0; y < height; ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < width; ++x) {
      const double dx = x + 0.5 - cx, dy = y + 0.5 - cy;
      const double r = std::hypot(dx, dy);
      const double ring = std::abs(r - radius) - 3.2;
      const double bar = std::max(std::abs(dx - dy) / std::sqrt(2.0) - 3.2, r - radius);
      const double sign = 1 - smoothStep(-0.6, 0.6, std::min(ring, bar));
      const double shade = 1 - smoothStep(0.0, 7.0, std::min(ring, bar));
      // The veil thins out towards the sides, so that it does not end with a hard edge on a wider picture.
      const double veil = mix(0.66, 0.40, smoothStep(0.30, 0.50, std::abs(dx) / width));
      const double alpha = std::max(mix(veil, 0.80, shade), 0.96 * sign);
      const auto tone = [&](double dark, double mark) { return static_cast<int>(std::lround(mix(dark, mark, sign))); };
      line[x] = qRgba(tone(40, 226), tone(41, 228), tone(44, 232), static_cast<int>(std::lround(alpha * 255)));
    }
  }
  return image;
}

}  // namespace samples
