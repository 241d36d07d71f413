#pragma once

#include <string>

namespace cli {

/// Whether to write colours: "always", "never", or otherwise only to a terminal (a file descriptor) that can show them
/// and whose user has not said no (NO_COLOR).
bool usesColor(const std::string& when, int descriptor);

}  // namespace cli
