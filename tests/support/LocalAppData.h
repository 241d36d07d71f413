#pragma once

#include "host/files/LocalAppData.h"
#include "tests/support/TemporaryFolder.h"

namespace support {

/// Gives the test a local application-data folder of its own, as long as it lives.
class LocalAppData {
 public:
  const TemporaryFolder& folder() const { return folder_; }

 private:
  TemporaryFolder folder_;
  host::LocalAppData appData_{folder_.path()};
};

}  // namespace support
