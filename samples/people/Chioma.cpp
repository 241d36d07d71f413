#include "samples/people/DesignParts.h"
#include "samples/people/People.h"

namespace samples {
namespace {

std::vector<OutfitDesign> outfits() {
  const auto two = [](const Material& top, const Material& below) { return parts({{"Top", top}, {"Below", below}}); };
  const auto parka = [](const Material& cloth, const Material& trousers) {
    return parts({{"Cloth", cloth}, {"Trousers", trousers}, {"Zip", fabric({182, 182, 186}, "", 0.3)}});
  };
  const auto business = [](const Material& cloth, const Material& blouse) {
    return parts({{"Cloth", cloth}, {"Blouse", blouse}, {"Buttons", fabric({200, 176, 116}, "", 0.3)}});
  };
  std::vector<OutfitDesign> all = {
      outfit("skirt", "Blouse and Skirt", Outfit::BlouseAndSkirt,
             {style("sunrise", "Sunrise", two(fabric({244, 236, 220}), pattern("flowers_sunrise.png"))),
              style("checks", "Checks", two(fabric({52, 62, 92}), pattern("check_sand.png"))),
              style("denim", "Denim", two(pattern("dots.png"), pattern("denim_blue.png")))},
             {{"ballerinas", "gold"}, {"handbag", "yellow"}}),
      outfit("dress", "Summer Dress", Outfit::SummerDress,
             {style("sunrise", "Sunrise", pattern("flowers_sunrise.png", 0.85)),
              style("turquoise", "Turquoise", fabric({36, 148, 150})),
              style("silk", "Silk", soft({214, 148, 52}, 1.0, "weave.png"))},
             {{"ballerinas", "gold"}, {"sunhat", ""}}),
      outfit("business", "Business Costume", Outfit::Business,
             {style("sand", "Sand", business(fabric({196, 178, 150}), fabric({248, 244, 236}))),
              style("plum", "Plum", business(fabric({92, 48, 76}), fabric({232, 214, 206}))),
              style("pinstripe", "Pinstripe", business(pattern("pinstripe_grey.png"), fabric({240, 240, 240})))},
             {{"ballerinas", "black"}, {"handbag", "black"}}),
      outfit("sports", "Sportswear", Outfit::Sports,
             {style("violet", "Violet", two(fabric({116, 84, 168}), fabric({40, 38, 52}))),
              style("lime", "Lime", two(fabric({172, 196, 72}), fabric({48, 52, 56}))),
              style("stripes", "Stripes", two(pattern("stripes_grey.png"), fabric({92, 40, 60})))},
             {{"sneakers", "coral"}, {"headphones", ""}}),
      outfit("parka", "Parka", Outfit::Parka,
             {style("olive", "Olive", parka(fabric({92, 96, 64}), pattern("denim_dark.png"))),
              style("red", "Red", parka(fabric({176, 44, 44}), pattern("denim_blue.png"))),
              style("quilt", "Quilted", parka(pattern("quilt_silver.png", 0.5), fabric({44, 44, 48})))},
             {{"boots", "tan"}})};
  all.back().excludes = {"sunhat", "headphones"};
  return all;
}

std::vector<AssetDesign> assets() {
  std::vector<AssetDesign> all = {
      worn("ballerinas", "Ballerinas", "shoes", Worn::Ballerinas,
           {twoTone("gold", "Gold", {206, 166, 84}, {110, 80, 48}, "leather.png", 0.3),
            twoTone("black", "Black", {36, 34, 36}, {24, 22, 22}, "leather.png", 0.25)}),
      worn("sneakers", "Sneakers", "shoes", Worn::Sneakers,
           {twoTone("coral", "Coral", {226, 108, 92}, {246, 246, 244}, "leather.png"),
            twoTone("white", "White", {232, 232, 230}, {246, 246, 244}, "leather.png")}),
      worn("boots", "Boots", "shoes", Worn::Boots,
           {twoTone("tan", "Tan", {170, 122, 74}, {70, 52, 40}, "leather.png", 0.5),
            twoTone("black", "Black", {38, 36, 38}, {22, 22, 22}, "leather.png", 0.3)}),
      prop("handbag", "Handbag", "hand", Prop::Handbag,
           {twoTone("yellow", "Yellow", {222, 176, 62}, {206, 178, 110}, "leather.png"),
            twoTone("black", "Black", {36, 34, 38}, {206, 178, 110}, "leather.png")}),
      prop("phone", "Phone", "hand", Prop::Phone,
           {twoTone("black", "Black", {26, 26, 30}, {60, 84, 120}, "", 0.2),
            twoTone("rose", "Rose", {222, 176, 168}, {30, 32, 40}, "", 0.2)}),
      worn("shoulderbag", "Shoulder Bag", "bags", Worn::ShoulderBag,
           {twoTone("white", "White", {236, 230, 220}, {170, 120, 76}, "leather.png"),
            twoTone("denim", "Denim", {70, 92, 134}, {44, 52, 70}, "weave.png")}),
      prop("sunhat", "Sun Hat", "headwear", Prop::SunHat, {twoTone("", "", Qt::white, {198, 74, 60}, "straw.png")}),
      prop("headphones", "Headphones", "headwear", Prop::Headphones,
           {twoTone("", "", {214, 92, 84}, {44, 40, 44}, "")}),
      glasses(),
      stool({156, 106, 70})};
  for (AssetDesign& asset : sharedAssets()) all.push_back(std::move(asset));
  return all;
}

}  // namespace

CharacterDesign chiomaDesign() {
  CharacterDesign chioma;
  chioma.key = "chioma";
  chioma.name = "Chioma";
  chioma.proportions.stature = 181;
  chioma.proportions.heads = 7.9;
  chioma.proportions.femininity = 0.9;
  chioma.proportions.muscle = 0.3;
  chioma.proportions.fullness = -0.2;
  chioma.hair = HairStyle::Bun;
  chioma.skins = {{"dark", "Dark", face({104, 66, 46}, {134, 60, 58}, {26, 20, 18}, {48, 32, 24}), {26, 22, 22}},
                  {"bronze", "Bronze", face({152, 100, 70}, {150, 72, 66}, {40, 28, 22}, {70, 46, 30}), {44, 30, 24}},
                  {"pale", "Pale", face({228, 186, 164}, {190, 92, 90}, {150, 98, 62}, {86, 120, 96}), {178, 112, 62}}};
  for (SkinDesign& skin : chioma.skins) skin.face.lashes = true;
  chioma.outfits = outfits();
  chioma.categories = usualCategories();
  chioma.assets = assets();
  chioma.seat = "stool";
  chioma.post = "lamp";
  return chioma;
}

}  // namespace samples
