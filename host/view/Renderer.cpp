#include "host/view/Renderer.h"

#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <ctime>
#include <thread>
#include <vector>

#include "host/geometry/Bounds.h"
#include "host/rays/Visibility.h"
#include "host/services/Threads.h"
#include "host/view/ColorCurves.h"
#include "host/view/PixelTracer.h"

namespace host {

namespace {

constexpr int TILE_SIZE = 32;
constexpr int PIXELS_BETWEEN_LOOKS = 4;

double secondsUsed() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

/// A byte for a value from 0 to 1; `grain`, from 0 to 1, decides which way a value between two bytes goes.
int toByte(float value, float grain) { return std::clamp(static_cast<int>(value * 255.0F + grain), 0, 255); }

/// What one pixel stores: sRGB, colour not multiplied by alpha, with a grain of less than one step against bands.
QRgb stored(const Coverage& coverage, int x, int y) {
  if (!(coverage.alpha > 0.0F)) return 0;
  const auto grain = SamplePattern(x, y).pair(SamplePattern::OPACITY, 0, 1);
  const float whole = 1.0F / coverage.alpha;
  const auto channel = [&](float light) { return toByte(toSrgb(std::min(1.0F, light * whole)), grain.x); };
  const int alpha = coverage.alpha > 0.9999F ? 255 : toByte(coverage.alpha, grain.y);
  return qRgba(channel(coverage.color.r), channel(coverage.color.g), channel(coverage.color.b), alpha);
}

/// Hands tiles to the threads, each of which writes pixels that no other touches.
class TileQueue {
 public:
  TileQueue(const PixelTracer& tracer, const RenderOptions& options, QImage& image)
      : tracer_(tracer), options_(options), bits_(image.bits()), stride_(image.bytesPerLine()) {
    columns_ = (options.width + TILE_SIZE - 1) / TILE_SIZE;
    count_ = columns_ * ((options.height + TILE_SIZE - 1) / TILE_SIZE);
  }

  /// Draws tiles until none is left or the picture is cancelled.
  void work(bool reports) {
    for (int tile = next_++; tile < count_ && !cancelled(); tile = next_++) {
      draw(tile);
      if (cancelled()) return;
      const int done = ++done_;
      if (reports && options_.progress) options_.progress(static_cast<float>(done) / static_cast<float>(count_));
    }
  }

  bool complete() const { return done_ == count_; }

 private:
  bool cancelled() const {
    return (options_.cancel != nullptr && *options_.cancel) || secondsUsed() - begin_ > options_.mostSeconds;
  }

  void draw(int tile) {
    const int left = tile % columns_ * TILE_SIZE;
    const int top = tile / columns_ * TILE_SIZE;
    for (int y = top; y < std::min(top + TILE_SIZE, options_.height); ++y) {
      QRgb* line = reinterpret_cast<QRgb*>(bits_ + y * stride_);
      for (int x = left; x < std::min(left + TILE_SIZE, options_.width); ++x) {
        if (x % PIXELS_BETWEEN_LOOKS == 0 && cancelled()) return;
        line[x] = stored(tracer_.pixel(x, y), x, y);
      }
    }
  }

  const PixelTracer& tracer_;
  const RenderOptions& options_;
  double begin_ = secondsUsed();
  uchar* bits_;
  qptrdiff stride_;
  int columns_ = 0;
  int count_ = 0;
  std::atomic<int> next_{0};
  std::atomic<int> done_{0};
};

bool inRange(const RenderOptions& options) {
  const auto within = [](int value, int most) { return value >= 1 && value <= most; };
  return within(options.width, 16384) && within(options.height, 16384) && within(options.samples, 4096);
}

bool drawAllTiles(TileQueue& queue, unsigned threads) {
  if (threads == 0) threads = std::max(1U, std::thread::hardware_concurrency());
  std::vector<std::thread> others;
  startThreads(others, std::min(threads, 256U) - 1, [&queue] { queue.work(false); });
  queue.work(true);
  for (std::thread& other : others) other.join();
  return queue.complete();
}

void drawLabel(QPainter& painter, const QPointF& middle, const QString& text) {
  const QRectF around(middle.x() - 2000, middle.y() - 2000, 4000, 4000);
  const QRectF plate = painter.boundingRect(around, Qt::AlignCenter, text).adjusted(-8, -4, 8, 4);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(30, 32, 36, 200));
  painter.drawRoundedRect(plate, 4, 4);
  painter.setPen(Qt::white);
  painter.drawText(plate, Qt::AlignCenter, text);
}

void drawLabels(QImage& image, const RayScene& scene, const Camera& camera) {
  // Without a window system there are no fonts.
  if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) return;
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  QFont font = painter.font();
  font.setPixelSize(std::max(11, image.height() / 45));
  painter.setFont(font);
  for (const ViewItem& item : scene.items()) {
    if (item.label.empty() || visibilityOf(item) != Visibility::Shown) continue;
    const Point3 middle = transformed(item.mesh->bounds, item.toWorld).Center();
    const auto place = camera.project(middle, image.width(), image.height());
    if (place) drawLabel(painter, *place, QString::fromStdWString(item.label));
  }
}

}  // namespace

QImage render(const RayScene& scene, const Camera& camera, const RenderOptions& options) {
  if (!inRange(options)) return {};
  const bool transparent = options.background == RenderOptions::Background::Transparent;
  QImage image(options.width, options.height, transparent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  if (image.isNull()) return {};
  const PixelTracer tracer(scene, camera, options);
  TileQueue queue(tracer, options, image);
  if (!drawAllTiles(queue, options.threads)) return {};
  drawLabels(image, scene, camera);
  if (options.progress) options.progress(1.0F);
  return image;
}

}  // namespace host
