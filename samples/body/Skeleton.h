#pragma once

#include <array>
#include <cstddef>

#include "samples/body/Pose.h"
#include "samples/body/Proportions.h"
#include "samples/geometry/Frame.h"

namespace samples {

enum class Side { Left, Right };

/// +1 on the character's left, which is towards +X since it faces -Y.
constexpr double sign(Side side) { return side == Side::Left ? 1.0 : -1.0; }

/// One posed limb. Z of each frame points along the bone away from the body; Y points to the back of the limb when it
/// hangs.
struct Limb {
  Frame upper;
  Frame lower;
  Frame end;   ///< hand or foot; Z of a foot points up, and it faces -Y
  Frame toes;  ///< of a foot: at the ball, on the sole; level while the heel is lifted
  double upperLength = 0;
  double lowerLength = 0;

  Vec3 joint() const { return lower.origin; }
};

/// The joints of one body in one pose, feet on Z = 0.
class Skeleton {
 public:
  Skeleton(const Proportions& proportions, const Pose& pose);

  const Proportions& proportions() const { return proportions_; }
  const Pose& pose() const { return pose_; }
  /// What the parts of the body are measured by: the stature, of a child less than that.
  double stature() const { return proportions_.bodyStature(); }

  /// Axes as the whole body's (Z up, facing -Y), origin at the joint.
  const Frame& pelvis() const { return pelvis_; }
  const Frame& spine() const { return spine_; }
  const Frame& chest() const { return chest_; }
  const Frame& neck() const { return neck_; }
  const Frame& head() const { return head_; }
  const Limb& arm(Side side) const { return arms_[static_cast<std::size_t>(side)]; }
  const Limb& leg(Side side) const { return legs_[static_cast<std::size_t>(side)]; }
  /// Between the hips, Z along the middle of both thighs, Y to their back: what a skirt follows.
  Frame lap() const;
  /// Centre of what the closed hand holds; Y points along the handle, -Z away from the forearm.
  Frame grip(Side side) const;

  /// Heights of the joints in the upright body, which shapes of trunk and head are described in.
  double restPelvis() const { return 0.535 * stature(); }
  double restSpine() const { return 0.60 * stature(); }
  double restChest() const { return 0.67 * stature(); }
  double restNeck() const { return stature() * 0.828; }
  double restHead() const { return proportions_.stature - 0.80 * proportions_.headHeight(); }
  double ankleHeight() const { return 0.044 * stature(); }
  double handLength() const { return 0.104 * stature(); }
  double heelBack() const { return 0.034 * stature(); }
  double ballForward() const { return 0.072 * stature(); }

  /// The point of the upright trunk that the pose has moved to `world`.
  Vec3 toRest(const Vec3& world) const;

 private:
  void poseTrunk();
  void poseLeg(Side side);
  void poseArm(Side side);

  Proportions proportions_;
  Pose pose_;
  Frame pelvis_;
  Frame spine_;
  Frame chest_;
  Frame neck_;
  Frame head_;
  std::array<Limb, 2> arms_;
  std::array<Limb, 2> legs_;
};

}  // namespace samples
