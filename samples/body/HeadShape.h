#pragma once

#include "samples/body/HairShape.h"
#include "samples/body/Skeleton.h"
#include "samples/geometry/BlobField.h"

namespace samples {

/// Skull, face, ears and hair of one head. Places on it are parts of the head's height: chin at Z = 0, crown at Z = 1,
/// facing -Y.
class HeadShape {
 public:
  HeadShape(const Skeleton& skeleton, HairStyle hair);

  FieldPtr head() const { return head_; }
  FieldPtr hair() const { return hair_; }

  /// Axes as the head's, origin at the chin's height; centimetres.
  const Frame& frame() const { return frame_; }
  double height() const { return height_; }
  Vec3 place(double x, double y, double z) const { return frame_.point(Vec3{x, y, z} * height_); }

 private:
  void addSkull(BlobField& field) const;
  void addEyes(BlobField& field) const;
  void addNoseAndMouth(BlobField& field) const;
  void addEars(BlobField& field) const;

  Frame at(double x, double y, double z, const Vec3& turned = {}) const;
  Vec3 size(double x, double y, double z) const { return Vec3{x, y, z} * height_; }

  double height_;
  double femininity_;
  Frame frame_;
  FieldPtr head_;
  FieldPtr hair_;
};

}  // namespace samples
