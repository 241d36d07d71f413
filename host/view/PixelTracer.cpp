#include "host/view/PixelTracer.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "host/view/ColorCurves.h"

namespace host {

namespace {

constexpr float NOWHERE = std::numeric_limits<float>::infinity();
/// Translucent surfaces behind each other that are still told apart.
constexpr int MOST_LAYERS = 16;

float smoothStep(float from, float to, float value) {
  const float t = std::clamp((value - from) / (to - from), 0.0F, 1.0F);
  return t * t * (3.0F - 2.0F * t);
}

Color studio(float height) {
  // A pale paper roll: a little brighter where wall and floor meet.
  static const Color top = toLinear(Color(0.80F, 0.83F, 0.86F));
  static const Color bend = toLinear(Color(0.93F, 0.93F, 0.92F));
  static const Color floor = toLinear(Color(0.86F, 0.85F, 0.83F));
  const float bendAt = 0.52F;
  const bool wall = height > bendAt;
  const float share = wall ? smoothStep(bendAt, 1.0F, height) : smoothStep(0.0F, bendAt, height);
  const Color& low = wall ? bend : floor;
  const Color& high = wall ? top : bend;
  return {low.r + (high.r - low.r) * share, low.g + (high.g - low.g) * share, low.b + (high.b - low.b) * share};
}

/// Lays `under` beneath what is there already.
void addBehind(Coverage& sum, const Coverage& under) {
  const float left = 1.0F - sum.alpha;
  sum.color =
      Color(sum.color.r + under.color.r * left, sum.color.g + under.color.g * left, sum.color.b + under.color.b * left);
  sum.alpha += under.alpha * left;
}

/// How sure the mean of a pixel's samples is, judged by their brightness on the screen.
class Spread {
 public:
  void add(const Coverage& one) {
    const float light = (one.color.r + 2.0F * one.color.g + one.color.b) / 4.0F;
    const float seen = std::sqrt(std::clamp(light, 0.0F, 1.0F)) + one.alpha;
    ++count_;
    sum_ += seen;
    squares_ += seen * seen;
  }
  bool within(float deviation) const {
    if (count_ < FEWEST || deviation <= 0.0F) return false;
    const auto count = static_cast<float>(count_);
    const float variance = std::max(0.0F, squares_ - sum_ * sum_ / count) / (count - 1.0F);
    return variance < deviation * deviation * count;
  }

 private:
  /// Fewer samples than these may agree by chance.
  static constexpr int FEWEST = 4;

  int count_ = 0;
  float sum_ = 0.0F;
  float squares_ = 0.0F;
};

Coverage solid(const Color& color, float alpha) { return {{color.r * alpha, color.g * alpha, color.b * alpha}, alpha}; }

}  // namespace

PixelTracer::PixelTracer(const RayScene& scene, const Camera& camera, const RenderOptions& options)
    : scene_(scene), camera_(camera), options_(options), shader_(scene, options.ground) {
  const Box3 box = scene.bounds();
  if (box.IsEmpty()) return;
  middle_ = box.Center();
  radius_ = box.Width().Length() / 2.0F;
}

Coverage PixelTracer::pixel(int x, int y) const {
  const SamplePattern pattern(x, y);
  Coverage sum;
  Spread spread;
  int taken = 0;
  while (taken < options_.samples && !spread.within(options_.enough / 255.0F)) {
    const SampleSource source{pattern, static_cast<std::uint32_t>(taken++),
                              static_cast<std::uint32_t>(options_.samples)};
    const SamplePattern::Pair place = source.pair(SamplePattern::PIXEL);
    const Ray ray = camera_.rayThrough(static_cast<float>(x) + place.x, static_cast<float>(y) + place.y, options_.width,
                                       options_.height);
    const Coverage one = sample(ray, y, source);
    sum.color = Color(sum.color.r + one.color.r, sum.color.g + one.color.g, sum.color.b + one.color.b);
    sum.alpha += one.alpha;
    spread.add(one);
  }
  const float share = 1.0F / static_cast<float>(taken);
  return {{sum.color.r * share, sum.color.g * share, sum.color.b * share}, sum.alpha * share};
}

Coverage PixelTracer::sample(const Ray& ray, int y, const SampleSource& source) const {
  const float ground = groundDistance(ray);
  Coverage sum;
  Ray rest = ray;
  float travelled = 0.0F;
  for (int layer = 0; layer < MOST_LAYERS && sum.alpha < 0.99F; ++layer) {
    std::optional<SceneHit> hit = scene_.intersect(rest, {}, ground - travelled);
    if (!hit) break;
    hit->distance += travelled;
    const float opacity = std::clamp(scene_.surface(hit->item, hit->materialId).opacity, 0.0F, 1.0F);
    if (opacity > 0.0F) addBehind(sum, solid(filmic(shader_.light(*hit, ray, source)), opacity));
    travelled = hit->distance * (1.0F + 4e-5F);
    rest.p = ray.p + ray.dir * travelled;
  }
  if (sum.alpha < 0.99F) addBehind(sum, ground < NOWHERE ? groundSeen(ray, ground, y, source) : background(y));
  return sum;
}

float PixelTracer::groundDistance(const Ray& ray) const {
  const bool seen = options_.ground && ray.p.z > 0.0F && ray.dir.z < 0.0F;
  return seen ? ray.p.z / -ray.dir.z : NOWHERE;
}

Coverage PixelTracer::groundSeen(const Ray& ray, float distance, int y, const SampleSource& source) const {
  const Point3 place = ray.p + ray.dir * distance;
  const Point3 fromMiddle(place.x - middle_.x, place.y - middle_.y, 0.0F);
  const float fade = smoothStep(2.0F * radius_, 6.0F * radius_, fromMiddle.Length());
  if (!(fade < 1.0F)) return background(y);

  Color left = shader_.groundLight(place, distance, source);
  const auto faded = [fade](float share) { return share + (1.0F - share) * fade; };
  left = Color(faded(left.r), faded(left.g), faded(left.b));
  if (options_.background == RenderOptions::Background::Transparent) {
    return {Color(), std::clamp(1.0F - (left.r + left.g + left.b) / 3.0F, 0.0F, 1.0F)};
  }
  const Color behind = background(y).color;
  return {{std::min(1.0F, behind.r * left.r), std::min(1.0F, behind.g * left.g), std::min(1.0F, behind.b * left.b)},
          1.0F};
}

Coverage PixelTracer::background(int y) const {
  switch (options_.background) {
    case RenderOptions::Background::Transparent:
      return {};
    case RenderOptions::Background::Plain: {
      const QColor& c = options_.backgroundColor;
      return {
          toLinear(Color(static_cast<float>(c.redF()), static_cast<float>(c.greenF()), static_cast<float>(c.blueF()))),
          1.0F};
    }
    case RenderOptions::Background::Studio:
      break;
  }
  return {studio(1.0F - (static_cast<float>(y) + 0.5F) / static_cast<float>(options_.height)), 1.0F};
}

}  // namespace host
