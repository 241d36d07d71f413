#pragma once

#include "apps/support/LoadedRepository.h"
#include "core/LogStore.h"

namespace cli {

/// A loaded repository with a log of what is done with it.
class LoadedRepository {
 public:
  /// Look at error() before anything else.
  explicit LoadedRepository(const std::filesystem::path& root) : repository_(root) {}

  const std::string& error() const { return repository_.error(); }
  const std::vector<ZORVEL::ParseNote>& notes() const { return repository_.notes(); }

 private:
  struct Log {
    Log() { ZORVEL::LogStore::Create(); }
    ~Log() { ZORVEL::LogStore::Free(); }
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;
  };

  Log log_;
  apps::LoadedRepository repository_;
};

}  // namespace cli
