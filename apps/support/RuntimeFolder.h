#pragma once

#include <optional>

#include "host/files/TemporaryFolder.h"

namespace apps {

/// Where Qt looks for what goes on while programs run. A session has such a folder; where there is none, Qt would make
/// one that stays, and so this is one that goes with it. To be made before the application.
class RuntimeFolder {
 public:
  RuntimeFolder();

 private:
  std::optional<host::TemporaryFolder> folder_;
};

}  // namespace apps
