#pragma once

#include <color.h>
#include <point3.h>

namespace host {

// The light of every picture: a warm sun from the front left, a blue sky, and what a pale floor throws back. Chosen so
// that a fully lit white surface comes out just below white.

/// From a place to the middle of the sun; unit length.
Point3 sunDirection();
/// What a surface facing the sun receives.
Color sunLight();
/// What comes from a direction of the sky, above the horizon or below it.
Color skyLight(const Point3& direction);
/// What a level surface receives from the whole open sky.
Color openSkyLight();

/// Sine of the angle at which the edge of the sun stands from its middle; wider than the real one, for soft shadows.
constexpr float SUN_RADIUS = 0.048F;

}  // namespace host
