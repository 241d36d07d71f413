#pragma once

#include <string>

namespace check {

/// docs/rules.md: every rule with its sentence and remedy, in groups, as Markdown.
std::string rulesDocument();

}  // namespace check
