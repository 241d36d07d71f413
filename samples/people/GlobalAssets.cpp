#include "samples/people/DesignParts.h"

namespace samples {

std::vector<GlobalAssetDesign> globalAssetDesigns() {
  const auto shared = [](const std::string& key, const std::string& name, Prop prop) {
    GlobalAssetDesign design;
    design.key = key;
    design.name = name;
    design.prop = prop;
    return design;
  };
  GlobalAssetDesign suitcase = shared("suitcase", "Suitcase", Prop::Suitcase);
  suitcase.styles = {twoTone("petrol", "Petrol", {42, 98, 112}, {70, 72, 76}, ""),
                     twoTone("sand", "Sand", {204, 184, 150}, {86, 84, 80}, "")};
  suitcase.styles.back().library = Library::Global;
  GlobalAssetDesign bicycle = shared("bicycle", "Bicycle", Prop::Bicycle);
  const auto bicycleStyle = [](const std::string& key, const std::string& name, const QColor& frame) {
    return style(key, name,
                 parts({{"Frame", fabric(frame, "", 0.25)},
                        {"Metal", fabric({176, 178, 182}, "", 0.25)},
                        {"Rubber", fabric({34, 34, 36}, "", 0.8)}}));
  };
  bicycle.styles = {bicycleStyle("green", "Green", {46, 104, 78}), bicycleStyle("cream", "Cream", {226, 216, 190})};
  GlobalAssetDesign bench = shared("bench", "Bench", Prop::Bench);
  bench.styles = {
      style("oak", "Oak",
            parts({{"Wood", fabric({186, 138, 86}, "wood.png", 0.6)}, {"Iron", fabric({52, 54, 58}, "", 0.5)}})),
      style("white", "White",
            parts({{"Wood", fabric({232, 230, 224}, "wood.png", 0.5)}, {"Iron", fabric({92, 94, 98}, "", 0.5)}}),
            Library::Global)};
  GlobalAssetDesign lamp = shared("lamp", "Lamp Post", Prop::LampPost);
  lamp.plain =
      style("", "", parts({{"Iron", fabric({58, 72, 66}, "", 0.5)}, {"Glass", fabric({250, 244, 222}, "", 0.2)}}),
            Library::Global);
  GlobalAssetDesign umbrella = shared("umbrella", "Umbrella", Prop::Umbrella);
  umbrella.styles = {style("black", "Black", fabric({30, 30, 34}, "", 0.5), Library::Global)};
  umbrella.hasFolder = false;
  std::vector<GlobalAssetDesign> all;
  for (GlobalAssetDesign& asset : std::vector<GlobalAssetDesign>{suitcase, bicycle, bench, lamp, umbrella}) {
    all.push_back(claimed(std::move(asset)));
  }
  return all;
}

}  // namespace samples
