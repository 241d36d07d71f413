#include <gtest/gtest.h>

#include "core/Debug.h"
#include "core/LogStore.h"

namespace {

using ZORVEL::Debug;
using ZORVEL::LogStore;

TEST(ShippedSink, DiscardsEveryMessage) {
  ASSERT_TRUE(LogStore::Create());
  for (const auto level : {ZORVEL::DEBUG_INFO, ZORVEL::DEBUG_WARNING, ZORVEL::DEBUG_ERROR}) {
    Debug::AddDebugMessage(level, L"Parse Folder:");
    Debug::AddDebugMessage(level, L"");
    Debug::AddDebugMessage(level, L"several\r\nlines");
  }
  EXPECT_TRUE(LogStore::Entries().empty());
  LogStore::Free();
}

}  // namespace
