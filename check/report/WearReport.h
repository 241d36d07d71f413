#pragma once

#include <string>
#include <vector>

#include "check/JudgedRepository.h"

namespace check {

// What can be worn in which pose. The tables have to be in the results.

/// For a person, at most 100 columns wide unless an id is wider: a table for each character, below it why a cell does
/// not build. Cells of one reason are one line unless `showsAll`.
std::string wearText(const std::vector<JudgedRepository>& repositories, bool showsAll);
/// For programs: every cell with state, reason, file and code.
std::string wearJson(const std::vector<JudgedRepository>& repositories);
/// For tables: a header, and a row for each cell. A character that was left out has one row without clothing and pose.
std::string wearCsv(const std::vector<JudgedRepository>& repositories);

}  // namespace check
