#pragma once

#include "samples/people/CharacterDesign.h"

namespace samples {

CharacterDesign annaDesign();
CharacterDesign brunoDesign();
CharacterDesign chiomaDesign();
CharacterDesign dimitriDesign();
CharacterDesign emreDesign();
CharacterDesign fridaDesign();

/// The first so many people. After six they come again under numbered names, each of another build, complexion and
/// order of clothes, and with nothing left out on purpose.
std::vector<CharacterDesign> people(int count);

}  // namespace samples
