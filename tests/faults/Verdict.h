#pragma once

#include <string>
#include <vector>

#include "tests/faults/Subject.h"

namespace support {

/// Whether a status of 0 promises the same result, or only that what was written is whole.
enum class Strictness { Same, Whole };

/// What a run in which something goes wrong must not do. `undisturbed` is a run of the same command in which nothing
/// does. Answers an empty text, or what it did all the same.
std::string faultOf(const Ending& ending, const Ending& undisturbed, Strictness strictness);

/// The same for one that was ended by a signal, which may happen at any time.
std::string faultOfEnded(const Ending& ending, const Ending& undisturbed, int signal, Strictness strictness);

}  // namespace support
