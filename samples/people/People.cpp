#include "samples/people/People.h"

#include "samples/geometry/Random.h"
#include "samples/people/DesignParts.h"

namespace samples {
namespace {

template <typename Item>
void turnOrder(std::vector<Item>& items, std::size_t by) {
  std::rotate(items.begin(), items.begin() + static_cast<std::ptrdiff_t>(by % items.size()), items.end());
}

// Nothing that an author left out on purpose is left out again.
void complete(std::vector<OutfitDesign>& outfits) {
  outfits.erase(std::remove_if(outfits.begin(), outfits.end(), [](const OutfitDesign& o) { return !o.hasFolder; }),
                outfits.end());
  for (OutfitDesign& outfit : outfits) outfit.missingPose.clear();
}

CharacterDesign varied(CharacterDesign character, std::size_t round) {
  Random random(round * 1000 + static_cast<std::size_t>(character.key.front()));
  for (SkinDesign& skin : character.skins) skin.texture = character.key + "_skin_" + skin.key + ".png";
  character.key += std::to_string(round + 1);
  character.name += " " + std::to_string(round + 1);
  Proportions& body = character.proportions;
  body.stature *= random.between(0.96, 1.04);
  body.heads *= random.between(0.98, 1.02);
  body.fullness += random.between(-0.2, 0.5);
  body.belly += random.between(0, 0.3);
  body.muscle *= random.between(0.6, 1.2);
  body.shoulders *= random.between(0.97, 1.03);
  complete(character.outfits);
  turnOrder(character.skins, round);
  turnOrder(character.outfits, round);
  for (OutfitDesign& outfit : character.outfits) turnOrder(outfit.styles, round);
  return character;
}

}  // namespace

std::vector<CharacterDesign> people(int count) {
  const std::vector<CharacterDesign> known = {annaDesign(),    brunoDesign(), chiomaDesign(),
                                              dimitriDesign(), emreDesign(),  fridaDesign()};
  std::vector<CharacterDesign> chosen;
  for (std::size_t i = 0; i < static_cast<std::size_t>(std::max(count, 0)); ++i) {
    const CharacterDesign& one = known[i % known.size()];
    const std::size_t round = i / known.size();
    chosen.push_back(claimed(round == 0 ? one : varied(one, round)));
  }
  return chosen;
}

}  // namespace samples
