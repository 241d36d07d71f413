#include "samples/Pose.h"

namespace samples {
namespace {

Pose standing(double femininity) {
  Pose pose;
  pose.id = "standing";
  pose.name = "Standing";
  pose.pelvisHeight = 0.985;
  pose.pelvisOffset = {-0.035, 0, 0};
  pose.pelvis = {0, 4.5, 4};
  pose.spine = {-2, -4.5, -2};
  pose.chest = {3, -3.5, -3};
  pose.neck = {4, 1.5, 2};
  pose.head = {-2, 2.5, 6};
  pose.rightLeg.ankle = {-0.085, 0.0, 0};
  pose.rightLeg.footYaw = 8;
  pose.rightLeg.kneeYaw = 6;
  pose.leftLeg.ankle = {mix(0.19, 0.15, femininity), -0.10, 0};
  pose.leftLeg.footYaw = 24;
  pose.leftLeg.kneeYaw = 16;
  pose.leftArm = {-3, mix(14, 15, femininity), 8, 22, 12, 0, 0.42};
  pose.rightArm = {-2, mix(15, 18, femininity), 6, 14, 8, 0, 0.6};
  return pose;
}

Pose walking(double femininity) {
  Pose pose;
  pose.id = "walking";
  pose.name = "Walking";
  const double stride = mix(1.0, 0.9, femininity);
  pose.pelvisHeight = 0.945;
  pose.pelvis = {-3, -1.5, -8};
  pose.spine = {-2, 1, 6};
  pose.chest = {1, 1, 9};
  pose.neck = {4, 0, -3};
  pose.head = {0, 0, -4};
  pose.leftLeg.ankle = {0.075, -0.36 * stride, 0};
  pose.leftLeg.footYaw = 5;
  pose.leftLeg.footPitch = 17;
  pose.leftLeg.kneeYaw = 2;
  pose.rightLeg.ankle = {-0.075, 0.40 * stride, 0};
  pose.rightLeg.footYaw = 4;
  pose.rightLeg.footPitch = -38;
  pose.rightLeg.kneeYaw = 3;
  pose.rightArm = {24, mix(13, 15, femininity), 6, 24, 6, 0, 0.6};
  pose.leftArm = {-22, mix(13, 14, femininity), 4, 14, 4, 0, 0.55};
  return pose;
}

Pose sitting(double femininity) {
  Pose pose;
  pose.id = "sitting";
  pose.name = "Sitting";
  pose.seated = true;
  pose.pelvisHeight = 0.545;
  pose.pelvis = {6, 0, 0};
  pose.spine = {-4, 0, 0};
  pose.chest = {-5, 0, 4};
  pose.neck = {6, 0, -2};
  pose.head = {2, 0, -8};
  const double apart = mix(0.17, 0.10, femininity);
  pose.leftLeg.ankle = {apart, -0.47, 0};
  pose.leftLeg.footYaw = mix(14, 6, femininity);
  pose.leftLeg.kneeYaw = mix(12, 3, femininity);
  pose.rightLeg.ankle = {-apart, -0.40, 0};
  pose.rightLeg.footYaw = mix(12, 5, femininity);
  pose.rightLeg.kneeYaw = mix(12, 3, femininity);
  pose.leftArm = {20, 6, 26, 43, 66, -18, 0.16};
  pose.rightArm = {2, mix(17, 20, femininity), 4, 12, 6, 0, 0.6};
  return pose;
}

}  // namespace

std::vector<Pose> samplePoses(double femininity) {
  return {standing(femininity), walking(femininity), sitting(femininity)};
}

}  // namespace samples
