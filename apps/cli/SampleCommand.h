#pragma once

#include <cstdint>
#include <filesystem>

namespace cli {

struct SampleCommandOptions {
  std::filesystem::path folder;
  int characters = 6;
  std::uint64_t seed = 1;
  /// Leaves nothing out.
  bool complete = false;
  std::filesystem::path contactSheets;
  bool force = false;
};

/// Answers an exit status.
int runSample(const SampleCommandOptions& options);

}  // namespace cli
