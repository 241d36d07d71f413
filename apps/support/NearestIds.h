#pragma once

#include <string>
#include <vector>

namespace apps {

/// The up to three ids that are most like the wanted one, best first; those that have nothing in common with it are
/// left out.
std::vector<std::string> nearestIds(const std::string& wanted, const std::vector<std::string>& known);

/// The id that was probably meant: one letter differs, or at most every third. Empty when there is none.
std::string nearestId(const std::string& wanted, const std::vector<std::string>& known);

/// A sentence about an id that there is not, which names the nearest or, when none is near, some of the known.
std::string unknownId(const std::string& kind, const std::string& wanted, const std::vector<std::string>& known);

}  // namespace apps
