#include "host/view/ColorCurves.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr float EXPOSURE = 0.72F;

float filmicChannel(float light) {
  const float x = std::max(0.0F, light) * EXPOSURE;
  // A rational curve with a short toe and a long shoulder.
  return std::min(1.0F, (x * (2.51F * x + 0.03F)) / (x * (2.43F * x + 0.59F) + 0.14F));
}

}  // namespace

float toLinear(float srgb) { return srgb <= 0.04045F ? srgb / 12.92F : std::pow((srgb + 0.055F) / 1.055F, 2.4F); }

float toSrgb(float linear) {
  return linear <= 0.0031308F ? linear * 12.92F : 1.055F * std::pow(linear, 1.0F / 2.4F) - 0.055F;
}

Color filmic(const Color& light) { return {filmicChannel(light.r), filmicChannel(light.g), filmicChannel(light.b)}; }

}  // namespace host
