#pragma once

#include <string>

#include "check/Finding.h"

namespace check {

/// "people/zorvel.xml:12:7" as editors and terminals open it, as far as the finding has such a place; printable.
std::string placeOf(const CheckResult& result, const Finding& finding);

/// "people/zorvel.xml"; printable.
std::string descriptionOf(const CheckResult& result);

}  // namespace check
