#include "samples/people/DesignParts.h"
#include "samples/people/People.h"

namespace samples {
namespace {

std::vector<OutfitDesign> outfits() {
  const auto two = [](const Material& top, const Material& below) { return parts({{"Top", top}, {"Below", below}}); };
  const auto suit = [](const Material& cloth, const QColor& shirt, const Material& tie) {
    return parts(
        {{"Cloth", cloth}, {"Shirt", fabric(shirt)}, {"Tie", tie}, {"Buttons", fabric({36, 34, 38}, "", 0.3)}});
  };
  const auto parka = [](const Material& cloth, const Material& trousers) {
    return parts({{"Cloth", cloth}, {"Trousers", trousers}, {"Zip", fabric({60, 60, 64}, "", 0.3)}});
  };
  std::vector<OutfitDesign> all = {
      outfit("tee", "T-Shirt and Jeans", Outfit::TeeAndTrousers,
             {style("white", "White", two(fabric({238, 238, 236}), pattern("denim_blue.png"))),
              style("stripes", "Stripes", two(pattern("stripes_marine.png"), pattern("denim_dark.png"))),
              style("mustard", "Mustard", two(fabric({204, 156, 58}), fabric({70, 62, 54})))},
             {{"sneakers", "white"}, {"glasses", "sun"}}),
      outfit("sports", "Sportswear", Outfit::TeeAndShorts,
             {style("blue", "Blue", two(fabric({36, 82, 156}), fabric({32, 36, 52}))),
              style("red", "Red", two(fabric({190, 46, 42}), fabric({240, 240, 240}))),
              style("check", "Check", two(fabric({232, 228, 218}), pattern("check_blue.png")))},
             {{"sneakers", "red"}, {"dumbbell", "black"}}),
      outfit("hoodie", "Hoodie and Jeans", Outfit::Hoodie,
             {style("black", "Black", two(fabric({50, 50, 54}, "knit.png"), pattern("denim_blue.png"))),
              style("orange", "Orange", two(fabric({210, 106, 48}, "knit.png"), pattern("denim_dark.png"))),
              style("fleece", "Fleece", two(soft({82, 110, 140}, 2.4, "felt.png"), fabric({132, 122, 104})))},
             {{"sneakers", "white"}, {"backpack", "graphite"}}),
      outfit("suit", "Suit", Outfit::Suit,
             {style("blue", "Blue", suit(fabric({44, 66, 116}), {244, 244, 246}, fabric({120, 40, 60}))),
              style("grey", "Pinstripe", suit(pattern("pinstripe_grey.png"), {236, 238, 242}, fabric({50, 62, 92}))),
              style("sand", "Linen", suit(fabric({206, 190, 160}), {246, 246, 242}, fabric({92, 108, 92})))},
             {{"oxfords", "black"}, {"briefcase", "black"}}),
      outfit("parka", "Winter Jacket", Outfit::Parka,
             {style("navy", "Navy", parka(fabric({42, 54, 84}), pattern("denim_dark.png"))),
              style("quilt", "Quilted", parka(pattern("quilt_black.png", 0.4), pattern("denim_blue.png"))),
              style("khaki", "Khaki", parka(fabric({130, 118, 84}), fabric({56, 54, 52})))},
             {{"boots", "tan"}})};
  all[2].excludes = {"cap"};
  all[4].excludes = {"cap"};
  return all;
}

std::vector<AssetDesign> assets() {
  std::vector<AssetDesign> all = {
      worn("sneakers", "Sneakers", "shoes", Worn::Sneakers,
           {twoTone("white", "White", {232, 232, 230}, {246, 246, 244}, "leather.png"),
            twoTone("red", "Red", {184, 44, 42}, {240, 238, 232}, "leather.png")}),
      worn("oxfords", "Oxfords", "shoes", Worn::Oxfords,
           {twoTone("black", "Black", {34, 32, 34}, {24, 22, 22}, "leather.png", 0.2),
            twoTone("cognac", "Cognac", {138, 84, 48}, {52, 36, 28}, "leather.png", 0.25)}),
      worn("boots", "Boots", "shoes", Worn::Boots,
           {twoTone("tan", "Tan", {184, 136, 82}, {66, 50, 40}, "leather.png", 0.6),
            twoTone("black", "Black", {40, 38, 38}, {22, 22, 22}, "leather.png", 0.35)}),
      prop("dumbbell", "Dumbbell", "hand", Prop::Dumbbell,
           {twoTone("black", "Black", {44, 44, 48}, {178, 180, 184}, "", 0.6),
            twoTone("blue", "Blue", {48, 84, 150}, {178, 180, 184}, "", 0.6)}),
      prop("briefcase", "Briefcase", "hand", Prop::Briefcase,
           {twoTone("black", "Black", {40, 38, 40}, {196, 196, 200}, "leather.png"),
            twoTone("tan", "Tan", {160, 112, 70}, {204, 178, 116}, "leather.png")}),
      prop("phone", "Phone", "hand", Prop::Phone, {twoTone("", "", {30, 30, 34}, {60, 96, 120}, "", 0.2)}),
      worn("backpack", "Backpack", "bags", Worn::Backpack,
           {twoTone("graphite", "Graphite", {70, 74, 82}, {34, 36, 40}, "weave.png", 0.8),
            twoTone("green", "Green", {74, 110, 84}, {48, 46, 46}, "weave.png", 0.8)}),
      prop("cap", "Baseball Cap", "headwear", Prop::BaseballCap,
           {twoTone("navy", "Navy", {40, 50, 80}, {190, 50, 46}, "weave.png", 0.9),
            twoTone("white", "White", {236, 234, 228}, {60, 90, 130}, "weave.png", 0.9)}),
      prop("headphones", "Headphones", "headwear", Prop::Headphones,
           {twoTone("", "", {40, 40, 44}, {184, 48, 44}, "")}),
      glasses(),
      stool({168, 128, 88})};
  for (AssetDesign& asset : sharedAssets()) all.push_back(std::move(asset));
  return all;
}

}  // namespace

CharacterDesign emreDesign() {
  CharacterDesign emre;
  emre.key = "emre";
  emre.name = "Emre";
  emre.proportions.stature = 186;
  emre.proportions.heads = 7.7;
  emre.proportions.muscle = 1.2;
  emre.proportions.shoulders = 1.07;
  emre.proportions.fullness = -0.1;
  emre.hair = HairStyle::Curly;
  emre.skins = {{"olive", "Olive", face({196, 144, 108}, {160, 92, 80}, {34, 26, 22}, {78, 54, 34}), {34, 27, 24}},
                {"fair", "Fair", face({222, 174, 148}, {182, 104, 96}, {150, 106, 62}, {84, 122, 150}), {176, 130, 78}},
                {"dark", "Dark", face({98, 64, 46}, {114, 62, 54}, {22, 18, 16}, {44, 30, 22}), {22, 20, 20}}};
  emre.skins[0].face.beard = 0.8;
  emre.skins[1].face.beard = 0.1;
  emre.skins[2].face.beard = 0.5;
  emre.outfits = outfits();
  emre.categories = usualCategories();
  emre.assets = assets();
  emre.seat = "stool";
  emre.post = "lamp";
  return emre;
}

}  // namespace samples
