#pragma once

#include <string>
#include <vector>

namespace cli {

/// Something that was looked at.
struct Check {
  std::string name;
  /// What was found.
  std::string text;
  /// What a person can do about it; empty where all is well.
  std::string remedy = {};

  bool isGood() const { return remedy.empty(); }
};

using Checks = std::vector<Check>;

}  // namespace cli
