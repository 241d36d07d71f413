#include "tests/support/LocalAppData.h"

#include <cstdlib>

namespace support {

LocalAppData::LocalAppData() {
  if (const char* previous = std::getenv("LOCALAPPDATA")) previous_ = previous;
  ::setenv("LOCALAPPDATA", folder_.path().c_str(), 1);
}

LocalAppData::~LocalAppData() {
  if (previous_) {
    ::setenv("LOCALAPPDATA", previous_->c_str(), 1);
  } else {
    ::unsetenv("LOCALAPPDATA");
  }
}

}  // namespace support
