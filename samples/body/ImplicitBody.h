#pragma once

#include <array>

#include "samples/body/HeadShape.h"
#include "samples/body/LimbShape.h"
#include "samples/body/Trunk.h"

namespace samples {

enum class BodyPart { Trunk, Head, LeftArm, RightArm, LeftLeg, RightLeg };

/// The posed body as one solid, and its parts for those who cut clothes from them.
class ImplicitBody : public Field {
 public:
  ImplicitBody(const Skeleton& skeleton, HairStyle hair);

  double distance(const Vec3& point) const override;
  Box bounds() const override { return bounds_; }

  const Skeleton& skeleton() const { return skeleton_; }
  const HeadShape& headShape() const { return headShape_; }
  /// The part that the point lies nearest to.
  BodyPart partAt(const Vec3& point) const;

  /// Trunk with chest, seat and shoulders, without neck and limbs.
  double trunkDistance(const Vec3& point) const;
  double neckDistance(const Vec3& point) const { return neck_->distance(point); }
  /// Shoulder to wrist, hip to ankle.
  double armDistance(Side side, const Vec3& point) const;
  double legDistance(Side side, const Vec3& point) const;
  double handDistance(Side side, const Vec3& point) const;
  double footDistance(Side side, const Vec3& point) const;
  /// Trunk and neck with whole arms and legs melted in, no hands, feet and head.
  double figureDistance(const Vec3& point) const;

  /// `a` with a limb melted in around its joint, as the body itself is joined.
  double joinArm(double a, double arm, Side side, const Vec3& point, double blend = 5.0) const;
  double joinLeg(double a, double leg, Side side, const Vec3& point, double blend = 5.0) const;

 private:
  double coveredDistance(const Vec3& point) const;
  FieldPtr makeChestAndSeat() const;
  FieldPtr makeNeck() const;

  Skeleton skeleton_;
  HeadShape headShape_;
  Trunk trunk_;
  FieldPtr chestAndSeat_;
  FieldPtr neck_;
  std::array<FieldPtr, 2> arms_;
  std::array<FieldPtr, 2> hands_;
  std::array<FieldPtr, 2> legs_;
  std::array<FieldPtr, 2> feet_;
  Box bounds_;
};

}  // namespace samples
