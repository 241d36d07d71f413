#pragma once

#include <string>
#include <vector>

#include "apps/cli/CreateOptions.h"

namespace cli {

/// What became of the wishes: with errors nothing may be built; notes name assets that this choice does not offer.
struct ChoiceResult {
  std::vector<std::string> errors;
  std::vector<std::string> notes;
};

/// Sets the selection from the options, by the rules of the window: an asset that clothing or pose do not offer is left
/// out, and a category that takes one asset keeps the last. What is not asked for is the first that is usable.
ChoiceResult choose(const CreateOptions& options);

}  // namespace cli
