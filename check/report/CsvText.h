#pragma once

#include <string>
#include <vector>

namespace check {

/// A row of a table (RFC 4180, UTF-8) with its end. A cell that a spreadsheet would take for a formula begins with an
/// apostrophe.
std::string csvRow(const std::vector<std::string>& texts);

}  // namespace check
