#pragma once

namespace host {

/// The system unit: one scene unit is `scale` of `type`.
class Units {
 public:
  int type() const { return type_; }
  float scale() const { return scale_; }
  /// False, and nothing changed, for an unknown type or a scale that is not above zero.
  bool set(int type, float scale);
  /// How many of `type` one scene unit is; -1 for an unknown type.
  double sceneUnitIn(int type) const;

 private:
  int type_ = 4;
  float scale_ = 1.0F;
};

}  // namespace host
