#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace samples {

struct SampleOptions {
  /// The first so many people; after six they come again as variations. 1 to 1000.
  int characters = 6;
  /// Changes the texture of cloth, skin and wood, nothing that a description names.
  std::uint64_t seed = 1;
  /// Leaves nothing out on purpose: every folder and mesh that the description names is there.
  bool isComplete = false;
  /// 1 is the quality meant for people; 3 is rough and quick.
  double coarseness = 1;
  /// Samples for each pixel of a preview.
  int previewSamples = 12;
  /// 0 takes one for each processor; what is written is the same with any number.
  unsigned threads = 0;
  /// Where to put one picture of each character in all poses and outfits; empty for nowhere.
  std::filesystem::path contactSheets = {};
};

/// Told the share that is done, from 0 to 1; always in the calling thread.
using SampleProgress = std::function<void(double share)>;

/// Writes a complete repository into the folder, which is made when it is missing: characters with poses, clothing,
/// skins, assets, pictures and a description. The same options give the same bytes. Files that are already there are
/// replaced, others are left alone. Answers an empty text, or what went wrong.
[[nodiscard]] std::string writeSampleRepository(const std::filesystem::path& folder, const SampleOptions& options = {},
                                                const SampleProgress& progress = {});

}  // namespace samples
