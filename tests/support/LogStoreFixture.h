#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/LogStore.h"

namespace support {

/// A test with a log store of its own. An error that is logged and not expected fails it.
class LogStoreFixture : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// Fails unless the message was logged since the last call that spoke of it; each call uses one up.
  void expectLogged(ZORVEL::DEBUG_TYPE level, const std::wstring& text);
  /// Fails unless exactly these were logged at warning and error level, in this order, since the start or the last
  /// call; uses them up.
  void expectComplaints(const std::vector<std::wstring>& texts);
  int countLogged(const std::wstring& text) const;
  /// Forgets everything logged so far, expected or not.
  void clearLog();
};

}  // namespace support
