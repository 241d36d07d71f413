#include "check/Workload.h"

#include <algorithm>

#include "apps/support/ModelText.h"
#include "model/CharacterData.h"
#include "model/Data2.h"

namespace check {

namespace {

/// Of clothing and pose, of one character: each is kept until the character is done.
constexpr double MOST_PAIRS = 250'000;
/// In nanoseconds, roughly, on a slow machine.
constexpr double MOST_WORK = 8e9;
constexpr double FOR_AN_OFFER = 500;
constexpr double FOR_A_COMPARISON = 15;
/// Of the ids of clothes and poses, which follow each other in memory.
constexpr double FOR_AN_ID = 3;

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

double countStandIns(const ZORVEL::CharacterData& character) {
  const auto assets = apps::elementsOf(character, ZORVEL::ASSETS);
  return static_cast<double>(std::count_if(assets.begin(), assets.end(), &ZORVEL::Data2::CheckAssetGlobal));
}

double workFor(const ZORVEL::CharacterData& character) {
  const double worn = count(character, ZORVEL::CLOTH) + count(character, ZORVEL::POSES);
  const double assets = count(character, ZORVEL::ASSETS);
  const double offered = count(character, ZORVEL::SKINS) + count(character, ZORVEL::POSES) + assets +
                         countInside(character, ZORVEL::ASSETS);
  const double compared =
      assets * count(character, ZORVEL::CATEGORIES) + countStandIns(character) * ZORVEL::Data2::GetGlobalAssetCount();
  const double named = countInside(character, ZORVEL::CLOTH) + countInside(character, ZORVEL::POSES);
  // The strip puts each available one before all that are not.
  const double sorted = count(character, ZORVEL::CLOTH) * count(character, ZORVEL::CLOTH);
  // Each clothing and pose is chosen once; a few rules look at everything once more.
  const double choices = worn + 4;
  return choices * (offered * (FOR_AN_OFFER + worn * FOR_AN_ID) + compared * FOR_A_COMPARISON) +
         (named * assets + sorted) * FOR_A_COMPARISON;
}

std::string textOf(double count) { return std::to_string(static_cast<long long>(count)); }

}  // namespace

std::string whyTooLarge() {
  const double shared = ZORVEL::Data2::GetGlobalAssetCount();
  double work = shared * shared * FOR_A_COMPARISON;
  for (const ZORVEL::CharacterData* character : apps::characters()) {
    const double clothes = count(*character, ZORVEL::CLOTH);
    const double poses = count(*character, ZORVEL::POSES);
    if (clothes * poses > MOST_PAIRS) {
      return "a character has " + textOf(clothes) + " clothes and " + textOf(poses) +
             " poses, and all of them together are too many to be checked";
    }
    work += workFor(*character);
  }
  return work <= MOST_WORK ? "" : "its clothes, poses and assets together are too many to be checked";
}

}  // namespace check
