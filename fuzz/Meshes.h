#pragma once

#include <string_view>

namespace fuzz {

/// Reads a mesh of either format, looks at it, and writes it for being read again.
void readAndUseMesh(std::string_view bytes);

}  // namespace fuzz
