#pragma once

#include <string>

#include "check/Description.h"

namespace check {

/// Why going through the repository in the plug-in's store would take minutes and gigabytes; empty when it would not.
/// Every clothing is looked at with every pose, and each of them with every asset: a description that can be read in a
/// moment can ask for any amount of that.
/// `keepsOffers` says whether all of it is kept, of all characters.
std::string whyTooLarge(const Description& description, bool keepsOffers);

}  // namespace check
