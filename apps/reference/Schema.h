#pragma once

#include <string>

namespace reference {

/// docs/schema/zorvel.xsd, for editors. Accepts every description that loads without loss, and whatever attributes it
/// has besides; what is read under any name is described under its usual one.
std::string schema();

}  // namespace reference
