#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "samples/geometry/Box.h"
#include "samples/geometry/Frame.h"

namespace samples {

/// A solid described by its distance: negative inside, positive outside, about right in size near the surface.
class Field {
 public:
  virtual ~Field() = default;
  virtual double distance(const Vec3& point) const = 0;
  /// Holds the whole surface.
  virtual Box bounds() const = 0;

  struct Slope {
    Vec3 normal;  ///< outward, unit length
    double distance = 0;
  };
  /// What four samples around the point tell; the distance is the field's divided by its steepness.
  Slope slope(const Vec3& point, double step = 0.06) const;
  Vec3 normal(const Vec3& point) const { return slope(point).normal; }
};

using FieldPtr = std::shared_ptr<const Field>;

/// A field made of a function, for cuts and offsets of other fields.
class FunctionField : public Field {
 public:
  using Function = std::function<double(const Vec3&)>;
  FunctionField(Function function, const Box& box) : function_(std::move(function)), bounds_(box) {}

  double distance(const Vec3& point) const override { return function_(point); }
  Box bounds() const override { return bounds_; }

 private:
  Function function_;
  Box bounds_;
};

FieldPtr makeField(FunctionField::Function function, const Box& box);

}  // namespace samples
