#include "apps/stage/StageOptions.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "apps/support/ExitStatus.h"
#include "host/files/PrintableText.h"

namespace stage {

using namespace apps;

namespace {

const char* const FOOTER =
    "In the viewport: middle button pans, Alt and middle (or left) button orbits, the wheel zooms, Z frames the "
    "selection, Shift+Z everything. Esc cancels a command that waits for the mouse, Q goes back to selecting.\n"
    "Without a display set QT_QPA_PLATFORM=offscreen and give --quit.\n"
    "Exit status: 0 clean, 1 a script was not understood, 2 wrong usage, 3 module, scene or repository unreadable, "
    "4 internal error or a file that could not be written.";

void describe(CLI::App& app, StageOptions& options) {
  app.add_option("SCENE", options.scene, "Scene file to open");
  app.add_option("--repository", options.repository,
                 "Repository for the plug-in to use; it gets settings of its own, the user's are left alone");
  app.add_option(
      "--module", options.module,
      "Plug-in module to load; unless given the one beside this program: zorvel-diagnostic.gup, which says why "
      "something is not built, or zorvel.gup");
  app.add_option("--script", options.scripts, "Line of script to run at start; may be repeated")
      ->type_size(1)
      ->allow_extra_args(false);
  app.add_option("--picture", options.picture, "Draw the view into a PNG file, after the scripts");
  app.add_option("--window-picture", options.windowPicture, "Write what the window looks like into a PNG file");
  app.add_flag("--quit", options.quit, "Quit when that is done; asks nothing");
  app.footer(FOOTER);
  app.set_version_flag("--version", "zorvel-stage 1.0.0");
}

}  // namespace

ParsedOptions parseOptions(int argc, const char* const* argv) {
  StageOptions options;
  CLI::App app("zorvel-stage: a window onto the embedded host, with the plug-in loaded");
  describe(app, options);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return {std::nullopt, app.exit(error)};
    host::printLine(std::cerr, std::string("zorvel-stage: ") + error.what() + " (--help says more)");
    return {std::nullopt, EXIT_USAGE};
  }
  return {options, EXIT_CLEAN};
}

}  // namespace stage
