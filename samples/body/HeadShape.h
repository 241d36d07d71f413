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

  FieldPtr head() const { return m_head; }
  FieldPtr hair() const { return m_hair; }

  /// Axes as the head's, origin at the chin's height; centimetres.
  const Frame& frame() const { return m_frame; }
  double height() const { return m_height; }
  Vec3 place(double x, double y, double z) const { return m_frame.point(Vec3{x, y, z} * m_height); }

 private:
  void addSkull(BlobField& field) const;
  void addEyes(BlobField& field) const;
  void addNoseAndMouth(BlobField& field) const;
  void addEars(BlobField& field) const;

  Frame at(double x, double y, double z, const Vec3& turned = {}) const;
  Vec3 size(double x, double y, double z) const { return Vec3{x, y, z} * m_height; }

  double m_height;
  double m_femininity;
  Frame m_frame;
  FieldPtr m_head;
  FieldPtr m_hair;
};

}  // namespace samples
