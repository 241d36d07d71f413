#pragma once

namespace fuzz {

/// Ends the process where it does not hold, so that the fuzzer keeps the input. `what` is a sentence.
void require(bool holds, const char* what);

}  // namespace fuzz
