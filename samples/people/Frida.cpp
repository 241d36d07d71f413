#include "samples/people/DesignParts.h"
#include "samples/people/People.h"

namespace samples {
namespace {

std::vector<OutfitDesign> outfits() {
  const auto two = [](const Material& top, const Material& below) { return parts({{"Top", top}, {"Below", below}}); };
  const auto parka = [](const Material& cloth, const Material& trousers) {
    return parts({{"Cloth", cloth}, {"Trousers", trousers}, {"Zip", fabric({230, 228, 220}, "", 0.4)}});
  };
  std::vector<OutfitDesign> all = {
      outfit("tee", "T-Shirt and Shorts", Outfit::TeeAndShorts,
             {style("rainbow", "Rainbow", two(pattern("stripes_rainbow.png"), pattern("denim_blue.png"))),
              style("mint", "Mint", two(fabric({150, 210, 186}), fabric({92, 84, 132}))),
              style("dots", "Dots", two(pattern("dots_red.png"), fabric({60, 66, 96})))},
             {{"sneakers", "pink"}, {"cap", "yellow"}}),
      outfit("dress", "Summer Dress", Outfit::SummerDress,
             {style("daisies", "Daisies", pattern("flowers_daisies.png", 0.85)),
              style("dots", "Dots", pattern("dots_red.png", 0.85)),
              style("sky", "Sky", soft({120, 172, 214}, 1.0, "weave.png"))},
             {{"ballerinas", "red"}, {"teddy", "honey"}}),
      outfit("casual", "Jeans and Jumper", Outfit::Casual,
             {style("pink", "Pink", two(fabric({222, 138, 152}, "knit.png"), pattern("denim_blue.png"))),
              style("breton", "Breton", two(pattern("stripes_breton.png"), pattern("denim_dark.png"))),
              style("yellow", "Yellow", two(fabric({232, 188, 74}, "knit.png"), pattern("check_blue.png")))},
             {{"sneakers", "blue"}, {"backpack", "turquoise"}}),
      outfit("parka", "Winter Jacket", Outfit::Parka,
             {style("red", "Red", parka(fabric({200, 52, 52}), pattern("denim_dark.png"))),
              style("quilt", "Quilted", parka(pattern("quilt_blue.png", 0.5), fabric({52, 50, 66}))),
              style("flowers", "Flowers", parka(pattern("flowers_meadow.png"), fabric({118, 64, 92})))},
             {{"boots", "blue"}, {"scarf", "stripes"}})};
  all.back().excludes = {"cap"};
  return all;
}

std::vector<AssetDesign> assets() {
  std::vector<AssetDesign> all = {
      worn("sneakers", "Sneakers", "shoes", Worn::Sneakers,
           {twoTone("pink", "Pink", {224, 120, 150}, {246, 246, 244}, "leather.png"),
            twoTone("blue", "Blue", {64, 110, 176}, {246, 246, 244}, "leather.png")}),
      worn("ballerinas", "Ballerinas", "shoes", Worn::Ballerinas,
           {twoTone("red", "Red", {186, 44, 48}, {80, 50, 44}, "leather.png", 0.3),
            twoTone("white", "White", {238, 234, 228}, {140, 110, 90}, "leather.png", 0.35)}),
      worn("boots", "Rubber Boots", "shoes", Worn::Boots,
           {twoTone("blue", "Blue", {46, 92, 160}, {236, 196, 70}, "", 0.2),
            twoTone("yellow", "Yellow", {234, 188, 52}, {70, 66, 64}, "", 0.2)}),
      prop("teddy", "Teddy Bear", "hand", Prop::Teddy,
           {twoTone("honey", "Honey", {186, 134, 78}, {56, 40, 32}, "felt.png", 0.95),
            twoTone("white", "White", {232, 226, 216}, {70, 62, 62}, "felt.png", 0.95)}),
      prop("balloon", "Balloon", "hand", Prop::Balloon,
           {twoTone("red", "Red", {208, 42, 48}, {240, 240, 240}, "", 0.15),
            twoTone("blue", "Blue", {48, 110, 200}, {240, 240, 240}, "", 0.15)}),
      worn("backpack", "Backpack", "bags", Worn::Backpack,
           {twoTone("turquoise", "Turquoise", {52, 160, 164}, {232, 130, 70}, "weave.png", 0.8),
            twoTone("pink", "Pink", {222, 108, 148}, {90, 70, 120}, "weave.png", 0.8)}),
      prop("cap", "Baseball Cap", "headwear", Prop::BaseballCap,
           {twoTone("yellow", "Yellow", {236, 190, 66}, {62, 110, 170}, "weave.png", 0.9),
            twoTone("red", "Red", {200, 52, 52}, {240, 236, 228}, "weave.png", 0.9)}),
      worn("scarf", "Scarf", "accessories", Worn::Scarf,
           {style("stripes", "Stripes", pattern("stripes_rainbow.png", 0.95)),
            twoTone("white", "White", {238, 234, 226}, {238, 234, 226}, "knit.png", 0.95)}),
      glasses(),
      stool({206, 166, 118})};
  for (AssetDesign& asset : sharedAssets()) all.push_back(std::move(asset));
  return all;
}

}  // namespace

CharacterDesign fridaDesign() {
  CharacterDesign frida;
  frida.key = "frida";
  frida.name = "Frida";
  frida.proportions.stature = 131;
  frida.proportions.heads = 6.1;
  frida.proportions.femininity = 0.1;
  frida.proportions.muscle = 0.1;
  frida.proportions.fullness = 0;
  frida.hair = HairStyle::Ponytail;
  frida.skins = {
      {"freckled", "Freckled", face({226, 180, 154}, {196, 104, 98}, {170, 110, 66}, {92, 134, 112}), {188, 110, 58}},
      {"golden", "Golden", face({206, 156, 120}, {176, 92, 84}, {60, 42, 30}, {90, 62, 40}), {58, 38, 28}},
      {"brown", "Brown", face({122, 80, 58}, {138, 70, 64}, {30, 22, 18}, {56, 38, 26}), {30, 24, 22}}};
  for (SkinDesign& skin : frida.skins) skin.face.lashes = true;
  frida.skins.front().face.freckles = 1;
  frida.outfits = outfits();
  frida.categories = usualCategories();
  frida.assets = assets();
  frida.seat = "stool";
  frida.post = "lamp";
  return frida;
}

}  // namespace samples
