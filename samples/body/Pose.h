#pragma once

#include <string>
#include <vector>

#include "samples/geometry/Vector.h"

namespace samples {

/// How one leg stands. Lengths are parts of the leg's length, so that a pose fits every stature.
struct LegPose {
  Vec3 ankle;            ///< from the spot under the pelvis; z lifts the foot off the ground that it else touches
  double footYaw = 0;    ///< degrees outward
  double footPitch = 0;  ///< degrees, toes up
  double kneeYaw = 0;    ///< degrees outward
};

/// How one arm hangs: degrees, all 0 is an arm straight down with the palm towards the thigh.
struct ArmPose {
  double forward = 0;
  double outward = 0;
  double twist = 0;  ///< inward about the upper arm's length
  double elbow = 0;
  double pronation = 0;  ///< turns the palm backward
  double wrist = 0;      ///< bends the palm inward
  double curl = 0;       ///< fingers: 0 straight, 1 a fist around a handle
};

/// One attitude of a body, free of any stature. Rotations are degrees about X, Y, Z of the parent.
struct Pose {
  std::string id;
  std::string name;
  double pelvisHeight = 1;  ///< of the height that straight legs give
  Vec3 pelvisOffset;        ///< of the leg's length
  Vec3 pelvis;
  Vec3 spine;
  Vec3 chest;
  Vec3 neck;
  Vec3 head;
  LegPose leftLeg;
  LegPose rightLeg;
  ArmPose leftArm;
  ArmPose rightArm;
  bool seated = false;
};

/// The attitudes that the repository offers. `femininity` softens stride and elbows.
std::vector<Pose> samplePoses(double femininity);

}  // namespace samples
