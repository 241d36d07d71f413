#pragma once

#include <string>
#include <vector>

namespace support {

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

/// Runs the command line in this process.
Outcome run(std::vector<std::string> arguments);

}  // namespace support
