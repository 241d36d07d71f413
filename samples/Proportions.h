#pragma once

namespace samples {

/// What makes one body differ from another. Lengths are parts of the stature unless they say centimetres.
struct Proportions {
  double stature = 175;   ///< centimetres, without shoes
  double heads = 7.5;     ///< how many heads make the stature; children have fewer
  double femininity = 0;  ///< 0 a man's outline, 1 a woman's
  double fullness = 0;    ///< 0 lean; 1 adds about three centimetres around the waist
  double muscle = 0.5;    ///< 0 slight, 1 strong

  double headHeight() const { return stature / heads; }
  double between(double man, double woman) const { return man + (woman - man) * femininity; }
};

}  // namespace samples
