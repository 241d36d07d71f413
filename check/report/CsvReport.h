#pragma once

#include <string>
#include <vector>

#include "check/JudgedRepository.h"

namespace check {

/// For tables (RFC 4180, UTF-8): a header and a row for each finding. A cell that a spreadsheet would take for a
/// formula begins with an apostrophe.
std::string csvReport(const std::vector<JudgedRepository>& repositories);

}  // namespace check
