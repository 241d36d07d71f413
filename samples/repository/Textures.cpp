#include "samples/repository/Textures.h"

#include <array>
#include <vector>

#include "samples/geometry/Random.h"
#include "samples/geometry/Vector.h"

namespace samples {
namespace {

constexpr double TURN = 2 * PI;

// Smooth noise that repeats after `cells` cells, from -1 to 1.
class TileNoise {
 public:
  TileNoise(std::uint64_t seed, int cells) : cells_(cells) {
    Random random(seed + static_cast<std::uint64_t>(cells) * 7919U);
    values_.resize(static_cast<std::size_t>(cells) * static_cast<std::size_t>(cells));
    for (double& value : values_) value = random.between(-1, 1);
  }

  double at(double u, double v) const {
    const double x = (u - std::floor(u)) * cells_;
    const double y = (v - std::floor(v)) * cells_;
    const int ix = static_cast<int>(x), iy = static_cast<int>(y);
    const double tx = smoothStep(0, 1, x - ix), ty = smoothStep(0, 1, y - iy);
    return mix(mix(value(ix, iy), value(ix + 1, iy), tx), mix(value(ix, iy + 1), value(ix + 1, iy + 1), tx), ty);
  }

 private:
  double value(int x, int y) const {
    return values_[static_cast<std::size_t>(y % cells_) * static_cast<std::size_t>(cells_) +
                   static_cast<std::size_t>(x % cells_)];
  }

  int cells_;
  std::vector<double> values_;
};

struct Tone {
  double r;
  double g;
  double b;

  Tone() : Tone(1, 1, 1) {}
  Tone(double red, double green, double blue) : r(red), g(green), b(blue) {}
  explicit Tone(const QColor& color) : Tone(color.redF(), color.greenF(), color.blueF()) {}
  Tone shaded(double factor) const { return {r * factor, g * factor, b * factor}; }
  Tone towards(const Tone& other, double t) const {
    return {mix(r, other.r, t), mix(g, other.g, t), mix(b, other.b, t)};
  }
  QRgb rgb() const {
    const auto byte = [](double c) { return static_cast<int>(std::lround(std::clamp(c, 0.0, 1.0) * 255)); };
    return qRgb(byte(r), byte(g), byte(b));
  }
};

// Over and under: threads cross `count` times to a tile.
double threads(double u, double v, int count) {
  const double x = u * count, y = v * count;
  const bool over = ((static_cast<int>(std::floor(x)) + static_cast<int>(std::floor(y))) & 1) != 0;
  const double round = std::abs(std::sin(PI * (over ? x : y)));
  return 0.86 + 0.14 * std::sqrt(round);
}

double band(double position, double width, double softness = 0.02) {
  const double t = std::abs(position - std::floor(position) - 0.5) * 2;
  return 1 - smoothStep(width - softness, width + softness, t);
}

}  // namespace

template <typename Paint>
QImage Textures::paint(Paint paint) const {
  QImage image(size_, size_, QImage::Format_RGB32);
  for (int y = 0; y < size_; ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < size_; ++x) line[x] = paint((x + 0.5) / size_, 1 - (y + 0.5) / size_).rgb();
  }
  return image;
}

QImage Textures::weave() const {
  const TileNoise noise(seed_ + 1, 64);
  return paint([&](double u, double v) { return Tone().shaded(threads(u, v, 64) + 0.02 * noise.at(u, v)); });
}

QImage Textures::knit() const {
  const TileNoise noise(seed_ + 2, 32);
  return paint([&](double u, double v) {
    const double rib = std::abs(std::sin(PI * u * 20));
    const double stitch = std::abs(std::sin(PI * (v * 28 + 0.35 * std::sin(TURN * u * 20))));
    return Tone().shaded(0.80 + 0.13 * std::sqrt(rib) + 0.07 * stitch + 0.02 * noise.at(u, v));
  });
}

QImage Textures::leather() const {
  const TileNoise coarse(seed_ + 3, 24);
  const TileNoise fine(seed_ + 4, 96);
  return paint([&](double u, double v) {
    return Tone().shaded(0.92 - 0.07 * std::abs(coarse.at(u, v)) + 0.05 * fine.at(u, v));
  });
}

QImage Textures::denim(const QColor& color) const {
  const TileNoise wash(seed_ + 5, 6);
  const TileNoise yarn(seed_ + 6, 128);
  return paint([&](double u, double v) {
    const double twill = 0.5 + 0.5 * std::sin(TURN * (u * 60 + v * 60));
    const double tone = 0.86 + 0.12 * twill + 0.06 * wash.at(u, v) + 0.07 * yarn.at(u, v);
    return Tone(color).shaded(tone).towards({0.85, 0.88, 0.92}, 0.10 * (1 - twill));
  });
}

QImage Textures::stripes(const QColor& base, const QColor& stripe, int count, double width, bool upright) const {
  return paint([&](double u, double v) {
    const Tone tone = Tone(base).towards(Tone(stripe), band((upright ? u : v) * count, width));
    return tone.shaded(threads(u, v, 64));
  });
}

QImage Textures::check(const QColor& base, const QColor& line, const QColor& second, int count) const {
  return paint([&](double u, double v) {
    const auto cross = [&](double at, double width) {
      return 0.5 * (band(u * count + at, width) + band(v * count + at, width));
    };
    Tone tone = Tone(base).towards(Tone(line), cross(0, 0.42) * 0.85);
    tone = tone.towards(Tone(second), cross(0.5, 0.09) * 0.9);
    return tone.shaded(threads(u, v, 64));
  });
}

QImage Textures::dots(const QColor& base, const QColor& dot, int count, double radius) const {
  return paint([&](double u, double v) {
    const double row = std::floor(v * count);
    const double x = u * count + (static_cast<int>(row) % 2 != 0 ? 0.5 : 0.0);
    const double d = std::hypot(x - std::floor(x) - 0.5, v * count - row - 0.5);
    return Tone(base).towards(Tone(dot), 1 - smoothStep(radius - 0.02, radius + 0.02, d)).shaded(threads(u, v, 64));
  });
}

QImage Textures::tweed(const QColor& base, const QColor& fleck) const {
  const TileNoise coarse(seed_ + 7, 40);
  const TileNoise fine(seed_ + 8, 128);
  return paint([&](double u, double v) {
    const double zig = std::abs(std::fmod(v * 16, 2.0) - 1.0);
    const double bone = 0.5 + 0.5 * std::sin(TURN * (u * 16 + zig * 0.9));
    const Tone tone = Tone(base).towards(Tone(fleck), 0.30 * bone + 0.25 * std::max(coarse.at(u, v), 0.0));
    return tone.shaded(0.95 + 0.10 * fine.at(u, v));
  });
}

QImage Textures::quilt(const QColor& base) const {
  const TileNoise creases(seed_ + 15, 48);
  return paint([&](double u, double v) {
    const double a = std::abs(std::sin(PI * (u + v) * 3)), b = std::abs(std::sin(PI * (u - v) * 3));
    const double puff = std::sqrt(std::min(a, b));
    return Tone(base).shaded(0.72 + 0.32 * puff + 0.05 * creases.at(u, v));
  });
}

QImage Textures::felt() const {
  const TileNoise patches(seed_ + 16, 20);
  const TileNoise fibres(seed_ + 17, 128);
  return paint(
      [&](double u, double v) { return Tone().shaded(0.93 + 0.03 * patches.at(u, v) + 0.05 * fibres.at(u, v)); });
}

QImage Textures::bands(const std::vector<QColor>& colors) const {
  return paint([&](double u, double v) {
    const auto index = static_cast<std::size_t>(v * static_cast<double>(colors.size()));
    return Tone(colors[std::min(index, colors.size() - 1)]).shaded(threads(u, v, 64));
  });
}

QImage Textures::flowers(const QColor& base, const QColor& petal, const QColor& heart) const {
  struct Flower {
    double x;
    double y;
    double size;
    double turn;
  };
  Random random(seed_ + 9);
  std::vector<Flower> flowers;
  constexpr int rows = 3;
  for (int i = 0; i < rows * rows; ++i) {
    const int row = i / rows;
    flowers.push_back({(i % rows + 0.5 * (row % 2) + random.between(0.3, 0.7)) / rows,
                       (row + random.between(0.3, 0.7)) / rows, random.between(0.085, 0.135), random.next()});
  }
  return paint([&](double u, double v) {
    Tone tone(base);
    for (const Flower& flower : flowers) {
      const double dx = u - flower.x - std::round(u - flower.x), dy = v - flower.y - std::round(v - flower.y);
      const double r = std::hypot(dx, dy) / flower.size;
      const double edge = 0.72 + 0.28 * std::cos(5 * std::atan2(dy, dx) + TURN * flower.turn);
      tone = tone.towards(Tone(petal).shaded(0.85 + 0.15 * r), 1 - smoothStep(edge - 0.05, edge + 0.05, r));
      tone = tone.towards(Tone(heart), 1 - smoothStep(0.22, 0.28, r));
    }
    return tone.shaded(threads(u, v, 64));
  });
}

QImage Textures::wood(const QColor& base) const {
  const TileNoise bend(seed_ + 10, 4);
  const TileNoise grain(seed_ + 11, 64);
  return paint([&](double u, double v) {
    const double ring = std::sin(TURN * (u * 5 + 0.35 * bend.at(u, v)));
    return Tone(base).shaded(0.90 + 0.08 * ring + 0.05 * grain.at(u, v * 0.25));
  });
}

QImage Textures::straw(const QColor& base) const {
  const TileNoise noise(seed_ + 12, 48);
  return paint([&](double u, double v) {
    const double plait = std::abs(std::sin(PI * (u * 18 + 0.5 * std::floor(v * 14)))) * std::abs(std::sin(PI * v * 14));
    return Tone(base).shaded(0.78 + 0.24 * std::sqrt(plait) + 0.05 * noise.at(u, v));
  });
}

namespace {

// Places on the head as parts of its height, seen from the front; x is measured around, so that it fits the wrapped
// face.
struct FacePlace {
  double x;
  double z;
};

double ellipse(const FacePlace& p, double x, double z, double rx, double rz) {
  return std::hypot((p.x - x) / rx, (p.z - z) / rz);
}

Tone paintEye(Tone tone, const FacePlace& p, double side, const Face& face) {
  const double x = side * 0.134, z = 0.490;
  const double dx = (p.x - x) * side;
  // An almond: two arcs, the outer corner a little higher.
  const double along = dx / 0.062;
  const double open = 1 - along * along;
  const double tilt = 0.006 * along;
  const double upper = p.z - (z + tilt + 0.027 * open), lower = (z + tilt - 0.020 * open) - p.z;
  const double inside = std::max(upper, lower);
  const double lidShade = smoothStep(0.05, 0.0, inside) * 0.10;
  tone = tone.towards({0.55, 0.38, 0.33}, std::abs(along) < 1.25 ? lidShade : 0);
  if (open > 0) {
    Tone white(0.93, 0.92, 0.90);
    const double iris = std::hypot(p.x - x, p.z - z - 0.004) / 0.0255;
    white = white.towards(Tone(face.iris).shaded(0.65 + 0.5 * std::min(iris, 1.0)), 1 - smoothStep(0.92, 1.05, iris));
    white = white.towards({0.04, 0.04, 0.05}, 1 - smoothStep(0.42, 0.52, iris));
    const double glint = std::hypot(p.x - x + 0.008, p.z - z - 0.014) / 0.0065;
    white = white.towards({1, 1, 1}, 1 - smoothStep(0.8, 1.1, glint));
    white = white.shaded(1 - 0.35 * smoothStep(-0.016, 0.0, upper));
    tone = tone.towards(white, 1 - smoothStep(-0.001, 0.002, inside));
    const double lash = std::abs(upper - 0.002) / (face.lashes ? 0.0065 : 0.0042);
    tone = tone.towards({0.10, 0.07, 0.06}, (1 - smoothStep(0.6, 1.1, lash)) * 0.92);
  }
  return tone;
}

Tone paintBrow(Tone tone, const FacePlace& p, double side, const Face& face) {
  const double t = (p.x * side - 0.065) / 0.165;
  if (t < -0.05 || t > 1.05) return tone;
  const double line = 0.560 + 0.030 * std::sin(PI * std::clamp(t * 0.75 + 0.05, 0.0, 1.0)) - 0.006 * t;
  const double thick = mix(face.lashes ? 0.010 : 0.015, 0.004, std::clamp(t, 0.0, 1.0));
  const double d = std::abs(p.z - line) / thick;
  const double ends = smoothStep(-0.05, 0.08, t) * (1 - smoothStep(0.9, 1.05, t));
  return tone.towards(Tone(face.brows), 0.85 * ends * (1 - smoothStep(0.7, 1.25, d)));
}

Tone paintMouth(Tone tone, const FacePlace& p, const Face& face) {
  const double along = p.x / 0.098;
  const double open = 1 - along * along;
  if (open <= 0) return tone;
  const double line = 0.2065 + 0.006 * along * along;
  const double bow = 0.006 * std::exp(-std::pow(p.x / 0.016, 2));
  const double top = p.z - (line + 0.028 * std::pow(open, 0.8) - bow), bottom = (line - 0.034 * open) - p.z;
  tone = tone.towards(Tone(face.lips),
                      (1 - smoothStep(-0.006, 0.003, std::max(top, bottom))) * (face.lashes ? 0.85 : 0.5));
  const double seam = std::abs(p.z - line) / 0.0035;
  return tone.towards({0.30, 0.12, 0.12}, 0.7 * (1 - smoothStep(0.4, 1.2, seam)) * std::sqrt(open));
}

// Jaw, chin and upper lip; a thick beard has a clearer edge.
Tone paintBeard(Tone tone, const FacePlace& p, double around, const Face& face) {
  const double soft = mix(0.14, 0.05, face.beard);
  const double cheek = 1 - smoothStep(0.24, 0.24 + soft, p.z - 0.42 * std::max(std::abs(p.x) - 0.10, 0.0));
  const double ends = smoothStep(-0.05, 0.06, p.z) * (1 - smoothStep(0.19, 0.24, around));
  const double strands = 0.85 + 0.15 * std::sin(260 * p.x + 30 * p.z);
  return tone.towards(Tone(face.brows).shaded(strands), std::min(face.beard * 0.95, 0.92) * cheek * ends);
}

Tone paintAge(Tone tone, const FacePlace& p, const Face& face) {
  const Tone crease = Tone(face.skin).shaded(0.72);
  const auto line = [&](double distance, double thick) {
    return 1 - smoothStep(0.3 * thick, thick, std::abs(distance));
  };
  const double x = std::abs(p.x);
  const double fold = line(x - 0.075 - 0.22 * std::max(0.33 - p.z, 0.0), 0.008) * smoothStep(0.18, 0.22, p.z) *
                      (1 - smoothStep(0.30, 0.34, p.z));
  const double bag =
      line(p.z - 0.452 + 0.5 * std::pow(x - 0.134, 2) * 8, 0.006) * (1 - smoothStep(0.05, 0.07, std::abs(x - 0.134)));
  double brow = 0;
  for (const double z : {0.640, 0.668, 0.694}) brow = std::max(brow, line(p.z - z - 0.006 * std::cos(14 * p.x), 0.006));
  brow *= 1 - smoothStep(0.10, 0.18, x);
  return tone.towards(crease, face.age * std::max({0.55 * fold, 0.45 * bag, 0.40 * brow}));
}

Tone paintFace(Tone tone, double u, double v, const Face& face) {
  const double height = (v - 0.5) / 0.5 * 1.2 - 0.1;
  // Around the head the face's surface is about 0.36 of a head's height away from the axis.
  const FacePlace p{std::sin(TURN * (u - 0.5)) * 0.36, height};
  if (std::abs(u - 0.5) > 0.25) return tone;
  const Tone blush = Tone(face.skin).towards({0.82, 0.30, 0.26}, 0.45);
  for (const double side : {-1.0, 1.0}) {
    const double cheek = ellipse(p, side * 0.19, 0.35, 0.10, 0.08);
    tone = tone.towards(blush, (face.lashes ? 0.45 : 0.25) * (1 - smoothStep(0.2, 1.2, cheek)));
  }
  if (face.age > 0) tone = paintAge(tone, p, face);
  if (face.beard > 0) tone = paintBeard(tone, p, std::abs(u - 0.5), face);
  for (const double side : {-1.0, 1.0}) tone = paintBrow(paintEye(tone, p, side, face), p, side, face);
  return paintMouth(tone, p, face);
}

// Across nose and cheeks.
double freckleAt(const TileNoise& spots, double u, double v) {
  const double z = (v - 0.5) / 0.5 * 1.2 - 0.1;
  const double across = 1 - smoothStep(0.05, 0.13, std::abs(z - 0.37));
  return across * (1 - smoothStep(0.14, 0.20, std::abs(u - 0.5))) * smoothStep(0.45, 0.75, spots.at(u, v));
}

}  // namespace

QImage Textures::skin(const Face& face) const {
  const TileNoise patches(seed_ + 13, 12);
  const TileNoise pores(seed_ + 14, 160);
  const TileNoise spots(seed_ + 18, 110);
  const int size = size_;
  Textures large(seed_, size * 2);
  return large.paint([&](double u, double v) {
    Tone tone = Tone(face.skin).shaded(1 + 0.018 * patches.at(u, v) + 0.015 * pores.at(u, v));
    tone = tone.towards({0.80, 0.42, 0.36}, 0.03 + 0.03 * patches.at(u + 0.37, v));
    if (v > 0.5 && face.freckles > 0) tone = tone.shaded(1 - 0.16 * face.freckles * freckleAt(spots, u, v));
    return v > 0.5 ? paintFace(tone, u, v, face) : tone;
  });
}

}  // namespace samples
