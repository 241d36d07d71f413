#pragma once

#include "samples/geometry/Field.h"
#include "samples/geometry/Primitives.h"
#include "samples/geometry/Surface.h"

namespace support {

inline samples::FieldPtr field(samples::FunctionField::Function distance, double reach) {
  return samples::makeField(std::move(distance), {{-reach, -reach, -reach}, {reach, reach, reach}});
}
inline samples::FieldPtr ball(double radius) {
  return field([=](const samples::Vec3& p) { return length(p) - radius; }, radius);
}
inline samples::FieldPtr ring(double radius, double thickness) {
  return field([=](const samples::Vec3& p) { return samples::torusDistance(p, radius, thickness); },
               radius + thickness);
}
/// With sharp edges.
inline samples::FieldPtr block(const samples::Vec3& half) {
  return field([=](const samples::Vec3& p) { return samples::boxDistance(p, half, 0); },
               std::max({half.x, half.y, half.z}));
}
/// A hollow ball; its wall lies half inside and half outside of the radius.
inline samples::FieldPtr shell(double radius, double wall) {
  return field([=](const samples::Vec3& p) { return std::abs(length(p) - radius) - 0.5 * wall; }, radius + wall);
}

/// Whether every edge lies between just two triangles that run along it in opposite directions.
bool isClosed(const samples::Surface& surface);
/// Two for each whole, less two for each hole through it.
int eulerNumber(const samples::Surface& surface);
double volume(const samples::Surface& surface);
/// The largest distance of a vertex or a triangle's middle from the field's surface.
double largestError(const samples::Surface& surface, const samples::Field& field);
/// Triangles that face against the field or have no area.
int wrongTriangles(const samples::Surface& surface, const samples::Field& field);

}  // namespace support
