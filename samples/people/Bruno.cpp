#include "samples/people/DesignParts.h"
#include "samples/people/People.h"

namespace samples {
namespace {

std::vector<OutfitDesign> outfits() {
  const Material horn = fabric({44, 36, 30}, "", 0.3);
  const auto suit = [&](const Material& cloth, const QColor& shirt, const Material& tie) {
    return parts({{"Cloth", cloth}, {"Shirt", fabric(shirt)}, {"Tie", tie}, {"Buttons", horn}});
  };
  const auto two = [](const Material& top, const Material& trousers) {
    return parts({{"Top", top}, {"Trousers", trousers}});
  };
  const auto shirt = [](const Material& top, const Material& trousers, const QColor& belt) {
    return parts({{"Shirt", top}, {"Trousers", trousers}, {"Belt", fabric(belt, "", 0.4)}});
  };
  const auto coat = [&](const Material& cloth, const QColor& trousers) {
    return parts({{"Cloth", cloth}, {"Trousers", fabric(trousers)}, {"Buttons", horn}});
  };
  const Material chinos = fabric({162, 142, 112});
  std::vector<OutfitDesign> all = {
      outfit(
          "suit", "Business Suit", Outfit::Suit,
          {style("charcoal", "Charcoal", suit(fabric({74, 78, 88}), {240, 242, 246}, pattern("tie_claret.png", 0.6))),
           style("pinstripe", "Pinstripe", suit(pattern("pinstripe.png"), {214, 226, 244}, fabric({188, 172, 120}))),
           style("tweed", "Tweed", suit(pattern("tweed.png", 0.95), {238, 232, 216}, fabric({52, 84, 66}))),
           style("velvet", "Velvet", suit(soft({58, 38, 62}, 1.2, "felt.png"), {236, 236, 240}, fabric({30, 28, 32})))},
          {{"oxfords", "black"}, {"briefcase", "cognac"}}),
      outfit("hoodie", "Hoodie and Chinos", Outfit::Hoodie,
             {style("sage", "Sage", two(fabric({100, 124, 106}, "knit.png"), chinos)),
              style("check", "Check", two(pattern("check_red.png"), pattern("denim_dark.png"))),
              style("grey", "Grey", two(fabric({158, 162, 168}, "knit.png"), pattern("denim_blue.png")))},
             {{"sneakers", "white"}}),
      outfit("shirt", "Shirt and Jeans", Outfit::Shirt,
             {style("sky", "Sky", shirt(fabric({156, 186, 214}), pattern("denim_dark.png"), {92, 58, 36})),
              style("lumber", "Lumberjack", shirt(pattern("check_red.png"), pattern("denim_blue.png"), {70, 46, 32})),
              style("stripes", "Stripes", shirt(pattern("stripes_shirt.png"), fabric({64, 66, 74}), {40, 36, 34}))},
             {{"oxfords", "brown"}, {"glasses", "sun"}}),
      outfit("coat", "Winter Coat", Outfit::Coat,
             {style("graphite", "Graphite", coat(fabric({66, 68, 74}, "felt.png", 0.95), {50, 52, 58})),
              style("camel", "Camel", coat(soft({156, 118, 82}, 1.6, "felt.png"), {58, 50, 46})),
              style("herringbone", "Herringbone", coat(pattern("tweed.png", 0.95), {44, 44, 48}))},
             {{"boots", "black"}, {"scarf", "claret"}, {"fedora", ""}})};
  all[1].excludes = {"fedora"};
  all[1].missingPose = "sitting";
  return all;
}

std::vector<AssetDesign> assets() {
  std::vector<AssetDesign> all = {
      worn("oxfords", "Oxfords", "shoes", Worn::Oxfords,
           {twoTone("black", "Black", {34, 32, 34}, {24, 22, 22}, "leather.png", 0.2),
            twoTone("brown", "Brown", {104, 62, 36}, {48, 32, 24}, "leather.png", 0.25)}),
      worn("sneakers", "Sneakers", "shoes", Worn::Sneakers,
           {twoTone("white", "White", {228, 228, 226}, {246, 246, 244}, "leather.png"),
            twoTone("navy", "Navy", {44, 58, 96}, {240, 238, 232}, "leather.png")}),
      worn("boots", "Boots", "shoes", Worn::Boots,
           {twoTone("black", "Black", {40, 38, 38}, {22, 22, 22}, "leather.png", 0.35),
            twoTone("tan", "Tan", {156, 112, 68}, {62, 48, 38}, "leather.png", 0.5)}),
      prop("briefcase", "Briefcase", "hand", Prop::Briefcase,
           {twoTone("cognac", "Cognac", {112, 68, 42}, {204, 178, 116}, "leather.png"),
            twoTone("black", "Black", {40, 38, 40}, {196, 196, 200}, "leather.png")}),
      prop("shopping", "Shopping Bag", "hand", Prop::ShoppingBag,
           {twoTone("kraft", "Kraft", {178, 140, 98}, {236, 228, 212}, "weave.png", 0.9),
            twoTone("green", "Green", {66, 112, 84}, {236, 228, 212}, "weave.png", 0.9)}),
      worn("backpack", "Backpack", "bags", Worn::Backpack,
           {twoTone("graphite", "Graphite", {70, 74, 82}, {34, 36, 40}, "weave.png", 0.8),
            twoTone("orange", "Orange", {204, 108, 44}, {48, 46, 46}, "weave.png", 0.8)}),
      prop("fedora", "Fedora", "headwear", Prop::Fedora, {twoTone("", "", {96, 90, 84}, {34, 32, 34}, "felt.png")}),
      prop("headphones", "Headphones", "headwear", Prop::Headphones,
           {twoTone("", "", {210, 212, 216}, {40, 40, 44}, "")}),
      worn("scarf", "Scarf", "accessories", Worn::Scarf,
           {twoTone("claret", "Claret", {124, 36, 44}, {124, 36, 44}, "knit.png", 0.95),
            style("check", "Check", pattern("check_grey.png", 0.95))}),
      glasses(),
      stool({128, 86, 56})};
  for (AssetDesign& asset : sharedAssets()) all.push_back(std::move(asset));
  return all;
}

}  // namespace

CharacterDesign brunoDesign() {
  CharacterDesign bruno;
  bruno.key = "bruno";
  bruno.name = "Bruno";
  bruno.proportions.stature = 179;
  bruno.proportions.muscle = 0.55;
  bruno.proportions.fullness = 1;
  bruno.proportions.belly = 0.9;
  bruno.skins = {{"fair", "Fair", face({208, 158, 130}, {176, 104, 92}, {92, 62, 42}, {72, 104, 88}), {76, 52, 36}},
                 {"olive", "Olive", face({174, 122, 90}, {146, 82, 70}, {40, 30, 26}, {84, 58, 36}), {36, 28, 24}},
                 {"deep", "Deep", face({94, 62, 46}, {112, 62, 56}, {22, 18, 18}, {46, 32, 24}), {22, 20, 20}}};
  for (SkinDesign& skin : bruno.skins) {
    skin.face.beard = 0.16;
    skin.face.age = 0.4;
  }
  bruno.outfits = outfits();
  bruno.categories = usualCategories();
  bruno.assets = assets();
  bruno.seat = "stool";
  bruno.post = "lamp";
  return bruno;
}

}  // namespace samples
