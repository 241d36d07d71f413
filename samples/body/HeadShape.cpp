#include "samples/body/HeadShape.h"

namespace samples {

HeadShape::HeadShape(const Skeleton& skeleton, HairStyle hair)
    : height_(skeleton.proportions().headHeight()), femininity_(skeleton.proportions().femininity) {
  const Frame& joint = skeleton.head();
  frame_ = joint.at(joint.point(Vec3{0, -0.06, -0.20} * height_));
  auto head = std::make_shared<BlobField>();
  addSkull(*head);
  addEyes(*head);
  addNoseAndMouth(*head);
  addEars(*head);
  head_ = head;
  hair_ = makeHair(hair, frame_, height_);
}

Frame HeadShape::at(double x, double y, double z, const Vec3& turned) const {
  return frame_.child(Frame::rotated(turned, Vec3{x, y, z} * height_));
}

void HeadShape::addSkull(BlobField& field) const {
  const double h = height_;
  const double f = femininity_;
  field.addEllipsoid(at(0, 0.055, 0.635), size(0.325, 0.405, 0.355), 0);
  field.addEllipsoid(at(0, -0.085, 0.43), size(mix(0.268, 0.258, f), 0.268, 0.35), 0.10 * h);
  field.addEllipsoid(at(0, -0.12, 0.205), size(mix(0.205, 0.172, f), 0.200, 0.17), 0.12 * h);
  for (const double s : {-1.0, 1.0}) {
    field.addCone(place(s * mix(0.200, 0.165, f), 0.0, 0.27), 0.07 * h, place(s * mix(0.070, 0.040, f), -0.25, 0.075),
                  0.055 * h, 0.14 * h);
    field.addSphere(place(s * 0.150, -0.205, 0.385), 0.10 * h, 0.10 * h);
    field.addSphere(place(s * 0.085, -0.200, 0.255), 0.105 * h, 0.10 * h);
    field.addCone(place(s * 0.17, -0.255, 0.572), 0.036 * h, place(s * 0.04, -0.308, 0.562), mix(0.042, 0.030, f) * h,
                  0.09 * h);
  }
  field.addSphere(place(0, -0.265, 0.078), mix(0.068, 0.055, f) * h, 0.09 * h);
}

void HeadShape::addEyes(BlobField& field) const {
  const double h = height_;
  for (const double s : {-1.0, 1.0}) {
    field.carveEllipsoid(at(s * 0.135, -0.400, 0.490, {0, 0, s * -14.0}), size(0.085, 0.075, 0.050), 0.06 * h);
    field.addEllipsoid(at(s * 0.133, -0.262, 0.490), size(0.074, 0.068, 0.060), 0.020 * h);
  }
}

void HeadShape::addNoseAndMouth(BlobField& field) const {
  const double h = height_;
  const double f = femininity_;
  field.addCone(place(0, -0.318, 0.515), 0.028 * h, place(0, mix(-0.415, -0.400, f), 0.345), mix(0.041, 0.034, f) * h,
                0.06 * h);
  for (const double s : {-1.0, 1.0}) {
    field.addSphere(place(s * 0.043, -0.360, 0.334), mix(0.034, 0.029, f) * h, 0.04 * h);
    field.addCone(place(0, -0.336, 0.228), mix(0.024, 0.027, f) * h, place(s * 0.080, -0.290, 0.212), 0.014 * h,
                  0.03 * h);
    field.addCone(place(0, -0.326, 0.183), mix(0.028, 0.032, f) * h, place(s * 0.068, -0.285, 0.200), 0.016 * h,
                  0.012 * h);
  }
}

void HeadShape::addEars(BlobField& field) const {
  const double h = height_;
  for (const double s : {-1.0, 1.0}) {
    const Frame ear = at(s * 0.322, 0.055, 0.455, {-12, 0, s * 24.0});
    field.addEllipsoid(ear, size(0.030, 0.072, 0.115), 0.03 * h);
    field.carveEllipsoid(ear.at(ear.point({s * 0.034 * h, -0.008 * h, 0.012 * h})), size(0.022, 0.042, 0.070),
                         0.02 * h);
  }
}

}  // namespace samples
