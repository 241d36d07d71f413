#pragma once

#include <optional>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace support {

/// Gives the test a local application-data folder of its own, as long as it lives.
class LocalAppData {
 public:
  LocalAppData();
  ~LocalAppData();
  LocalAppData(const LocalAppData&) = delete;
  LocalAppData& operator=(const LocalAppData&) = delete;

  const TemporaryFolder& folder() const { return folder_; }

 private:
  TemporaryFolder folder_;
  std::optional<std::string> previous_;
};

}  // namespace support
