#include <gtest/gtest.h>

#include <QGuiApplication>
#include <iostream>

#include "tests/growth/GrowthTable.h"

namespace {

/// All worst cases, each so many times as large as in the tests.
int printTable(int scale) {
  bool isGood = true;
  for (const support::GrowthCase& growthCase : support::growthCases()) {
    for (const std::string& command : growthCase.commands) {
      const support::GrowthRow row = support::measureGrowth(growthCase, command, scale);
      isGood = isGood && row.complaint().empty();
      std::cout << support::lineOf(row) << std::endl;
    }
  }
  return isGood ? 0 : 1;
}

}  // namespace

/// growth_tests --table SCALE prints the table instead of testing.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  if (argc == 3 && std::string(argv[1]) == "--table") return printTable(std::max(1, std::atoi(argv[2])));
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
