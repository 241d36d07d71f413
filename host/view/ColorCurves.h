#pragma once

#include <color.h>

namespace host {

/// sRGB, as a colour picker or a picture file gives it, to linear light and back; 0 to 1 each.
float toLinear(float srgb);
float toSrgb(float linear);
inline Color toLinear(const Color& srgb) { return {toLinear(srgb.r), toLinear(srgb.g), toLinear(srgb.b)}; }

/// Light of any strength to what a picture can hold: nearly straight in the middle, highlights rolled off as film does.
Color filmic(const Color& light);

}  // namespace host
