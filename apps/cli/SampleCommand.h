#pragma once

#include <cstdint>
#include <filesystem>

namespace cli {

struct SampleCommandOptions {
  std::filesystem::path folder;
  std::uint64_t seed = 1;
  bool force = false;
};

/// Answers an exit status.
int runSample(const SampleCommandOptions& options);

}  // namespace cli
