#include "host/files/LocalAppData.h"

#include <stdlib.h>

namespace host {

namespace {

const char* const VARIABLE = "LOCALAPPDATA";

}  // namespace

LocalAppData::LocalAppData(const std::filesystem::path& folder) {
  if (folder.empty()) return;
  if (const char* previous = ::getenv(VARIABLE)) previous_ = previous;
  changed_ = ::setenv(VARIABLE, folder.c_str(), 1) == 0;
}

LocalAppData::~LocalAppData() {
  if (!changed_) return;
  if (previous_) {
    ::setenv(VARIABLE, previous_->c_str(), 1);
  } else {
    ::unsetenv(VARIABLE);
  }
}

}  // namespace host
