#pragma once

enum ParamType2 {
  TYPE_FLOAT = 0,
  TYPE_INT = 1,
  TYPE_RGBA = 2,
  TYPE_POINT3 = 3,
  TYPE_BOOL = 4,
  TYPE_ANGLE = 5,
  TYPE_PCNT_FRAC = 6,
  TYPE_WORLD = 7,
  TYPE_STRING = 8,
  TYPE_FILENAME = 9,
  TYPE_MTL = 14,
  TYPE_TEXMAP = 15
};
