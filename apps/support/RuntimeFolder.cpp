#include "apps/support/RuntimeFolder.h"

#include <stdlib.h>

namespace apps {

RuntimeFolder::RuntimeFolder() {
  const char* const variable = "XDG_RUNTIME_DIR";
  if (::getenv(variable) != nullptr) return;
  folder_.emplace("zorvel-runtime-");
  if (!folder_->path().empty()) ::setenv(variable, folder_->path().c_str(), 1);
}

}  // namespace apps
