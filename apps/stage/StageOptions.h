#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace stage {

/// What the stage is started with; empty paths were not given.
struct StageOptions {
  std::filesystem::path scene;
  std::filesystem::path repository;
  std::filesystem::path module;
  /// Run in that order.
  std::vector<std::string> scripts;
  std::filesystem::path picture;
  std::filesystem::path windowPicture;
  bool quit = false;

  /// What a program asked for, with nobody to answer questions.
  bool unattended() const { return quit; }
};

/// The options, or with none the exit status after the help was printed or a mistake was named.
struct ParsedOptions {
  std::optional<StageOptions> options;
  int status = 0;
};

ParsedOptions parseOptions(int argc, const char* const* argv);

}  // namespace stage
