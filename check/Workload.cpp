#include "check/Workload.h"

#include "apps/support/ModelText.h"
#include "model/CharacterData.h"

namespace check {

namespace {

/// Of one character, each of which is kept until the character is done.
constexpr double MOST_PAIRS = 250'000;
/// Of all characters; a few million take a second.
constexpr double MOST_STEPS = 20'000'000;

double count(const ZORVEL::CharacterData& character, ZORVEL::CONTAINER container) {
  return character.GetCount(container);
}

/// What is in the elements, and in the groups of a clothing.
double countInside(const ZORVEL::CharacterData& character, ZORVEL::CONTAINER container) {
  double inside = 0;
  for (const ZORVEL::DataContainer* element : apps::elementsOf(character, container)) {
    inside += element->GetChildCount();
    for (int i = 0; i < element->GetChildCount(); ++i) inside += element->GetChild(i)->GetChildCount();
  }
  return inside;
}

double stepsFor(const ZORVEL::CharacterData& character) {
  const double assets = count(character, ZORVEL::ASSETS);
  const double choices = count(character, ZORVEL::CLOTH) + count(character, ZORVEL::POSES);
  const double offered = count(character, ZORVEL::SKINS) + count(character, ZORVEL::POSES) +
                         assets * (1 + count(character, ZORVEL::CATEGORIES)) + countInside(character, ZORVEL::ASSETS);
  const double named = countInside(character, ZORVEL::CLOTH) + countInside(character, ZORVEL::POSES);
  return choices * offered + named * assets;
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
