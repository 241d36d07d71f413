#include "check/Workload.h"

#include <algorithm>

#include "apps/support/ModelText.h"
#include "model/CharacterData.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"

namespace check {

namespace {

/// Of one character, each of which is kept until the character is done.
constexpr double MOST_PAIRS = 400'000;
/// Bytes for one, beside the path of the file that it lacks.
constexpr double PAIR_MEMORY = 200;
/// Bytes that may be taken even where the description is as large as it may be.
constexpr double FREE_MEMORY = 50'000'000;
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

/// Characters of the ids and folders, which the paths of files are made of.
double letters(const ZORVEL::CharacterData& character, ZORVEL::CONTAINER container) {
  std::size_t letters = 0;
  for (const ZORVEL::DataContainer* element : apps::elementsOf(character, container)) {
    for (const wchar_t* name : {ZORVEL::RepositoryFormat::FIELD_ID, ZORVEL::RepositoryFormat::FIELD_FOLDER}) {
      letters += ZORVEL::Fields::TextOrEmpty(element, name).size();
    }
  }
  return static_cast<double>(letters);
}

/// Of each clothing in each pose it is known why it is not offered: there is no such file.
double memoryForPairs(const ZORVEL::CharacterData& character) {
  const double clothes = count(character, ZORVEL::CLOTH);
  const double poses = count(character, ZORVEL::POSES);
  const auto folder = ZORVEL::Fields::TextOrEmpty(&character, ZORVEL::RepositoryFormat::FIELD_FOLDER).size();
  const double inPaths = clothes * letters(character, ZORVEL::POSES) + poses * letters(character, ZORVEL::CLOTH) +
                         clothes * poses * static_cast<double>(folder);
  return clothes * poses * PAIR_MEMORY + inPaths * sizeof(wchar_t);
}

std::string textOf(double count) { return std::to_string(static_cast<long long>(count)); }

}  // namespace

std::string whyTooLarge(const Description& description, bool keepsOffers) {
  double steps = 0;
  double kept = 0;
  for (const ZORVEL::CharacterData* character : apps::characters()) {
    const double clothes = count(*character, ZORVEL::CLOTH);
    const double poses = count(*character, ZORVEL::POSES);
    const double pairs = memoryForPairs(*character);
    kept = keepsOffers ? kept + 2 * pairs : std::max(kept, pairs);
    if (clothes * poses > MOST_PAIRS || kept > description.memoryLeft() + FREE_MEMORY) {
      return "a character has " + textOf(clothes) + " clothes and " + textOf(poses) +
             " poses, and all of them together are too many to be checked";
    }
    steps += stepsFor(*character);
  }
  return steps <= MOST_STEPS ? "" : "its clothes, poses and assets together are too many to be checked";
}

}  // namespace check
