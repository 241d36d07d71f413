#include "core/LogStore.h"

#include <memory>
#include <mutex>
#include <new>
#include <utility>

namespace ZORVEL {

namespace {

struct Store {
  std::mutex mutex;
  std::unique_ptr<std::vector<LogEntry>> entries;
  LogStore::Listener listener;
};

Store& TheStore() {
  static Store instance;
  return instance;
}

}  // namespace

bool LogStore::Create() {
  std::unique_ptr<std::vector<LogEntry>> fresh(new (std::nothrow) std::vector<LogEntry>);
  const bool created = fresh != nullptr;
  std::lock_guard<std::mutex> lock(TheStore().mutex);
  TheStore().entries = std::move(fresh);
  return created;
}

void LogStore::Free() {
  std::lock_guard<std::mutex> lock(TheStore().mutex);
  TheStore().entries.reset();
}

bool LogStore::Exists() {
  std::lock_guard<std::mutex> lock(TheStore().mutex);
  return TheStore().entries != nullptr;
}

void LogStore::Add(DEBUG_TYPE level, const wchar_t* text) {
  const wchar_t* const message = text ? text : L"";
  Listener listener;
  try {
    std::lock_guard<std::mutex> lock(TheStore().mutex);
    if (!TheStore().entries) return;
    TheStore().entries->push_back({level, message});
    listener = TheStore().listener;
  } catch (const std::bad_alloc&) {
    // Losing a message is better than failing the operation that reports it.
  }
  if (listener) listener(level, message);
}

void LogStore::SetListener(Listener listener) {
  std::lock_guard<std::mutex> lock(TheStore().mutex);
  TheStore().listener = std::move(listener);
}

std::vector<LogEntry> LogStore::Entries() {
  std::lock_guard<std::mutex> lock(TheStore().mutex);
  return TheStore().entries ? *TheStore().entries : std::vector<LogEntry>();
}

void LogStore::Clear() {
  std::lock_guard<std::mutex> lock(TheStore().mutex);
  if (TheStore().entries) TheStore().entries->clear();
}

}  // namespace ZORVEL
