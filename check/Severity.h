#pragma once

namespace check {

/// How much a finding matters, the worst first.
enum class Severity {
  Error,    ///< a character or an element cannot be seen or built
  Warning,  ///< something that the artist will miss
  Hint      ///< worth knowing
};

/// "error", "warning" or "hint".
const char* nameOf(Severity severity);

}  // namespace check
