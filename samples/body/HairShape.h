#pragma once

#include "samples/geometry/Field.h"

namespace samples {

enum class HairStyle {
  Short,
  Bob,
  Ponytail,
  Long,
  Bun,
  Receding,  ///< bald on top, a wreath from temple to temple
  Curly,     ///< a soft mop that covers half the ears
};

/// The hair on a head. Origin and axes of the frame are the head's, which is `height` centimetres from chin to crown.
FieldPtr makeHair(HairStyle style, const Frame& head, double height);

}  // namespace samples
