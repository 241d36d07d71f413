#pragma once

#include <inode.h>

namespace cli {

/// Places a new character as two clicks in a viewport do, with the mode of the plug-in that takes them. Only the way
/// between them is not left to whole pixels: position (scene units) and turn (degrees about Z) are exactly as given.
void placeByClicks(INode& parent, const Point3& position, float degrees);

}  // namespace cli
