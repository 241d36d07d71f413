#include "core/LogStore.h"

#include <gtest/gtest.h>

#include <thread>

namespace ZORVEL {

TEST(LogStore, DropsMessagesUnlessItExistsAndStartsEmptyEachTime) {
  LogStore::Free();
  Debug::AddDebugMessage(DEBUG_ERROR, L"lost");
  EXPECT_FALSE(LogStore::Exists());
  ASSERT_TRUE(LogStore::Create());
  Debug::AddDebugMessage(DEBUG_WARNING, L"two\nlines");
  Debug::AddDebugMessage(DEBUG_INFO, L"");
  Debug::AddDebugMessage(DEBUG_INFO, nullptr);
  ASSERT_EQ(LogStore::Entries().size(), 3U);
  EXPECT_EQ(LogStore::Entries()[0].level, DEBUG_WARNING);
  EXPECT_EQ(LogStore::Entries()[0].text, L"two\nlines");
  ASSERT_TRUE(LogStore::Create());
  EXPECT_TRUE(LogStore::Entries().empty());
  LogStore::Free();
  LogStore::Free();
  EXPECT_TRUE(LogStore::Entries().empty());
}

TEST(LogStore, TakesMessagesFromSeveralThreads) {
  ASSERT_TRUE(LogStore::Create());
  const auto talk = [] {
    for (int i = 0; i < 500; ++i) Debug::AddDebugMessage(DEBUG_INFO, L"message");
  };
  std::thread other(talk);
  talk();
  other.join();
  EXPECT_EQ(LogStore::Entries().size(), 1000U);
  LogStore::Free();
}

}  // namespace ZORVEL
