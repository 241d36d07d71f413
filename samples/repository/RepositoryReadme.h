#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "samples/people/CharacterDesign.h"

namespace samples {

/// What the repository tells its readers: who is in it, what is left out on purpose, where things are.
std::string repositoryReadme(const std::vector<CharacterDesign>& people, const std::vector<GlobalAssetDesign>& globals,
                             std::uint64_t seed);

}  // namespace samples
