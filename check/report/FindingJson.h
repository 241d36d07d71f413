#pragma once

#include <nlohmann/json.hpp>

#include "check/Finding.h"

namespace check {

/// As in docs/schema/check-report.schema.json.
nlohmann::ordered_json findingJson(const Finding& finding);

}  // namespace check
