#pragma once

#include <optional>

#include "apps/stage/RepositorySettings.h"
#include "apps/stage/StageOptions.h"
#include "apps/stage/StageWindow.h"
#include "apps/support/ExitStatus.h"

namespace stage {

/// One run of the program: the window, the loaded module, and what was asked for on the command line.
class Stage {
 public:
  explicit Stage(StageOptions options);
  /// Shuts the module down before the window goes.
  ~Stage();
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  /// Does what was asked for, and then waits until the window is closed, unless it is to quit. Answers an exit status.
  int run();
  StageWindow& window() { return window_; }

 private:
  void prepare();
  void loadModule();
  void runScripts();
  void writePictures();
  void complain(const QString& text, int status);

  StageOptions options_;
  std::optional<RepositorySettings> settings_;
  StageWindow window_;
  int status_ = apps::EXIT_CLEAN;
};

}  // namespace stage
