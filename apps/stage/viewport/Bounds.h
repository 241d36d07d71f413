#pragma once

#include <box3.h>

#include "host/scene/Node.h"

namespace stage {

/// Around a node and everything below it, in the world; empty where nothing takes room.
Box3 boundsWithChildren(host::Node& node);

/// One of the eight corners: bit 0 of its number is X, bit 1 Y, bit 2 Z.
Point3 cornerOf(const Box3& box, unsigned number);

}  // namespace stage
