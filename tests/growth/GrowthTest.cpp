#include <gtest/gtest.h>

#include "tests/growth/GrowthTable.h"

namespace {

using support::GrowthCase;
using support::GrowthRow;

class GrowthTest : public testing::TestWithParam<GrowthCase> {};

TEST_P(GrowthTest, FourTimesAsManyTakeAboutFourTimesAsLong) {
  for (const std::string& command : GetParam().commands) {
    std::string complaint;
    // Other programs share the machine.
    for (int attempt = 0; attempt == 0 || (attempt < 3 && !complaint.empty()); ++attempt) {
      complaint = support::measureGrowth(GetParam(), command, 1).complaint();
    }
    EXPECT_EQ(complaint, "") << command;
  }
}

std::string nameOf(const testing::TestParamInfo<GrowthCase>& info) {
  std::string name = info.param.name;
  for (char& c : name) {
    if (c == ' ' || c == ',') c = '_';
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(WorstCases, GrowthTest, testing::ValuesIn(support::growthCases()), nameOf);

}  // namespace
