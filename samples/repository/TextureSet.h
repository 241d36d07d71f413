#pragma once

#include <QImage>
#include <map>
#include <string>
#include <vector>

#include "samples/people/CharacterDesign.h"

namespace samples {

/// All pictures that the materials of these characters name, by file name. `coarseness` 1 is meant for people,
/// 2 half as fine.
std::map<std::string, QImage> drawTextures(std::uint64_t seed, double coarseness,
                                           const std::vector<CharacterDesign>& characters);

}  // namespace samples
