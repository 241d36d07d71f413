#include "check/Workload.h"

#include "apps/support/ModelText.h"
#include "model/CharacterData.h"

namespace check {

namespace {

/// Of one character, each of which is kept until the character is done.
constexpr double MOST_PAIRS = 400'000;
/// Of all characters; a few million take a second.
constexpr double MOST_STEPS = 20'000'000;
/// A comparison or a move, as many of which take as long as a step.
constexpr double CHEAP_IN_STEP = 32;

double count(const ZORVEL::CharacterData& character, ZORVEL::CONTAINER container) {
  return character.GetCount(container);
}

double countInside(const ZORVEL::CharacterData& character, ZORVEL::CONTAINER container) {
  double inside = 0;
  for (const ZORVEL::DataContainer* element : apps::elementsOf(character, container))
    inside += element->GetChildCount();
  return inside;
}

double countSelects(const ZORVEL::CharacterData& character) {
  double selects = 0;
  for (const ZORVEL::DataContainer* clothing : apps::elementsOf(character, ZORVEL::CLOTH)) {
    selects += static_cast<double>(apps::clothChildren(*clothing, ZORVEL::SELECT).size());
  }
  return selects;
}

double stepsFor(const ZORVEL::CharacterData& character) {
  const double clothes = count(character, ZORVEL::CLOTH);
  const double poses = count(character, ZORVEL::POSES);
  const double assets = count(character, ZORVEL::ASSETS);
  const double offered = count(character, ZORVEL::SKINS) + count(character, ZORVEL::CATEGORIES) + poses + assets +
                         countInside(character, ZORVEL::ASSETS);
  const double mandatory = countInside(character, ZORVEL::POSES);
  // The strip moves those that are not available behind those that are; an id that nothing has is looked for in all.
  const double cheap = clothes * clothes + mandatory * assets;
  return (clothes + poses) * offered + countSelects(character) * assets + mandatory * clothes + cheap / CHEAP_IN_STEP;
}

std::string textOf(double count) { return std::to_string(static_cast<long long>(count)); }

}  // namespace

std::string whyTooLarge() {
  double steps = 0;
  for (const ZORVEL::CharacterData* character : apps::characters()) {
    const double clothes = count(*character, ZORVEL::CLOTH);
    const double poses = count(*character, ZORVEL::POSES);
    if (clothes * poses > MOST_PAIRS) {
      return "a character has " + textOf(clothes) + " clothes and " + textOf(poses) +
             " poses, and all of them together are too many to be checked";
    }
    steps += stepsFor(*character);
  }
  return steps <= MOST_STEPS ? "" : "its clothes, poses and assets together are too many to be checked";
}

}  // namespace check
