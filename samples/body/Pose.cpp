#include "samples/body/Pose.h"

namespace samples {
namespace {

Pose standing(double femininity) {
  Pose pose;
  pose.id = "standing";
  pose.name = "Standing";
  pose.pelvisHeight = 0.992;
  pose.pelvisOffset = {-0.012, 0, 0};
  pose.pelvis = {-1, 1.5, 2};
  pose.spine = {-1, -1.5, -1};
  pose.chest = {2, -1, -2};
  pose.neck = {4, 0.5, 1};
  pose.head = {-2, 1, 5};
  pose.rightLeg.ankle = {mix(-0.120, -0.085, femininity), 0.005, 0};
  pose.rightLeg.footYaw = 9;
  pose.rightLeg.kneeYaw = 7;
  pose.leftLeg.ankle = {mix(0.125, 0.085, femininity), -0.030, 0};
  pose.leftLeg.footYaw = 13;
  pose.leftLeg.kneeYaw = 9;
  pose.leftArm = {0, mix(13, 14, femininity), 6, 12, 8, 0, 0.45};
  pose.rightArm = {-2, mix(14, 17, femininity), 6, 14, 8, 0, 0.6};
  return pose;
}

// The weight on the right leg, the left hand on the hip.
Pose contrapposto(double femininity) {
  Pose pose;
  pose.id = "contrapposto";
  pose.name = "Contrapposto";
  pose.pelvisHeight = 0.982;
  pose.pelvisOffset = {-0.040, 0, 0};
  pose.pelvis = {0, mix(5, 6.5, femininity), 4};
  pose.spine = {-2, mix(-5, -6.5, femininity), -2};
  pose.chest = {2, -4, -5};
  pose.neck = {4, 2, 2};
  pose.head = {-2, 3, 12};
  pose.rightLeg.ankle = {-0.085, 0.0, 0};
  pose.rightLeg.footYaw = 8;
  pose.rightLeg.kneeYaw = 6;
  pose.leftLeg.ankle = {mix(0.21, 0.15, femininity), -0.11, 0};
  pose.leftLeg.footYaw = 26;
  pose.leftLeg.kneeYaw = 18;
  pose.leftArm = {-18, 48, 52, 87, 20, -6, 0.30};
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

// With the left shoulder against whatever is there, the left leg crossed over the right one.
Pose leaning(double femininity) {
  Pose pose;
  pose.id = "leaning";
  pose.name = "Leaning";
  pose.pelvisHeight = 0.972;
  pose.pelvisOffset = {0.110, 0.01, 0};
  pose.pelvis = {-2, 3, -4};
  pose.spine = {-1, 4, 0};
  pose.chest = {3, 3, 6};
  pose.neck = {4, -4, 2};
  pose.head = {0, -5, -10};
  pose.rightLeg.ankle = {-0.045, 0.0, 0};
  pose.rightLeg.footYaw = 12;
  pose.rightLeg.kneeYaw = 8;
  pose.leftLeg.ankle = {mix(-0.170, -0.155, femininity), -0.190, 0};
  pose.leftLeg.footYaw = -16;
  pose.leftLeg.footPitch = -48;
  pose.leftLeg.kneeYaw = 10;
  pose.leftArm = {14, 10, 40, 78, 30, -8, 0.30};
  pose.rightArm = {0, mix(17, 20, femininity), 8, 18, 8, 0, 0.6};
  return pose;
}

Pose waving(double femininity) {
  Pose pose;
  pose.id = "waving";
  pose.name = "Waving";
  pose.pelvisHeight = 0.988;
  pose.pelvisOffset = {-0.025, 0, 0};
  pose.pelvis = {-1, 3, 2};
  pose.spine = {-1, -3.5, 0};
  pose.chest = {0, -3.5, 2};
  pose.neck = {2, 2, 2};
  pose.head = {-3, 4, 6};
  pose.rightLeg.ankle = {-0.090, 0.0, 0};
  pose.rightLeg.footYaw = 9;
  pose.rightLeg.kneeYaw = 7;
  pose.leftLeg.ankle = {mix(0.16, 0.12, femininity), -0.06, 0};
  pose.leftLeg.footYaw = 18;
  pose.leftLeg.kneeYaw = 12;
  pose.leftArm = {12, 58, -88, 112, 0, 0, 0.10};
  pose.rightArm = {-2, mix(14, 17, femininity), 6, 14, 8, 0, 0.6};
  return pose;
}

}  // namespace

std::vector<Pose> samplePoses(double femininity) {
  return {standing(femininity), contrapposto(femininity), walking(femininity),
          sitting(femininity),  leaning(femininity),      waving(femininity)};
}

}  // namespace samples
