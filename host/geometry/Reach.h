#pragma once

#include <box3.h>
#include <point3.h>

namespace host {

/// In scene units: the places of things that are shown, measured and hit. Squares and cubes of such lengths are still
/// numbers in single precision, and a country in millimetres fits in.
constexpr float FARTHEST_PLACE = 1e10F;

/// No further than that along any axis; never for what is no number.
bool isWithin(float farthest, const Point3& p);
/// Of a box that is not empty, all of it.
bool isWithin(float farthest, const Box3& box);

}  // namespace host
