#include "samples/clothing/Wardrobe.h"

#include "samples/body/ClothUnwrap.h"
#include "samples/clothing/Garment.h"
#include "samples/geometry/BoxUnwrap.h"

namespace samples {
namespace {

using BodyPtr = std::shared_ptr<const ImplicitBody>;
using Kind = ClothUnwrap::Kind;

Piece cloth(const BodyPtr& body, FieldPtr field, Kind kind, std::uint16_t materialId, std::size_t triangles,
            const Garment::Distance& hem = {}) {
  MeshDetail detail;
  detail.cell = 0.5;
  detail.triangles = triangles;
  const Vec3 collar = body->skeleton().neck().origin;
  // Collars and hems are looked at, and end with an edge.
  detail.weight = [collar, hem](const Vec3& p) {
    if (length(p - collar) < 15) return 8.0;
    return hem && std::abs(hem(p)) < 1.5 ? 4.0 : 1.0;
  };
  return {std::move(field), std::make_shared<ClothUnwrap>(body, kind), materialId, detail};
}

Piece topPiece(const BodyPtr& body, const TopCut& cut, std::uint16_t materialId, std::size_t triangles = 4600) {
  const Garment garment(*body);
  return cloth(body, garment.top(cut), Kind::Dress, materialId, triangles, garment.hem(cut));
}

Piece skirtPiece(const BodyPtr& body, const SkirtCut& cut, std::uint16_t materialId, std::size_t triangles) {
  const Garment garment(*body);
  return cloth(body, garment.skirt(cut), Kind::Dress, materialId, triangles, garment.hem(cut));
}

Piece dressPiece(const BodyPtr& body, const TopCut& upper, const SkirtCut& lower, std::size_t triangles) {
  const Garment garment(*body);
  return cloth(body, garment.dress(upper, lower), Kind::Dress, 0, triangles, garment.hem(lower));
}

// What shows only at the neck and the cuffs.
Piece underTop(const BodyPtr& body, TopCut cut, std::uint16_t materialId) {
  cut.sleeveEase = 0.4;
  cut.sleeveFlare = 0.3;
  return cloth(body, Garment(*body).top(cut), Kind::Dress, materialId, 1700);
}

Piece legs(const BodyPtr& body, const TrouserCut& cut, std::uint16_t materialId) {
  return cloth(body, Garment(*body).trousers(cut), Kind::Trousers, materialId, 2900);
}

Piece trimming(FieldPtr field, std::uint16_t materialId, std::size_t triangles) {
  MeshDetail detail;
  detail.cell = 0.28;
  detail.triangles = triangles;
  return {std::move(field), std::make_shared<BoxUnwrap>(), materialId, detail};
}

TrouserCut slim() {
  TrouserCut cut;
  cut.hemRadius = 0.035;
  return cut;
}

TrouserCut leggings() {
  TrouserCut cut;
  cut.ease = 0.5;
  cut.thigh = -0.6;
  cut.waist = 0.60;
  cut.hemRadius = 0.020;
  cut.hemAbove = 0.02;
  return cut;
}

TopCut shirtCut() {
  TopCut shirt;
  shirt.ease = 0.6;
  shirt.sleeveEase = 0.7;
  shirt.sleeve = 1.95;
  shirt.hem = 0.53;
  shirt.hemEase = 0;
  shirt.collar = 0.856;
  shirt.neckWidth = 2.0;
  return shirt;
}

TopCut jacketCut(double femininity) {
  TopCut jacket;
  jacket.ease = 1.5;
  jacket.sleeveEase = 1.5;
  jacket.sleeve = 1.87;
  jacket.hem = mix(0.475, 0.505, femininity);
  jacket.hemEase = 1.0;
  jacket.openFrom = mix(0.655, 0.640, femininity);
  jacket.lapel = 4.5;
  jacket.overlap = 1.6;
  jacket.collar = 0.842;
  jacket.neckEase = 1.3;
  jacket.neckWidth = 3.0;
  return jacket;
}

std::vector<Piece> summerDress(const BodyPtr& body) {
  TopCut top;
  top.ease = 0.75;
  top.sleeve = 0.36;
  top.sleeveEase = 0.9;
  top.sleeveFlare = 0.5;
  top.hem = 0.60;
  top.hemEase = 0;
  top.collar = 0.812;
  top.neckSlope = 0.30;
  top.neckWidth = 4.5;
  return {dressPiece(body, top, SkirtCut(), 6800)};
}

std::vector<Piece> casual(const BodyPtr& body) {
  TopCut top;
  top.ease = 1.1;
  top.sleeveEase = 1.1;
  top.sleeve = 1.80;
  top.collar = 0.822;
  top.neckSlope = 0.35;
  top.neckWidth = 2.2;
  top.rib = 4;
  return {topPiece(body, top, 0), legs(body, slim(), 1)};
}

std::vector<Piece> suit(const BodyPtr& body) {
  const Garment garment(*body);
  const TopCut shirt = shirtCut();
  TopCut jacket = jacketCut(0);
  return {topPiece(body, jacket, 0, 6400), legs(body, TrouserCut(), 0), underTop(body, shirt, 1),
          cloth(body, garment.tie(shirt, 0.62), Kind::Top, 2, 500),
          trimming(garment.buttons(jacket, 0.2, 0.575, 0.635, 2, 0.85), 3, 200)};
}

std::vector<Piece> business(const BodyPtr& body) {
  const Garment garment(*body);
  TopCut blouse = shirtCut();
  blouse.collar = 0.826;
  blouse.neckSlope = 0.45;
  blouse.neckWidth = 2.6;
  blouse.sleeve = 1.9;
  TopCut blazer = jacketCut(1);
  blazer.ease = 1.2;
  blazer.sleeveEase = 1.1;
  blazer.lapel = 3.4;
  SkirtCut skirt;
  skirt.ease = 0.8;
  skirt.flare = 1.0;
  skirt.folds = 0;
  skirt.length = 0.97;
  return {topPiece(body, blazer, 0, 6000), skirtPiece(body, skirt, 0, 3600), underTop(body, blouse, 1),
          trimming(garment.buttons(blazer, 0.2, 0.585, 0.625, 2, 0.8), 2, 200)};
}

std::vector<Piece> blouseAndSkirt(const BodyPtr& body) {
  const Garment garment(*body);
  TopCut blouse;
  blouse.ease = 0.9;
  blouse.sleeve = 0.62;
  blouse.sleeveEase = 1.1;
  blouse.sleeveFlare = 0.6;
  blouse.hem = 0.575;
  blouse.hemEase = 0;
  blouse.collar = 0.820;
  blouse.neckSlope = 0.5;
  blouse.neckWidth = 2.8;
  SkirtCut skirt;
  skirt.ease = 1.5;
  skirt.waist = 0.618;
  skirt.length = 1.04;
  skirt.flare = 9;
  skirt.folds = 1.0;
  return {topPiece(body, blouse, 0, 4800), skirtPiece(body, skirt, 1, 5800)};
}

std::vector<Piece> hoodie(const BodyPtr& body) {
  TopCut top;
  top.hood = true;
  top.collar = 0.842;
  top.neckSlope = 0.30;
  top.neckWidth = 3.0;
  top.neckEase = 1.2;
  top.ease = 1.7;
  top.sleeveEase = 1.5;
  top.sleeve = 1.92;
  top.hemEase = 0.5;
  top.rib = 5;
  TrouserCut trousers;
  trousers.hemRadius = 0.041;
  return {topPiece(body, top, 0, 6000), legs(body, trousers, 1)};
}

std::vector<Piece> coat(const BodyPtr& body) {
  const Garment garment(*body);
  const double f = body->skeleton().proportions().femininity;
  TopCut top;
  top.ease = 2.2;
  top.sleeveEase = 1.9;
  top.sleeve = 1.93;
  top.hem = 0.60;
  top.hemEase = 0;
  top.collar = 0.848;
  top.neckEase = 1.9;
  top.neckWidth = 3.2;
  top.neckSlope = 0.5;
  top.lapel = 5.0;
  top.lapelThickness = 0.7;
  top.overlap = 4.2;
  SkirtCut skirt;
  skirt.ease = 2.2;
  skirt.length = mix(0.98, 1.12, f);
  skirt.flare = mix(3.5, 5.5, f);
  skirt.folds = 0;
  skirt.overlap = 4.2;
  return {dressPiece(body, top, skirt, 7800), legs(body, f > 0.5 ? leggings() : TrouserCut(), 1),
          trimming(garment.buttons(top, 2.4, 0.545, 0.735, 4, 1.15), 2, 400)};
}

std::vector<Piece> parka(const BodyPtr& body) {
  const Garment garment(*body);
  TopCut top;
  top.ease = 2.5;
  top.sleeveEase = 2.2;
  top.sleeve = 1.95;
  top.hem = 0.485;
  top.hemEase = 0.6;
  top.collar = 0.846;
  top.neckSlope = 0.25;
  top.neckEase = 2.0;
  top.neckWidth = 3.2;
  top.hood = true;
  top.rib = 3;
  return {topPiece(body, top, 0, 6400), legs(body, slim(), 1), trimming(garment.zip(top, 0.50), 2, 700)};
}

std::vector<Piece> shirt(const BodyPtr& body) {
  const Garment garment(*body);
  TopCut top = shirtCut();
  top.ease = 0.7;
  top.hem = 0.55;
  top.collar = 0.846;
  top.openFrom = 0.775;
  top.openSlope = 0.45;
  top.lapel = 2.8;
  top.lapelThickness = 0.45;
  TrouserCut trousers = slim();
  trousers.ease = 1.1;
  trousers.hemRadius = 0.040;
  return {topPiece(body, top, 0), legs(body, trousers, 1), trimming(garment.belt(trousers), 2, 1400),
          trimming(garment.buttons(top, 0, 0.625, 0.765, 5, 0.5), 2, 250)};
}

std::vector<Piece> tee(const BodyPtr& body, const TrouserCut& trousers, double ease, double sleeve) {
  TopCut top;
  top.ease = ease;
  top.sleeve = sleeve;
  top.sleeveEase = ease + 0.1;
  top.sleeveFlare = ease > 0.6 ? 0.9 : 0.0;
  top.hem = 0.515;
  top.hemEase = ease > 0.6 ? 0.8 : 0.6;
  top.collar = 0.826;
  top.neckSlope = 0.38;
  top.neckWidth = 1.8;
  top.rib = 1.6;
  return {topPiece(body, top, 0, 5200), legs(body, trousers, 1)};
}

std::vector<Piece> teeAndShorts(const BodyPtr& body) {
  TrouserCut shorts;
  shorts.length = 0.82;
  shorts.ease = 0.9;
  shorts.thigh = 2.2;
  shorts.hemRadius = 0.052;
  shorts.hemAbove = 0;
  return tee(body, shorts, 1.0, 0.66);
}

std::vector<Piece> cardigan(const BodyPtr& body) {
  const Garment garment(*body);
  TopCut top;
  top.ease = 1.5;
  top.sleeveEase = 1.4;
  top.sleeve = 1.9;
  top.hem = 0.50;
  top.hemEase = 0.6;
  top.collar = 0.838;
  top.neckEase = 1.2;
  top.neckWidth = 3.0;
  top.openFrom = 0.69;
  top.openSlope = 0.30;
  top.lapel = 1.6;
  top.lapelThickness = 0.3;
  top.overlap = 1.2;
  top.rib = 3.5;
  TopCut below = shirtCut();
  return {topPiece(body, top, 0, 5800), legs(body, TrouserCut(), 1), underTop(body, below, 2),
          trimming(garment.buttons(top, 0, 0.53, 0.675, 4, 0.75), 3, 320)};
}

}  // namespace

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
    case Outfit::Business:
      return business(body);
    case Outfit::BlouseAndSkirt:
      return blouseAndSkirt(body);
    case Outfit::Shirt:
      return shirt(body);
    case Outfit::TeeAndTrousers:
      return tee(body, slim(), 0.9, 0.62);
    case Outfit::TeeAndShorts:
      return teeAndShorts(body);
    case Outfit::Sports:
      return tee(body, leggings(), 0.6, 0.45);
    case Outfit::Cardigan:
      return cardigan(body);
    case Outfit::Parka:
      return parka(body);
  }
  return {};
}

}  // namespace samples
