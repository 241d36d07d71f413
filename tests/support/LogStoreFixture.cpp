#include "tests/support/LogStoreFixture.h"

#include <algorithm>

#include "host/files/Paths.h"

namespace support {

namespace {

void putBack(const std::vector<ZORVEL::LogEntry>& entries) {
  ZORVEL::LogStore::Clear();
  for (const ZORVEL::LogEntry& entry : entries) ZORVEL::LogStore::Add(entry.level, entry.text.c_str());
}

std::string listed(const std::vector<ZORVEL::LogEntry>& entries) {
  std::string text = "the log holds:";
  for (const ZORVEL::LogEntry& entry : entries) {
    text += "\n  " + std::to_string(entry.level) + " " + host::toUtf8(entry.text);
  }
  return text;
}

bool isComplaint(const ZORVEL::LogEntry& entry) { return entry.level != ZORVEL::DEBUG_INFO; }

}  // namespace

void LogStoreFixture::SetUp() { ASSERT_TRUE(ZORVEL::LogStore::Create()); }

void LogStoreFixture::TearDown() {
  for (const ZORVEL::LogEntry& entry : ZORVEL::LogStore::Entries()) {
    if (entry.level == ZORVEL::DEBUG_ERROR) ADD_FAILURE() << "unexpected error: " << host::toUtf8(entry.text);
  }
  ZORVEL::LogStore::Free();
}

void LogStoreFixture::expectLogged(ZORVEL::DEBUG_TYPE level, const std::wstring& text) {
  std::vector<ZORVEL::LogEntry> entries = ZORVEL::LogStore::Entries();
  const auto found = std::find_if(entries.begin(), entries.end(), [&](const ZORVEL::LogEntry& entry) {
    return entry.level == level && entry.text == text;
  });
  if (found == entries.end()) {
    ADD_FAILURE() << "not logged: " << host::toUtf8(text) << "; " << listed(entries);
    return;
  }
  entries.erase(found);
  putBack(entries);
}

void LogStoreFixture::expectComplaints(const std::vector<std::wstring>& texts) {
  std::vector<ZORVEL::LogEntry> entries = ZORVEL::LogStore::Entries();
  std::vector<std::wstring> complaints;
  for (const ZORVEL::LogEntry& entry : entries) {
    if (isComplaint(entry)) complaints.push_back(entry.text);
  }
  EXPECT_EQ(complaints, texts) << listed(entries);
  entries.erase(std::remove_if(entries.begin(), entries.end(), isComplaint), entries.end());
  putBack(entries);
}

int LogStoreFixture::countLogged(const std::wstring& text) const {
  const std::vector<ZORVEL::LogEntry> entries = ZORVEL::LogStore::Entries();
  return static_cast<int>(
      std::count_if(entries.begin(), entries.end(), [&](const ZORVEL::LogEntry& entry) { return entry.text == text; }));
}

void LogStoreFixture::clearLog() { ZORVEL::LogStore::Clear(); }

}  // namespace support
