#pragma once

#include <string>
#include <vector>

#include "check/JudgedRepository.h"

namespace support {

/// Three repositories: one with findings of all kinds, one that cannot be read, one that is clean.
std::vector<check::JudgedRepository> sampleFindings();

/// One repository with the text in every place that a repository's author can write to: an error and a hint.
std::vector<check::JudgedRepository> findingsNamed(const std::string& text);

/// A finding in line 12 of the description.
check::Finding finding(check::RuleId rule, const std::string& element, const std::string& message);

}  // namespace support
