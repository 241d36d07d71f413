#include "samples/repository/TextureSet.h"

#include "samples/repository/Textures.h"

namespace samples {
namespace {

void drawMaterials(std::map<std::string, QImage>& maps, const Textures& draw) {
  maps["weave.png"] = draw.weave();
  maps["knit.png"] = draw.knit();
  maps["felt.png"] = draw.felt();
  maps["leather.png"] = draw.leather();
  maps["hair.png"] = draw.stripes({255, 255, 255}, {214, 210, 206}, 60, 0.5, true);
  maps["wood.png"] = draw.wood({255, 250, 244});
  maps["straw.png"] = draw.straw({226, 196, 140});
  maps["denim_blue.png"] = draw.denim({80, 106, 148});
  maps["denim_dark.png"] = draw.denim({46, 58, 88});
  maps["tweed.png"] = draw.tweed({112, 96, 76}, {188, 172, 142});
  maps["quilt_silver.png"] = draw.quilt({188, 190, 198});
  maps["quilt_black.png"] = draw.quilt({58, 58, 64});
  maps["quilt_blue.png"] = draw.quilt({66, 118, 182});
}

void drawPatterns(std::map<std::string, QImage>& maps, const Textures& draw) {
  maps["flowers_meadow.png"] = draw.flowers({240, 232, 214}, {206, 92, 96}, {240, 196, 92});
  maps["flowers_sunrise.png"] = draw.flowers({46, 60, 98}, {238, 152, 64}, {250, 220, 130});
  maps["flowers_daisies.png"] = draw.flowers({126, 176, 206}, {250, 250, 246}, {240, 196, 72});
  maps["stripes_marine.png"] = draw.stripes({34, 52, 88}, {236, 236, 232}, 3, 0.28, false);
  maps["stripes_breton.png"] = draw.stripes({238, 236, 228}, {40, 56, 92}, 4, 0.34, false);
  maps["stripes_grey.png"] = draw.stripes({214, 214, 218}, {98, 100, 110}, 2, 0.4, false);
  maps["stripes_shirt.png"] = draw.stripes({240, 242, 246}, {106, 136, 182}, 8, 0.3, true);
  maps["stripes_rainbow.png"] =
      draw.bands({{232, 84, 76}, {244, 168, 72}, {248, 224, 110}, {108, 190, 120}, {84, 150, 214}});
  maps["pinstripe.png"] = draw.stripes({44, 52, 78}, {150, 158, 178}, 6, 0.07, true);
  maps["pinstripe_grey.png"] = draw.stripes({88, 92, 102}, {186, 190, 200}, 6, 0.07, true);
  maps["tie_claret.png"] = draw.stripes({128, 32, 42}, {196, 170, 112}, 4, 0.14, false);
  maps["dots.png"] = draw.dots({44, 58, 92}, {236, 232, 222}, 4, 0.17);
  maps["dots_red.png"] = draw.dots({206, 62, 66}, {246, 242, 236}, 3, 0.2);
  maps["check_red.png"] = draw.check({156, 44, 46}, {40, 40, 48}, {224, 196, 130}, 2);
  maps["check_blue.png"] = draw.check({196, 212, 230}, {58, 92, 150}, {240, 244, 248}, 3);
  maps["check_grey.png"] = draw.check({142, 144, 150}, {84, 88, 98}, {206, 208, 212}, 4);
  maps["check_sand.png"] = draw.check({206, 186, 150}, {134, 96, 68}, {240, 230, 210}, 2);
  maps["tartan_green.png"] = draw.check({44, 92, 68}, {26, 40, 58}, {214, 188, 96}, 1);
}

}  // namespace

std::map<std::string, QImage> drawTextures(std::uint64_t seed, double coarseness,
                                           const std::vector<CharacterDesign>& characters) {
  const Textures draw(seed, std::clamp(static_cast<int>(512 / coarseness), 64, 512));
  std::map<std::string, QImage> maps;
  drawMaterials(maps, draw);
  drawPatterns(maps, draw);
  for (const CharacterDesign& character : characters) {
    for (const SkinDesign& skin : character.skins) {
      if (maps.count(skin.texture) == 0) maps[skin.texture] = draw.skin(skin.face);
    }
  }
  return maps;
}

}  // namespace samples
