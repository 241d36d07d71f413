#include "tests/faults/Fault.h"

namespace support {

std::string Fault::plan() const {
  return "kinds=" + std::to_string(kinds) + " from=" + std::to_string(from) + " count=" + std::to_string(count) +
         " error=" + std::to_string(error) + " action=" + action + " signal=" + std::to_string(signal) +
         " path=" + path;
}

}  // namespace support
