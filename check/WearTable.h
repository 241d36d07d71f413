#pragma once

#include <string>
#include <vector>

namespace check {

/// What becomes of a clothing in a pose. The order is from good to bad.
enum class WearState {
  Builds,
  Incomplete,  ///< it can be chosen, and is built without its body or its clothing
  Grey,        ///< the pose is shown as not available
  Hidden,      ///< the pose is not shown for the clothing, or the clothing itself is not
  Unchoosable  ///< one of the two is shown, and nothing of it can be built
};

/// All texts are those of a finding, and as printable.
struct WearCell {
  WearState state = WearState::Builds;
  /// Why it does not build, for the middle of a sentence; empty when it does.
  std::string reason;
  /// That is missing or cannot be read, below the root; empty when no file is to blame.
  std::string file;
  /// Of the finding that says so.
  std::string code;
};

/// A clothing, with a cell for each pose of the table.
struct WearRow {
  std::string clothing;
  /// As in a finding.
  std::string element;
  std::vector<WearCell> cells;
};

/// A character's clothes, in the order of the window and behind them those that were dropped, in its poses.
struct WearTable {
  std::string character;
  std::string element;
  /// Why there is no table: the character was left out. Else empty.
  std::string whyNone;
  std::vector<std::string> poses;
  std::vector<WearRow> rows;
};

/// "builds", "incomplete", "grey", "hidden", "unchoosable".
const char* nameOf(WearState state);

}  // namespace check
