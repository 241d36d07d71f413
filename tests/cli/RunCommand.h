#pragma once

#include <string>
#include <vector>

namespace support {

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

/// `zorvel` with these arguments, in this process.
Outcome run(std::vector<std::string> arguments);

}  // namespace support
