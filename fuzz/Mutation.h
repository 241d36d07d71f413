#pragma once

#include <cstddef>
#include <string>

namespace fuzz {

/// Changes a text as a person would, so that more of what comes out is well-formed than after a change of bytes: a word
/// or number is replaced, a line is repeated, moved or taken out. The same seed does the same.
std::string mutated(const std::string& text, unsigned seed);

}  // namespace fuzz
