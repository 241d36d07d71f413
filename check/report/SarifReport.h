#pragma once

#include <string>
#include <vector>

#include "check/JudgedRepository.h"

namespace check {

/// SARIF 2.1.0, which code hosts and editors show beside the lines. Each repository is a base of its own, below the
/// folder that the program ran in unless its root is absolute. Fingerprints stay when lines move.
std::string sarifReport(const std::vector<JudgedRepository>& repositories);

}  // namespace check
