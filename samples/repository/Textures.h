#pragma once

#include <QColor>
#include <QImage>
#include <cstdint>
#include <vector>

#include "samples/people/Face.h"

namespace samples {

/// Pictures for materials, drawn by computation. All but the skin are tiles that repeat without a seam.
class Textures {
 public:
  explicit Textures(std::uint64_t seed, int size = 512) : seed_(seed), size_(size) {}

  /// Near white, to be multiplied with a material's colour: threads of cloth, grain of leather.
  QImage weave() const;
  QImage knit() const;
  QImage leather() const;
  QImage denim(const QColor& color) const;
  /// `count` stripes to a tile; `width` is a stripe's share of its distance.
  QImage stripes(const QColor& base, const QColor& stripe, int count, double width, bool upright) const;
  QImage check(const QColor& base, const QColor& line, const QColor& second, int count) const;
  QImage dots(const QColor& base, const QColor& dot, int count, double radius) const;
  QImage tweed(const QColor& base, const QColor& fleck) const;
  /// Puffed lozenges with a seam between them.
  QImage quilt(const QColor& base) const;
  QImage felt() const;
  /// Upright bands of equal width; the tile repeats after the last.
  QImage bands(const std::vector<QColor>& colors) const;
  QImage flowers(const QColor& base, const QColor& petal, const QColor& heart) const;
  QImage wood(const QColor& base) const;
  QImage straw(const QColor& base) const;

  /// Upper half the head from ear to ear around, chin at a twelfth and crown at eleven twelfths; lower half the body.
  QImage skin(const Face& face) const;

 private:
  template <typename Paint>
  QImage paint(Paint paint) const;

  std::uint64_t seed_;
  int size_;
};

}  // namespace samples
