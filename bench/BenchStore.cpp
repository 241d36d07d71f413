#include "bench/BenchStore.h"

#include <memory>
#include <stdexcept>

#include "apps/support/LoadedRepository.h"

namespace bench {

namespace {

std::unique_ptr<apps::LoadedRepository> loaded;

}  // namespace

void loadRepository(const std::filesystem::path& root) {
  unloadRepository();
  loaded = std::make_unique<apps::LoadedRepository>(root);
  if (!loaded->error().empty()) throw std::runtime_error(loaded->error());
}

void unloadRepository() { loaded.reset(); }

}  // namespace bench
