#include "samples/people/DesignParts.h"
#include "samples/people/People.h"

namespace samples {
namespace {

std::vector<OutfitDesign> outfits() {
  const Material blue = pattern("denim_blue.png");
  const Material dark = pattern("denim_dark.png");
  const auto casual = [](const Material& jumper, const Material& trousers) {
    return parts({{"Top", jumper}, {"Trousers", trousers}});
  };
  const auto business = [](const Material& cloth, const Material& blouse) {
    return parts({{"Cloth", cloth}, {"Blouse", blouse}, {"Buttons", fabric({40, 38, 40}, "", 0.3)}});
  };
  const auto coat = [](const Material& cloth, const QColor& trousers) {
    return parts({{"Cloth", cloth}, {"Trousers", fabric(trousers)}, {"Buttons", fabric({52, 40, 32}, "", 0.3)}});
  };
  std::vector<OutfitDesign> all = {
      outfit("dress", "Summer Dress", Outfit::SummerDress,
             {style("meadow", "Meadow", pattern("flowers_meadow.png", 0.85)),
              style("coral", "Coral", fabric({196, 84, 72})),
              style("marine", "Marine", pattern("stripes_marine.png", 0.85), Library::Character),
              style("velvet", "Velvet", soft({38, 92, 84}, 1.5, "weave.png"))},
             {{"ballerinas", "nude"}, {"sunhat", ""}}),
      outfit("casual", "Jeans and Jumper", Outfit::Casual,
             {style("cream", "Cream", casual(fabric({236, 224, 200}, "knit.png"), blue)),
              style("breton", "Breton", casual(pattern("stripes_breton.png"), dark)),
              style("dots", "Dots", casual(pattern("dots.png"), fabric({226, 220, 208})))},
             {{"sneakers", "white"}, {"shoulderbag", "tan"}}),
      outfit("business", "Business Costume", Outfit::Business,
             {style("navy", "Navy", business(fabric({50, 58, 84}), fabric({240, 240, 236}))),
              style("grey", "Pinstripe", business(pattern("pinstripe_grey.png"), fabric({206, 120, 112}))),
              style("check", "Glen Check", business(pattern("check_grey.png"), fabric({236, 232, 222})))},
             {{"ballerinas", "black"}, {"handbag", "night"}, {"glasses", "reading"}}),
      outfit("sports", "Sportswear", Outfit::Sports,
             {style("berry", "Berry", casual(fabric({170, 52, 96}), fabric({44, 44, 52}))),
              style("mint", "Mint", casual(fabric({140, 198, 176}), fabric({52, 62, 74}))),
              style("stripes", "Stripes", casual(pattern("stripes_grey.png"), fabric({36, 36, 40})))},
             {{"sneakers", "teal"}, {"headphones", ""}}),
      outfit("coat", "Winter Coat", Outfit::Coat,
             {style("camel", "Camel", coat(fabric({168, 128, 88}, "felt.png", 0.95), {48, 46, 50})),
              style("wine", "Wine", coat(soft({112, 34, 46}, 2.0, "felt.png"), {38, 38, 42})),
              style("tartan", "Tartan", coat(pattern("tartan_green.png", 0.95), {34, 44, 40}))},
             {{"boots", "brown"}, {"scarf", "rust"}}),
      outfit("raincoat", "Raincoat", Outfit::Coat,
             {style("yellow", "Yellow", coat(fabric({226, 178, 44}, "", 0.35), {52, 60, 84}))}, {{"boots", "black"}})};
  all[4].excludes = {"sunhat"};
  all.back().hasFolder = false;
  return all;
}

std::vector<AssetDesign> assets() {
  std::vector<AssetDesign> all = {
      worn("ballerinas", "Ballerinas", "shoes", Worn::Ballerinas,
           {twoTone("nude", "Nude", {168, 112, 84}, {92, 70, 58}, "leather.png", 0.45),
            twoTone("red", "Red", {176, 40, 44}, {60, 40, 38}, "leather.png", 0.3),
            twoTone("black", "Black", {36, 34, 36}, {24, 22, 22}, "leather.png", 0.25)}),
      worn("sneakers", "Sneakers", "shoes", Worn::Sneakers,
           {twoTone("white", "White", {232, 232, 230}, {246, 246, 244}, "leather.png"),
            twoTone("teal", "Teal", {54, 116, 122}, {240, 238, 232}, "leather.png")}),
      worn("boots", "Boots", "shoes", Worn::Boots,
           {twoTone("brown", "Brown", {108, 66, 40}, {40, 30, 26}, "leather.png", 0.4),
            twoTone("black", "Black", {38, 36, 38}, {22, 22, 22}, "leather.png", 0.3)}),
      prop("handbag", "Handbag", "hand", Prop::Handbag,
           {twoTone("cognac", "Cognac", {122, 72, 44}, {206, 178, 110}, "leather.png"),
            twoTone("night", "Night", {38, 42, 60}, {206, 206, 210}, "leather.png")}),
      prop("book", "Book", "hand", Prop::Book,
           {twoTone("red", "Red", {150, 40, 38}, {236, 230, 214}, "leather.png"),
            twoTone("blue", "Blue", {44, 72, 118}, {236, 230, 214}, "leather.png")}),
      worn("shoulderbag", "Shoulder Bag", "bags", Worn::ShoulderBag,
           {twoTone("tan", "Tan", {158, 104, 62}, {96, 60, 38}, "leather.png"),
            twoTone("olive", "Olive", {92, 96, 66}, {60, 52, 40}, "weave.png")}),
      prop("sunhat", "Sun Hat", "headwear", Prop::SunHat, {twoTone("", "", Qt::white, {44, 52, 78}, "straw.png")}),
      prop("headphones", "Headphones", "headwear", Prop::Headphones,
           {twoTone("", "", {226, 220, 214}, {74, 66, 62}, "")}),
      worn("scarf", "Scarf", "accessories", Worn::Scarf,
           {twoTone("rust", "Rust", {182, 84, 48}, {182, 84, 48}, "knit.png", 0.95),
            style("tartan", "Tartan", pattern("tartan_green.png", 0.95))}),
      glasses(),
      stool({198, 152, 102})};
  for (AssetDesign& asset : sharedAssets()) all.push_back(std::move(asset));
  return all;
}

}  // namespace

CharacterDesign annaDesign() {
  CharacterDesign anna;
  anna.key = "anna";
  anna.name = "Anna";
  anna.proportions.stature = 168;
  anna.proportions.femininity = 1;
  anna.proportions.muscle = 0.35;
  anna.proportions.fullness = 0.3;
  anna.hair = HairStyle::Bob;
  anna.skins = {{"light", "Light", face({216, 168, 142}, {180, 84, 80}, {104, 70, 46}, {74, 112, 132}), {112, 70, 44}},
                {"medium", "Medium", face({184, 128, 96}, {156, 74, 66}, {58, 38, 28}, {96, 66, 40}), {52, 34, 26}},
                {"dark", "Dark", face({112, 72, 52}, {126, 58, 54}, {28, 20, 18}, {58, 38, 26}), {26, 22, 22}}};
  for (SkinDesign& skin : anna.skins) {
    skin.face.lashes = true;
    skin.face.age = 0.25;
  }
  anna.outfits = outfits();
  anna.categories = usualCategories();
  anna.assets = assets();
  anna.seat = "stool";
  anna.post = "lamp";
  return anna;
}

}  // namespace samples
