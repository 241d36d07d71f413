#pragma once

#include <functional>

#include "samples/body/ImplicitBody.h"
#include "samples/body/Lap.h"

namespace samples {

/// A shirt, jacket or the upper half of a dress. Heights are parts of the stature on the upright body, the rest
/// centimetres.
struct TopCut {
  double ease = 0.9;  ///< between skin and cloth
  double sleeveEase = 0.9;
  double sleeve = 1.8;     ///< 0 none, 1 to the elbow, 2 to the wrist
  double sleeveFlare = 0;  ///< added at the end of the sleeve
  double hem = 0.505;
  double hemEase = 0.6;     ///< added towards the hem
  double collar = 0.835;    ///< height of the neckline at the back
  double neckSlope = 0.55;  ///< how much the neckline falls towards the front
  double neckEase = 0.9;    ///< around the neck
  double neckWidth = 1.2;   ///< from the neck to the neckline
  double openFrom = 0;      ///< lowest place of the opening in front; 0 for closed
  double openSlope = 0.36;  ///< half width of the opening for each centimetre upwards
  double lapel = 0;         ///< width of the collar and lapels along the opening
  double lapelThickness = 0.5;
  double rib = 0;       ///< height of the thicker band at hem, cuffs and neckline
  double overlap = -1;  ///< how far the right front lies over the left one; less than 0 for no front edge
  bool hood = false;
};

struct TrouserCut {
  double ease = 0.7;
  double waist = 0.585;
  double thigh = 0.8;        ///< added at the thigh
  double hemRadius = 0.046;  ///< of the stature
  double hemAbove = 0.005;   ///< of the stature, over the ankle's joint
  double length = 2;         ///< 1 to the knee, 2 to the ankle
};

struct SkirtCut {
  double ease = 0.9;
  double waist = 0.62;
  double length = 0.98;  ///< along the thighs: 1 to the knees
  double flare = 7;      ///< added at the knees
  double folds = 0.7;    ///< depth of the folds at the hem
  double overlap = -1;   ///< as of a top
};

/// Cuts clothes from the shape of the body that wears them, in its pose. Every piece is a closed solid, hollow at its
/// openings as far as one can look in; it gives way to bare arms and hands.
class Garment {
 public:
  using Distance = std::function<double(const Vec3&)>;

  explicit Garment(const ImplicitBody& body);

  FieldPtr top(const TopCut& cut) const;
  FieldPtr trousers(const TrouserCut& cut) const;
  /// Both in one piece.
  FieldPtr dress(const TopCut& top, const SkirtCut& skirt) const;
  FieldPtr skirt(const SkirtCut& cut) const;
  /// Lies on the shirt and ends at the height `until`.
  FieldPtr tie(const TopCut& shirt, double until) const;
  FieldPtr belt(const TrouserCut& trousers) const;
  /// A row of buttons down the front of the top, `aside` centimetres from its middle, between two heights.
  FieldPtr buttons(const TopCut& cut, double aside, double from, double to, int count, double radius) const;
  /// How far below the hem a place lies; less than 0 above it.
  Distance hem(const TopCut& cut) const;
  Distance hem(const SkirtCut& cut) const;
  /// A zip fastener down to the height `until`.
  FieldPtr zip(const TopCut& cut, double until) const;

 private:
  Distance trunkCloth(const TopCut& cut) const;
  Distance sleeves(const TopCut& cut, Side side) const;
  Distance necklineCut(const TopCut& cut) const;
  Distance hood(const TopCut& cut) const;
  Distance skirtCloth(const SkirtCut& cut) const;
  /// Positive near hands, and near forearms when they are bare.
  Distance hands(bool bareArms) const;
  FieldPtr make(Distance distance) const;

  std::shared_ptr<const ImplicitBody> body_;
  std::shared_ptr<const Lap> lap_;
};

}  // namespace samples
