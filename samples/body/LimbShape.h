#pragma once

#include "samples/body/Skeleton.h"
#include "samples/geometry/BlobField.h"

namespace samples {

/// Shoulder to wrist.
FieldPtr makeArm(const Skeleton& skeleton, Side side);
/// Palm, four fingers and the thumb.
FieldPtr makeHand(const Skeleton& skeleton, Side side);
/// Hip to ankle.
FieldPtr makeLeg(const Skeleton& skeleton, Side side);
/// The foot with its flat sole, `grown` by so many centimetres everywhere but at the sole.
FieldPtr makeFoot(const Skeleton& skeleton, Side side, double grown = 0);

}  // namespace samples
