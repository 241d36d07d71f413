#pragma once

#include <string>

#include "check/explain/Explanation.h"

namespace check {

// Of ids that there are, or with the nearest ones for one that there is not.

/// For a person: the chain of reasons for each element, what the checker has found about it, and the verdict.
std::string explainText(const ExplainResult& result);
std::string explainJson(const ExplainResult& result);

}  // namespace check
