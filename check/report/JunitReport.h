#pragma once

#include <string>
#include <vector>

#include "check/JudgedRepository.h"

namespace check {

/// JUnit XML, as build servers read it: a suite for each repository, a case for each rule that was asked. Errors and
/// warnings fail it, hints are its output. Where a repository cannot be read, the other cases are skipped.
std::string junitReport(const std::vector<JudgedRepository>& repositories);

}  // namespace check
