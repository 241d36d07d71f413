#pragma once

#include <algorithm>

namespace samples {

/// What makes one body differ from another. Lengths are parts of the stature unless they say centimetres.
struct Proportions {
  double stature = 175;   ///< centimetres, without shoes
  double heads = 7.5;     ///< how many heads make the stature; children have fewer
  double femininity = 0;  ///< 0 a man's outline, 1 a woman's
  double fullness = 0;    ///< 0 lean; 1 adds about three centimetres around the waist
  double muscle = 0.5;    ///< 0 slight, 1 strong
  double belly = 0;       ///< 1 adds about five centimetres in front of the waist and nowhere else
  double shoulders = 1;   ///< factor on the width of the shoulders
  double stoop = 0;       ///< 1 bends back and neck forward as far as old people do

  double headHeight() const { return stature / heads; }
  /// The stature of the same body with a head of usual size, which a child's body is built from.
  double bodyStature() const { return (stature - 1.29 * headHeight()) / 0.828; }
  /// 0 grown up, 1 a child, whose chest is flat and whose waist is straight.
  double childhood() const { return std::clamp(7.0 - heads, 0.0, 1.0); }
  double between(double man, double woman) const { return man + (woman - man) * femininity; }
};

}  // namespace samples
