#include "samples/clothing/Garment.h"

#include <gtest/gtest.h>

#include "samples/body/BodyPieces.h"
#include "samples/clothing/Wardrobe.h"
#include "samples/people/People.h"

namespace {

using namespace samples;

/// Which parts of the body an outfit hides.
struct Cover {
  double sleeve = 0;  ///< as of a top
  double legs = 0;    ///< 1 to the knee, 2 to the ankle
};

Cover coverOf(Outfit outfit) {
  switch (outfit) {
    case Outfit::SummerDress:
    case Outfit::Sports:
    case Outfit::BlouseAndSkirt:
      return {0.25, outfit == Outfit::Sports ? 1.8 : 0.7};
    case Outfit::TeeAndShorts:
    case Outfit::TeeAndTrousers:
      return {0.4, outfit == Outfit::TeeAndShorts ? 0.6 : 1.75};
    case Outfit::Business:
      return {1.7, 0.7};
    default:
      return {1.6, 1.75};
  }
}

bool hidden(const Skeleton& skeleton, BodyPart part, const Vec3& p, const Cover& cover) {
  const auto along = [&](const Limb& limb) {
    const double lower = limb.lower.local(p).z;
    return lower > 0 ? 1 + lower / limb.lowerLength : std::max(limb.upper.local(p).z / limb.upperLength, 0.0);
  };
  const double height = skeleton.toRest(p).z / skeleton.stature();
  switch (part) {
    case BodyPart::Trunk:
      return height > 0.50 && height < 0.74;
    case BodyPart::LeftArm:
    case BodyPart::RightArm:
      return along(skeleton.arm(part == BodyPart::LeftArm ? Side::Left : Side::Right)) < cover.sleeve && height < 0.80;
    case BodyPart::LeftLeg:
    case BodyPart::RightLeg:
      return along(skeleton.leg(part == BodyPart::LeftLeg ? Side::Left : Side::Right)) < cover.legs;
    default:
      return false;
  }
}

// Share of the hidden skin that comes through the cloth.
double shareOfSkinThrough(const std::shared_ptr<const ImplicitBody>& body, Outfit outfit, const host::Mesh& skin) {
  const std::vector<Piece> pieces = outfitPieces(body, outfit);
  int covered = 0, through = 0;
  for (const Point3& position : skin.positions) {
    const Vec3 p{position.x, position.y, position.z};
    // Cloth gives way to a hand, which hides what it lies on.
    const double hand = std::min(body->handDistance(Side::Left, p), body->handDistance(Side::Right, p));
    if (hand < 1.5 || !hidden(body->skeleton(), body->partAt(p), p, coverOf(outfit))) continue;
    ++covered;
    double nearest = 1e3;
    for (const Piece& piece : pieces) nearest = std::min(nearest, piece.field->distance(p));
    if (nearest > 0.05) ++through;
  }
  EXPECT_GT(covered, 60);
  return covered > 0 ? static_cast<double>(through) / covered : 1.0;
}

TEST(Garments, CoverTheSkinBelowThemInEveryPoseOfEveryPerson) {
  for (const CharacterDesign& design : people(6)) {
    for (const Pose& pose : samplePoses(design.proportions.femininity)) {
      const auto body = std::make_shared<const ImplicitBody>(Skeleton(design.proportions, pose), design.hair);
      const host::Mesh skin = meshPieces({bodyPieces(body).front()}, 4);
      for (const OutfitDesign& outfit : design.outfits) {
        EXPECT_LT(shareOfSkinThrough(body, outfit.outfit, skin), 0.005)
            << design.name << ", " << pose.name << ", " << outfit.name;
      }
    }
  }
}

}  // namespace
