#pragma once

#include <string>

namespace cli {

/// Prints the rules of the checker as "text", "md" or "json". Answers an exit status.
int runRules(const std::string& format);

}  // namespace cli
