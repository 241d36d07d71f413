#include "samples/body/HairShape.h"

#include "samples/geometry/BlobField.h"

namespace samples {
namespace {

// Places and sizes are parts of the head's height: chin at Z = 0, crown at Z = 1, facing -Y.
class Hair {
 public:
  Hair(const Frame& head, double height) : head_(head), height_(height) {}

  FieldPtr brushed(const BlobField& volume, double nape, double earFree, double strands) const;
  FieldPtr aroundFace(const BlobField& volume, double hem, double strands) const;

  FieldPtr shortHair() const {
    BlobField cap = skullCap(0.340, 0.425, 0.385);
    cap.addEllipsoid(at(0, -0.16, 0.93, {18, 0, 0}), size(0.235, 0.20, 0.105), 0.08 * height_);
    return brushed(cap, 0.30, 0.105, 0.10);
  }

  FieldPtr bob() const {
    BlobField cap = skullCap(0.362, 0.440, 0.395);
    cap.addEllipsoid(at(0, 0.095, 0.40), size(0.415, 0.395, 0.46), 0.10 * height_);
    cap.addEllipsoid(at(0.05, -0.16, 0.90, {16, 10, 0}), size(0.26, 0.20, 0.10), 0.10 * height_);
    return aroundFace(cap, 0.055, 0.11);
  }

  // Down to the shoulder blades; it lies behind the shoulders.
  FieldPtr longHair() const {
    const double h = height_;
    BlobField cap = skullCap(0.366, 0.440, 0.400);
    cap.addEllipsoid(at(0, 0.11, 0.38), size(0.405, 0.385, 0.46), 0.10 * h);
    cap.addEllipsoid(at(0.06, -0.15, 0.905, {16, 12, 0}), size(0.26, 0.20, 0.10), 0.10 * h);
    cap.addCone(place(0.13, 0.30, 0.10), 0.20 * h, place(0.11, 0.40, -0.42), 0.10 * h, 0.16 * h);
    cap.addCone(place(-0.13, 0.30, 0.10), 0.20 * h, place(-0.11, 0.40, -0.42), 0.10 * h, 0.16 * h);
    return aroundFace(cap, -0.62, 0.12);
  }

  FieldPtr ponytail() const {
    const double h = height_;
    BlobField cap = skullCap(0.338, 0.428, 0.382);
    BlobField tail = cap;
    tail.addCone(place(0, 0.47, 0.80), 0.070 * h, place(0, 0.58, 0.82), 0.080 * h, 0.02 * h);
    tail.addCone(place(0, 0.58, 0.82), 0.085 * h, place(0, 0.66, 0.56), 0.115 * h, 0.08 * h);
    tail.addCone(place(0, 0.66, 0.56), 0.115 * h, place(0, 0.60, 0.16), 0.085 * h, 0.06 * h);
    tail.addCone(place(0, 0.60, 0.16), 0.085 * h, place(0, 0.55, -0.04), 0.025 * h, 0.05 * h);
    return brushed(tail, 0.27, 0.115, 0.09);
  }

  FieldPtr bun() const {
    const double h = height_;
    BlobField cap = skullCap(0.342, 0.430, 0.386);
    cap.addEllipsoid(at(0, -0.14, 0.92, {18, 0, 0}), size(0.25, 0.20, 0.10), 0.09 * h);
    cap.addEllipsoid(at(0, 0.50, 0.58), size(0.185, 0.135, 0.175), 0.03 * h);
    return brushed(cap, 0.27, 0.105, 0.09);
  }

  FieldPtr receding() const {
    const BlobField cap = skullCap(0.345, 0.422, 0.370);
    const auto distance = [cap, head = head_, h = height_](const Vec3& p) {
      const Vec3 u = head.local(p) * (1.0 / h);
      const double above = u.z - 0.645 - 0.08 * smoothStep(0.15, 0.45, u.y);
      const double below = mix(0.44, 0.26, smoothStep(0.0, 0.16, u.y)) - u.z;
      const double front = -0.15 + 0.5 * (u.z - 0.5) - u.y;
      const double ear = 0.105 - length(u - Vec3{std::copysign(0.36, u.x), 0.050, 0.42});
      const double wave = 0.06 * std::sin(26 * std::atan2(u.x, 0.35 * u.y + 0.4));
      const double cut = smoothMax(smoothMax(above, below, 0.06), smoothMax(0.8 * front, ear, 0.04), 0.05);
      return smoothMax(cap.distance(p) + wave, cut * h, 0.06 * h);
    };
    return makeField(distance, cap.bounds().grown(0.5));
  }

  FieldPtr curly() const {
    const double h = height_;
    BlobField cap = skullCap(0.372, 0.452, 0.415);
    cap.addEllipsoid(at(0, -0.15, 0.92, {14, 0, 0}), size(0.29, 0.22, 0.13), 0.10 * h);
    const FieldPtr smooth = brushed(cap, 0.24, 0.070, 0);
    const auto distance = [smooth, head = head_, h](const Vec3& p) {
      const Vec3 u = head.local(p) * (22.0 / h);
      const double curls = std::sin(u.x + 0.6 * std::sin(u.z)) * std::sin(u.y) * std::sin(u.z + 0.5 * std::sin(u.x));
      return smooth->distance(p) - 0.022 * h * curls;
    };
    return makeField(distance, smooth->bounds().grown(0.5));
  }

 private:
  Frame at(double x, double y, double z, const Vec3& turned = {}) const {
    return head_.child(Frame::rotated(turned, Vec3{x, y, z} * height_));
  }
  Vec3 place(double x, double y, double z) const { return head_.point(Vec3{x, y, z} * height_); }
  Vec3 size(double x, double y, double z) const { return Vec3{x, y, z} * height_; }

  BlobField skullCap(double x, double y, double z) const {
    BlobField cap;
    cap.addEllipsoid(at(0, 0.060, 0.640), size(x, y, z), 0);
    return cap;
  }

  Frame head_;
  double height_;
};

// The hairline falls from the forehead past the temples to the nape; it leaves the ears free.
FieldPtr Hair::brushed(const BlobField& volume, double nape, double earFree, double strands) const {
  const double h = height_;
  const auto distance = [=, frame = head_](const Vec3& p) {
    const Vec3 u = frame.local(p) * (1.0 / h);
    const double line = 0.475 - 0.93 * u.y + 0.05 * smoothStep(0.10, 0.22, std::abs(u.x));
    // What hangs behind the head is no part of the hairline.
    const double free = 0.9 * smoothStep(0.47, 0.56, u.y);
    const double below = smoothMax((line - u.z) * 0.73, nape - free - u.z, 0.05) * h;
    const double ear = earFree * h - length(p - frame.point(Vec3{std::copysign(0.36, u.x), 0.035, 0.44} * h));
    const double wave = strands * std::sin(26 * std::atan2(u.x, 0.35 * u.y + 0.4 + 0.3 * u.z));
    return smoothMax(smoothMax(volume.distance(p) + wave, below, 0.05 * h), ear, 0.04 * h);
  };
  return makeField(distance, volume.bounds().grown(0.5));
}

// The face looks out of an oval that leans to the parting; the hem is a little lower in front.
FieldPtr Hair::aroundFace(const BlobField& volume, double hem, double strands) const {
  const double h = height_;
  const auto distance = [=, frame = head_](const Vec3& p) {
    const Vec3 u = frame.local(p) * (1.0 / h);
    const double ox = u.x + 0.10 * (u.z - 0.45);
    const double oval = (std::hypot(ox / 0.245, (u.z - 0.37) / 0.43) - 1) * 0.245 * h;
    const double face = std::max(oval, (u.y + 0.02 + 0.10 * u.z) * h);
    // The throat stays free under the chin.
    const double throat = std::min(std::max((u.y - 0.12) * h, (u.z - 0.08) * h), std::max(face, 0.0));
    const double below = (hem - 0.10 * std::min(-u.y, 0.0) * 2 - u.z) * h;
    const double wave = strands * std::sin(30 * std::atan2(u.x - 0.05, 0.4 * u.y + 0.25 + 0.25 * u.z));
    const double open = hem < 0 ? std::min(face, throat) : face;
    return smoothMax(smoothMax(volume.distance(p) + wave, -open, 0.06 * h), below, 0.06 * h);
  };
  return makeField(distance, volume.bounds().grown(0.5));
}

}  // namespace

FieldPtr makeHair(HairStyle style, const Frame& head, double height) {
  const Hair hair(head, height);
  switch (style) {
    case HairStyle::Short:
      return hair.shortHair();
    case HairStyle::Bob:
      return hair.bob();
    case HairStyle::Ponytail:
      return hair.ponytail();
    case HairStyle::Long:
      return hair.longHair();
    case HairStyle::Bun:
      return hair.bun();
    case HairStyle::Receding:
      return hair.receding();
    case HairStyle::Curly:
      return hair.curly();
  }
  return hair.shortHair();
}

}  // namespace samples
