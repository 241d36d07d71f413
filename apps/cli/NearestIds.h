#pragma once

#include <string>
#include <vector>

namespace cli {

/// The up to three ids that are most like the wanted one, best first; those that have nothing in common with it are
/// left out.
std::vector<std::string> nearestIds(const std::string& wanted, const std::vector<std::string>& known);

}  // namespace cli
