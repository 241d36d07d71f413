#include "samples/people/DesignParts.h"
#include "samples/people/People.h"

namespace samples {
namespace {

std::vector<OutfitDesign> outfits() {
  const Material horn = fabric({70, 52, 38}, "", 0.3);
  const auto suit = [&](const Material& cloth, const QColor& shirt, const Material& tie) {
    return parts({{"Cloth", cloth}, {"Shirt", fabric(shirt)}, {"Tie", tie}, {"Buttons", horn}});
  };
  const auto cardigan = [&](const Material& wool, const Material& trousers, const Material& shirt) {
    return parts({{"Cardigan", wool}, {"Trousers", trousers}, {"Shirt", shirt}, {"Buttons", horn}});
  };
  const auto shirt = [](const Material& top, const Material& trousers, const QColor& belt) {
    return parts({{"Shirt", top}, {"Trousers", trousers}, {"Belt", fabric(belt, "", 0.4)}});
  };
  const auto coat = [&](const Material& cloth, const QColor& trousers) {
    return parts({{"Cloth", cloth}, {"Trousers", fabric(trousers)}, {"Buttons", horn}});
  };
  return {outfit("cardigan", "Cardigan", Outfit::Cardigan,
                 {style("moss", "Moss",
                        cardigan(fabric({98, 104, 72}, "knit.png", 0.95), fabric({112, 98, 82}),
                                 pattern("stripes_shirt.png"))),
                  style("burgundy", "Burgundy",
                        cardigan(soft({112, 42, 50}, 1.4, "knit.png"), fabric({74, 74, 80}), fabric({236, 234, 228}))),
                  style("argyle", "Check",
                        cardigan(pattern("check_sand.png", 0.95), fabric({66, 58, 52}), fabric({190, 204, 220})))},
                 {{"oxfords", "brown"}, {"glasses", "reading"}}),
          outfit("suit", "Tweed Suit", Outfit::Suit,
                 {style("tweed", "Tweed", suit(pattern("tweed.png", 0.95), {238, 232, 216}, fabric({112, 40, 44}))),
                  style("glen", "Glen Check", suit(pattern("check_grey.png"), {232, 236, 242}, fabric({44, 60, 92}))),
                  style("black", "Black", suit(fabric({46, 46, 50}), {244, 244, 244}, fabric({38, 38, 42})))},
                 {{"oxfords", "black"}, {"fedora", ""}}),
          outfit("shirt", "Shirt and Trousers", Outfit::Shirt,
                 {style("check", "Check", shirt(pattern("check_blue.png"), fabric({126, 112, 92}), {82, 56, 38})),
                  style("white", "White", shirt(fabric({240, 238, 232}), fabric({84, 88, 98}), {44, 38, 34})),
                  style("denim", "Denim", shirt(pattern("denim_blue.png"), fabric({176, 160, 132}), {96, 62, 40}))},
                 {{"oxfords", "brown"}}),
          outfit("coat", "Winter Coat", Outfit::Coat,
                 {style("navy", "Navy", coat(fabric({48, 56, 80}, "felt.png", 0.95), {60, 60, 66})),
                  style("loden", "Loden", coat(soft({70, 84, 62}, 2.0, "felt.png"), {74, 64, 54})),
                  style("tweed", "Tweed", coat(pattern("tweed.png", 0.95), {60, 54, 50}))},
                 {{"boots", "brown"}, {"scarf", "grey"}, {"cap", "tweed"}})};
}

std::vector<AssetDesign> assets() {
  std::vector<AssetDesign> all = {
      worn("oxfords", "Oxfords", "shoes", Worn::Oxfords,
           {twoTone("brown", "Brown", {104, 62, 36}, {48, 32, 24}, "leather.png", 0.25),
            twoTone("black", "Black", {34, 32, 34}, {24, 22, 22}, "leather.png", 0.2)}),
      worn("boots", "Boots", "shoes", Worn::Boots,
           {twoTone("brown", "Brown", {96, 60, 40}, {40, 30, 26}, "leather.png", 0.4),
            twoTone("black", "Black", {40, 38, 38}, {22, 22, 22}, "leather.png", 0.35)}),
      prop("cane", "Walking Stick", "hand", Prop::Cane,
           {twoTone("cherry", "Cherry", {120, 66, 44}, {40, 36, 34}, "wood.png", 0.4),
            twoTone("black", "Black", {44, 40, 40}, {190, 190, 194}, "wood.png", 0.3)}),
      prop("book", "Book", "hand", Prop::Book,
           {twoTone("green", "Green", {48, 84, 62}, {236, 230, 214}, "leather.png"),
            twoTone("brown", "Brown", {116, 76, 48}, {236, 230, 214}, "leather.png")}),
      worn("shoulderbag", "Shoulder Bag", "bags", Worn::ShoulderBag,
           {twoTone("brown", "Brown", {118, 80, 52}, {80, 54, 38}, "leather.png"),
            twoTone("canvas", "Canvas", {170, 158, 128}, {96, 66, 42}, "weave.png")}),
      prop("fedora", "Fedora", "headwear", Prop::Fedora, {twoTone("", "", {74, 66, 58}, {34, 30, 28}, "felt.png")}),
      prop("cap", "Flat Cap", "headwear", Prop::FlatCap,
           {style("tweed", "Tweed", pattern("tweed.png", 0.95)),
            style("grey", "Grey", fabric({104, 106, 112}, "felt.png"))}),
      worn("scarf", "Scarf", "accessories", Worn::Scarf,
           {twoTone("grey", "Grey", {136, 138, 144}, {136, 138, 144}, "knit.png", 0.95),
            style("tartan", "Tartan", pattern("tartan_green.png", 0.95))}),
      glasses(),
      stool({104, 70, 48})};
  for (AssetDesign& asset : sharedAssets()) all.push_back(std::move(asset));
  return all;
}

}  // namespace

CharacterDesign dimitriDesign() {
  CharacterDesign dimitri;
  dimitri.key = "dimitri";
  dimitri.name = "Dimitri";
  dimitri.proportions.stature = 172;
  dimitri.proportions.heads = 7.4;
  dimitri.proportions.muscle = 0.25;
  dimitri.proportions.fullness = 0.2;
  dimitri.proportions.belly = 0.3;
  dimitri.proportions.stoop = 0.7;
  dimitri.hair = HairStyle::Receding;
  dimitri.skins = {
      {"rosy", "Rosy", face({218, 168, 146}, {174, 104, 96}, {196, 192, 186}, {96, 126, 146}), {206, 204, 200}},
      {"tanned", "Tanned", face({182, 130, 98}, {150, 88, 76}, {150, 146, 140}, {80, 60, 42}), {168, 164, 160}},
      {"brown", "Brown", face({120, 80, 58}, {120, 70, 62}, {142, 138, 132}, {56, 40, 30}), {188, 186, 182}}};
  for (SkinDesign& skin : dimitri.skins) {
    skin.face.beard = 0.55;
    skin.face.age = 1;
  }
  dimitri.outfits = outfits();
  dimitri.categories = usualCategories();
  dimitri.assets = assets();
  dimitri.seat = "stool";
  dimitri.post = "lamp";
  return dimitri;
}

}  // namespace samples
