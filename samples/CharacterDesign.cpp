#include "samples/CharacterDesign.h"

namespace samples {
namespace {

StyleDesign style(const std::string& key, const std::string& name, Material material, Library library = Library::Own) {
  StyleDesign design;
  design.key = key;
  design.name = name;
  design.material = std::move(material);
  design.library = library;
  return design;
}

Material scaled(const std::string& name, const QColor& color, double softness, const std::string& texture) {
  Material material = plain(name, color, 0.9, texture);
  material.kind = Material::Kind::Scaled;
  material.softness = softness;
  return material;
}

AssetDesign asset(const std::string& key, const std::string& name, const std::string& category, Prop prop) {
  AssetDesign design;
  design.key = key;
  design.name = name;
  design.category = category;
  design.prop = prop;
  return design;
}

AssetDesign shoes(const std::string& key, const std::string& name, Footwear footwear) {
  AssetDesign design;
  design.key = key;
  design.name = name;
  design.category = "shoes";
  design.isFootwear = true;
  design.footwear = footwear;
  return design;
}

StyleDesign shoeStyle(const std::string& key, const std::string& name, const std::string& material, const QColor& upper,
                      const QColor& sole, double roughness) {
  return style(key, name,
               multi(material, {plain(material + " Upper", upper, roughness, "leather.png"),
                                plain(material + " Sole", sole, 0.8)}));
}

StyleDesign twoTone(const std::string& key, const std::string& name, const std::string& material, const QColor& first,
                    const QColor& second, const std::string& texture, Library library = Library::Own) {
  return style(
      key, name,
      multi(material, {plain(material + " Main", first, 0.6, texture), plain(material + " Detail", second, 0.35)}),
      library);
}

AssetDesign glasses(const std::string& who) {
  AssetDesign design = asset("glasses", "Glasses", "accessories", Prop::Glasses);
  const auto frames = [&](const std::string& key, const std::string& name, const QColor& frame, const QColor& lens,
                          double opacity) {
    Material glass = plain(who + " Lens " + name, lens, 0.05);
    glass.opacity = opacity;
    return style(key, name, multi(who + " Glasses " + name, {plain(who + " Frame " + name, frame, 0.3), glass}),
                 Library::Character);
  };
  design.styles = {frames("reading", "Reading", QColor(58, 42, 34), QColor(200, 214, 222), 0.08),
                   frames("sun", "Sun", QColor(24, 24, 26), QColor(28, 26, 24), 0.9)};
  return design;
}

AssetDesign suitcase() {
  AssetDesign design = asset("suitcase", "Suitcase", "travel", Prop::Suitcase);
  design.global = "global_suitcase";
  return design;
}

AssetDesign umbrella() {
  AssetDesign design = asset("umbrella", "Umbrella", "travel", Prop::Suitcase);
  design.global = "global_umbrella";
  return design;
}

AssetDesign stool(const std::string& who, const QColor& color) {
  AssetDesign design = asset("stool", "Stool", "", Prop::Stool);
  design.onlyPose = "sitting";
  design.plain = style("", "", plain(who + " Stool Wood", color, 0.55, "wood.png"), Library::Props);
  return design;
}

std::vector<CategoryDesign> categories() {
  return {{"shoes", "Shoes", false, true},
          {"bags", "Bags", false, false},
          {"headwear", "Headwear", false, false},
          {"accessories", "Accessories", true, false},
          {"travel", "Travel", true, false}};
}

Textures::Face face(const QColor& skin, const QColor& lips, const QColor& brows, const QColor& iris, bool woman) {
  return {skin, lips, brows, iris, woman, !woman};
}

Material shirtAndTrousers(const std::string& name, Material shirt, Material trousers) {
  shirt.name = name + " Top";
  trousers.name = name + " Trousers";
  return multi(name, {std::move(shirt), std::move(trousers)});
}

Material suitCloth(const std::string& name, Material cloth, const QColor& shirt, Material tie) {
  cloth.name = name + " Cloth";
  tie.name = name + " Tie";
  return multi(name, {std::move(cloth), plain(name + " Shirt", shirt, 0.8, "weave.png"), std::move(tie)});
}

OutfitDesign annaDress() {
  OutfitDesign design;
  design.key = "dress";
  design.name = "Summer Dress";
  design.outfit = Outfit::SummerDress;
  design.shownWith = Footwear::Ballerinas;
  design.styles = {
      style("meadow", "Meadow", plain("Anna Dress Meadow", Qt::white, 0.85, "flowers_meadow.png")),
      style("coral", "Coral", plain("Anna Dress Coral", QColor(196, 84, 72), 0.85, "weave.png")),
      style("marine", "Marine", plain("Anna Dress Marine", Qt::white, 0.85, "stripes_marine.png"), Library::Character),
      style("velvet", "Velvet", scaled("Anna Dress Velvet", QColor(38, 92, 84), 1.5, "weave.png"))};
  design.selects = {{"ballerinas", "nude"}, {"sunhat", ""}};
  return design;
}

OutfitDesign annaCasual() {
  OutfitDesign design;
  design.key = "casual";
  design.name = "Jeans and Jumper";
  design.outfit = Outfit::Casual;
  const Material blue = plain("", Qt::white, 0.9, "denim_blue.png");
  const Material dark = plain("", Qt::white, 0.9, "denim_dark.png");
  design.styles = {
      style("cream", "Cream",
            shirtAndTrousers("Anna Casual Cream", plain("", QColor(236, 224, 200), 0.95, "knit.png"), blue)),
      style("breton", "Breton",
            shirtAndTrousers("Anna Casual Breton", plain("", Qt::white, 0.9, "stripes_breton.png"), dark)),
      style("dots", "Dots",
            shirtAndTrousers("Anna Casual Dots", plain("", Qt::white, 0.9, "dots.png"),
                             plain("", QColor(226, 220, 208), 0.9, "weave.png")))};
  design.selects = {{"sneakers", "white"}};
  return design;
}

OutfitDesign unavailableCoat() {
  OutfitDesign design;
  design.key = "coat";
  design.name = "Winter Coat";
  design.outfit = Outfit::Coat;
  design.hasFolder = false;
  design.styles = {style("camel", "Camel", plain("Anna Coat Camel", QColor(150, 116, 82), 0.95, "weave.png"))};
  return design;
}

OutfitDesign brunoSuit() {
  OutfitDesign design;
  design.key = "suit";
  design.name = "Business Suit";
  design.outfit = Outfit::Suit;
  design.shownWith = Footwear::Oxfords;
  const Material red = plain("", Qt::white, 0.6, "tie_claret.png");
  design.styles = {style("charcoal", "Charcoal",
                         suitCloth("Bruno Suit Charcoal", plain("", QColor(74, 78, 88), 0.9, "weave.png"),
                                   QColor(240, 242, 246), red)),
                   style("pinstripe", "Pinstripe",
                         suitCloth("Bruno Suit Pinstripe", plain("", Qt::white, 0.9, "pinstripe.png"),
                                   QColor(214, 226, 244), plain("", QColor(188, 172, 120), 0.6, "weave.png"))),
                   style("tweed", "Tweed",
                         suitCloth("Bruno Suit Tweed", plain("", Qt::white, 0.95, "tweed.png"), QColor(238, 232, 216),
                                   plain("", QColor(52, 84, 66), 0.6, "weave.png")))};
  design.selects = {{"oxfords", "black"}, {"briefcase", "cognac"}};
  return design;
}

OutfitDesign brunoHoodie() {
  OutfitDesign design;
  design.key = "hoodie";
  design.name = "Hoodie and Chinos";
  design.outfit = Outfit::Hoodie;
  const Material chinos = plain("", QColor(162, 142, 112), 0.9, "weave.png");
  design.styles = {
      style("sage", "Sage",
            shirtAndTrousers("Bruno Hoodie Sage", plain("", QColor(100, 124, 106), 0.95, "knit.png"), chinos)),
      style("check", "Check",
            shirtAndTrousers("Bruno Hoodie Check", plain("", Qt::white, 0.9, "check_red.png"),
                             plain("", Qt::white, 0.9, "denim_dark.png"))),
      style("grey", "Grey",
            shirtAndTrousers("Bruno Hoodie Grey", plain("", QColor(158, 162, 168), 0.95, "knit.png"),
                             plain("", Qt::white, 0.9, "denim_blue.png")))};
  design.excludes = {"fedora"};
  design.selects = {{"sneakers", "white"}};
  design.missingPose = "sitting";
  return design;
}

}  // namespace

CharacterDesign annaDesign() {
  CharacterDesign anna;
  anna.key = "anna";
  anna.name = "Anna";
  anna.proportions.stature = 168;
  anna.proportions.femininity = 1;
  anna.proportions.muscle = 0.35;
  anna.hair = HairStyle::Bob;
  anna.skins = {
      {"light", "Light", face({216, 168, 142}, {180, 84, 80}, {104, 70, 46}, {74, 112, 132}, true), {88, 58, 38}},
      {"medium", "Medium", face({184, 128, 96}, {156, 74, 66}, {58, 38, 28}, {96, 66, 40}, true), {52, 34, 26}},
      {"dark", "Dark", face({112, 72, 52}, {126, 58, 54}, {28, 20, 18}, {58, 38, 26}, true), {26, 22, 22}}};
  anna.outfits = {annaDress(), annaCasual(), unavailableCoat()};
  anna.categories = categories();
  AssetDesign ballerinas = shoes("ballerinas", "Ballerinas", Footwear::Ballerinas);
  ballerinas.styles = {shoeStyle("nude", "Nude", "Anna Ballerinas Nude", {168, 112, 84}, {92, 70, 58}, 0.45),
                       shoeStyle("red", "Red", "Anna Ballerinas Red", {176, 40, 44}, {60, 40, 38}, 0.3)};
  AssetDesign sneakers = shoes("sneakers", "Sneakers", Footwear::Sneakers);
  sneakers.styles = {shoeStyle("white", "White", "Anna Sneakers White", {232, 232, 230}, {246, 246, 244}, 0.6),
                     shoeStyle("teal", "Teal", "Anna Sneakers Teal", {54, 116, 122}, {240, 238, 232}, 0.6)};
  AssetDesign handbag = asset("handbag", "Handbag", "bags", Prop::Handbag);
  handbag.styles = {twoTone("cognac", "Cognac", "Anna Handbag Cognac", {122, 72, 44}, {206, 178, 110}, "leather.png"),
                    twoTone("night", "Night", "Anna Handbag Night", {38, 42, 60}, {206, 206, 210}, "leather.png")};
  AssetDesign hat = asset("sunhat", "Sun Hat", "headwear", Prop::SunHat);
  hat.plain = twoTone("", "", "Anna Sun Hat", Qt::white, {44, 52, 78}, "straw.png");
  anna.assets = {ballerinas,      sneakers,   handbag,    hat,
                 glasses("Anna"), suitcase(), umbrella(), stool("Anna", {198, 152, 102})};
  anna.seat = "stool";
  return anna;
}

CharacterDesign brunoDesign() {
  CharacterDesign bruno;
  bruno.key = "bruno";
  bruno.name = "Bruno";
  bruno.proportions.stature = 182;
  bruno.proportions.muscle = 0.6;
  bruno.skins = {
      {"fair", "Fair", face({208, 158, 130}, {176, 104, 92}, {92, 62, 42}, {72, 104, 88}, false), {76, 52, 36}},
      {"olive", "Olive", face({174, 122, 90}, {146, 82, 70}, {40, 30, 26}, {84, 58, 36}, false), {36, 28, 24}},
      {"deep", "Deep", face({94, 62, 46}, {112, 62, 56}, {22, 18, 18}, {46, 32, 24}, false), {22, 20, 20}}};
  bruno.outfits = {brunoSuit(), brunoHoodie()};
  bruno.categories = categories();
  AssetDesign oxfords = shoes("oxfords", "Oxfords", Footwear::Oxfords);
  oxfords.styles = {shoeStyle("black", "Black", "Bruno Oxfords Black", {34, 32, 34}, {24, 22, 22}, 0.2),
                    shoeStyle("brown", "Brown", "Bruno Oxfords Brown", {104, 62, 36}, {48, 32, 24}, 0.25)};
  AssetDesign sneakers = shoes("sneakers", "Sneakers", Footwear::Sneakers);
  sneakers.styles = {shoeStyle("white", "White", "Bruno Sneakers White", {228, 228, 226}, {246, 246, 244}, 0.6),
                     shoeStyle("navy", "Navy", "Bruno Sneakers Navy", {44, 58, 96}, {240, 238, 232}, 0.6)};
  AssetDesign briefcase = asset("briefcase", "Briefcase", "bags", Prop::Briefcase);
  briefcase.styles = {
      twoTone("cognac", "Cognac", "Bruno Briefcase Cognac", {112, 68, 42}, {204, 178, 116}, "leather.png"),
      twoTone("black", "Black", "Bruno Briefcase Black", {40, 38, 40}, {196, 196, 200}, "leather.png")};
  AssetDesign fedora = asset("fedora", "Fedora", "headwear", Prop::Fedora);
  fedora.plain = twoTone("", "", "Bruno Fedora", {96, 90, 84}, {34, 32, 34}, "weave.png");
  AssetDesign headphones = asset("headphones", "Headphones", "accessories", Prop::Headphones);
  headphones.plain = twoTone("", "", "Bruno Headphones", {210, 212, 216}, {40, 40, 44}, "");
  bruno.assets = {oxfords,    sneakers,         briefcase,
                  fedora,     glasses("Bruno"), headphones,
                  suitcase(), umbrella(),       stool("Bruno", {128, 86, 56})};
  bruno.seat = "stool";
  return bruno;
}

std::vector<GlobalAssetDesign> globalAssetDesigns() {
  GlobalAssetDesign suitcase;
  suitcase.key = "suitcase";
  suitcase.name = "Suitcase";
  suitcase.styles = {twoTone("petrol", "Petrol", "Suitcase Petrol", {42, 98, 112}, {70, 72, 76}, ""),
                     twoTone("sand", "Sand", "Suitcase Sand", {204, 184, 150}, {86, 84, 80}, "", Library::Global)};
  GlobalAssetDesign umbrella;
  umbrella.key = "umbrella";
  umbrella.name = "Umbrella";
  umbrella.styles = {style("black", "Black", plain("Umbrella Black", QColor(30, 30, 34), 0.5), Library::Global)};
  umbrella.hasFolder = false;
  return {suitcase, umbrella};
}

}  // namespace samples
