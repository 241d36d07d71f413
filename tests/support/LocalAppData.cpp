#include "tests/support/LocalAppData.h"

#include <cstdlib>

namespace support {

LocalAppData::LocalAppData() {
  if (const char* previous = std::getenv("LOCALAPPDATA")) m_previous = previous;
  ::setenv("LOCALAPPDATA", m_folder.path().c_str(), 1);
}

LocalAppData::~LocalAppData() {
  if (m_previous) {
    ::setenv("LOCALAPPDATA", m_previous->c_str(), 1);
  } else {
    ::unsetenv("LOCALAPPDATA");
  }
}

}  // namespace support
