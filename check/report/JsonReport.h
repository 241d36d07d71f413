#pragma once

#include <string>
#include <vector>

#include "check/JudgedRepository.h"

namespace check {

/// For programs, in the form that docs/schema/check-report.schema.json describes.
std::string jsonReport(const std::vector<JudgedRepository>& repositories);

}  // namespace check
