#include "samples/Wardrobe.h"

#include "samples/Garment.h"

namespace samples {
namespace {

using BodyPtr = std::shared_ptr<const ImplicitBody>;
using Kind = ClothUnwrap::Kind;

Piece cloth(const BodyPtr& body, FieldPtr field, Kind kind, std::uint16_t materialId, std::size_t triangles) {
  MeshDetail detail;
  detail.cell = 0.5;
  detail.triangles = triangles;
  const Vec3 collar = body->skeleton().neck().origin;
  detail.weight = [collar](const Vec3& p) { return length(p - collar) < 15 ? 6.0 : 1.0; };
  return {std::move(field), std::make_shared<ClothUnwrap>(body, kind), materialId, detail};
}

std::vector<Piece> summerDress(const BodyPtr& body) {
  TopCut top;
  top.ease = 0.75;
  top.sleeve = 0.36;
  top.sleeveEase = 0.9;
  top.hem = 0.60;
  top.hemEase = 0;
  top.collar = 0.812;
  top.neckSlope = 0.30;
  top.neckWidth = 4.5;
  return {cloth(body, Garment(*body).dress(top, SkirtCut()), Kind::Dress, 0, 14000)};
}

std::vector<Piece> casual(const BodyPtr& body) {
  const Garment garment(*body);
  TopCut top;
  top.sleeve = 1.72;
  top.collar = 0.822;
  top.neckSlope = 0.35;
  top.neckWidth = 2.2;
  TrouserCut trousers;
  trousers.hemRadius = 0.034;
  return {cloth(body, garment.top(top), Kind::Top, 0, 9000),
          cloth(body, garment.trousers(trousers), Kind::Trousers, 1, 8000)};
}

std::vector<Piece> suit(const BodyPtr& body) {
  const Garment garment(*body);
  TopCut shirt;
  shirt.ease = 0.6;
  shirt.sleeveEase = 0.7;
  shirt.sleeve = 1.95;
  shirt.hem = 0.53;
  shirt.hemEase = 0;
  shirt.collar = 0.856;
  shirt.neckWidth = 2.0;
  TopCut jacket;
  jacket.ease = 1.5;
  jacket.sleeveEase = 1.5;
  jacket.sleeve = 1.87;
  jacket.hem = 0.475;
  jacket.hemEase = 1.0;
  jacket.openFrom = 0.655;
  jacket.lapel = 4.5;
  jacket.collar = 0.842;
  jacket.neckEase = 1.3;
  jacket.neckWidth = 3.0;
  Piece coat = cloth(body, garment.top(jacket), Kind::Top, 0, 13000);
  return {coat, cloth(body, garment.trousers(TrouserCut()), Kind::Trousers, 0, 7000),
          cloth(body, garment.top(shirt), Kind::Top, 1, 6000),
          cloth(body, garment.tie(shirt, 0.62), Kind::Top, 2, 900)};
}

std::vector<Piece> hoodie(const BodyPtr& body) {
  const Garment garment(*body);
  TopCut top;
  top.hood = true;
  top.collar = 0.845;
  top.neckSlope = 0.30;
  top.neckWidth = 3.0;
  top.neckEase = 1.2;
  top.ease = 1.6;
  top.sleeveEase = 1.5;
  top.sleeve = 1.92;
  top.hemEase = 0.3;
  TrouserCut trousers;
  trousers.hemRadius = 0.041;
  return {cloth(body, garment.top(top), Kind::Top, 0, 10000),
          cloth(body, garment.trousers(trousers), Kind::Trousers, 1, 8000)};
}

std::vector<Piece> coat(const BodyPtr& body) {
  const Garment garment(*body);
  TopCut top;
  top.ease = 1.9;
  top.sleeveEase = 1.7;
  top.sleeve = 1.9;
  top.hem = 0.60;
  top.hemEase = 0;
  top.collar = 0.862;
  top.neckEase = 1.8;
  top.neckWidth = 3.5;
  SkirtCut skirt;
  skirt.ease = 1.9;
  skirt.length = 1.12;
  skirt.flare = 5;
  skirt.folds = 0;
  return {cloth(body, garment.dress(top, skirt), Kind::Dress, 0, 14000)};
}

}  // namespace

std::vector<Piece> bodyPieces(const BodyPtr& body) {
  MeshDetail skin;
  skin.cell = 0.45;
  skin.triangles = 21000;
  const Vec3 face = body->headShape().place(0, 0, 0.45);
  const Vec3 left = body->skeleton().arm(Side::Left).end.origin;
  const Vec3 right = body->skeleton().arm(Side::Right).end.origin;
  skin.weight = [=](const Vec3& p) {
    if (length(p - face) < 14) return 8.0;
    return std::min(length(p - left), length(p - right)) < 22 ? 4.0 : 1.0;
  };
  MeshDetail hair;
  hair.cell = 0.45;
  hair.triangles = 4000;
  return {{body, std::make_shared<SkinUnwrap>(body), 0, skin},
          {body->headShape().hair(), std::make_shared<SkinUnwrap>(body), 1, hair}};
}

std::vector<Piece> outfitPieces(const BodyPtr& body, Outfit outfit) {
  switch (outfit) {
    case Outfit::SummerDress:
      return summerDress(body);
    case Outfit::Casual:
      return casual(body);
    case Outfit::Suit:
      return suit(body);
    case Outfit::Hoodie:
      return hoodie(body);
    case Outfit::Coat:
      return coat(body);
  }
  return {};
}

std::vector<Piece> shoePieces(const BodyPtr& body, Footwear shoes) {
  const Skeleton& skeleton = body->skeleton();
  const double ankle = skeleton.ankleHeight();
  std::vector<Piece> pieces;
  for (const Side side : {Side::Left, Side::Right}) {
    const Frame foot = skeleton.leg(side).end;
    const Frame toes = skeleton.leg(side).toes;
    const double ball = -skeleton.ballForward();
    const auto overSole = [=](const Vec3& p) {
      const Vec3 local = foot.local(p);
      return mix(toes.local(p).z, local.z + ankle, smoothStep(ball - 2, ball + 2, local.y));
    };
    const FieldPtr grown = makeFoot(skeleton, side, shoes == Footwear::Ballerinas ? 0.35 : 0.55);
    const FieldPtr sole = makeFoot(skeleton, side, shoes == Footwear::Ballerinas ? 0.45 : 0.95);
    const double soleHeight = shoes == Footwear::Sneakers ? 2.2 : 1.1;
    const auto upper = [=](const Vec3& p) {
      const Vec3 local = foot.local(p);
      // A low shoe is open over the instep, a laced one around the ankle.
      const double top = shoes == Footwear::Ballerinas
                             ? local.z + ankle - 4.6 + 0.22 * std::abs(local.y + 5)
                             : local.z + 0.20 * local.y - (shoes == Footwear::Sneakers ? 1.2 : 0.2);
      const double outside = std::max(smoothMax(grown->distance(p), top, 0.4), 0.35 - overSole(p));
      return smoothMax(outside, -std::max({grown->distance(p) + 0.9, -top - 2.5, 0.9 - overSole(p)}), 0.2);
    };
    const auto bottom = [=](const Vec3& p) { return smoothMax(sole->distance(p), overSole(p) - soleHeight, 0.3); };
    const auto unwrap = std::make_shared<BoxUnwrap>();
    MeshDetail detail;
    detail.cell = 0.45;
    detail.triangles = 1800;
    detail.evenness = 5e-4;
    pieces.push_back({makeField(upper, grown->bounds()), unwrap, 0, detail});
    detail.triangles = 700;
    pieces.push_back({makeField(bottom, sole->bounds()), unwrap, 1, detail});
  }
  return pieces;
}

}  // namespace samples
