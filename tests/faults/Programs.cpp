#include "tests/faults/Programs.h"

namespace support {

std::vector<std::string> zorvel(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), PROGRAM_FOLDER "/zorvel");
  return arguments;
}

std::vector<std::string> window(const std::string& repository) {
  return {PROGRAM_FOLDER "/fault-window", repository, PROGRAM_FOLDER "/zorvel.gup", "@"};
}

}  // namespace support
