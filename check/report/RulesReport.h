#pragma once

#include <string>

namespace check {

/// All rules for a terminal: code, severity, name, what is found and what to do.
std::string rulesText();
/// An array of objects with code, name, severity, sentence and remedy.
std::string rulesJson();

}  // namespace check
