#include "host/meshes/Polygon.h"

#include <algorithm>
#include <numeric>

namespace host {

namespace {

using Corners = std::vector<std::size_t>;

Point3 normalOf(const std::vector<Point3>& points) {
  Point3 sum;
  for (std::size_t i = 2; i < points.size(); ++i) sum += (points[i - 1] - points[0]) ^ (points[i] - points[0]);
  return sum;
}

class EarClipper {
 public:
  EarClipper(const std::vector<Point3>& points, std::size_t& effort)
      : points_(points), normal_(normalOf(points)), effort_(effort) {}

  /// A quad that is convex is cut from its first corner, as everyone expects; without any ear, it is cut anyhow.
  std::size_t findEar(const Corners& corners) const {
    std::size_t ear = 1;
    for (std::size_t tried = 0; tried < corners.size() && effort_ > 0 && !isEar(corners, ear); ++tried) {
      ear = (ear + 1) % corners.size();
    }
    return ear;
  }

 private:
  bool isEar(const Corners& corners, std::size_t at) const {
    const std::size_t before = corners[(at + corners.size() - 1) % corners.size()];
    const std::size_t here = corners[at];
    const std::size_t after = corners[(at + 1) % corners.size()];
    effort_ -= std::min<std::size_t>(effort_, 1);
    if (side(before, here, after) <= 0.0F) return false;
    effort_ -= std::min(effort_, corners.size());
    return std::none_of(corners.begin(), corners.end(), [&](std::size_t other) {
      if (other == before || other == here || other == after) return false;
      return side(before, here, other) >= 0.0F && side(here, after, other) >= 0.0F &&
             side(after, before, other) >= 0.0F;
    });
  }

  /// Positive where c lies left of the way from a to b.
  float side(std::size_t a, std::size_t b, std::size_t c) const {
    return ((points_[b] - points_[a]) ^ (points_[c] - points_[a])) % normal_;
  }

  const std::vector<Point3>& points_;
  Point3 normal_;
  std::size_t& effort_;
};

}  // namespace

std::vector<std::array<std::size_t, 3>> triangulated(const std::vector<Point3>& points, std::size_t& effort) {
  std::vector<std::array<std::size_t, 3>> triangles;
  Corners corners(points.size());
  std::iota(corners.begin(), corners.end(), std::size_t{0});
  const EarClipper clipper(points, effort);
  while (corners.size() > 3 && effort >= corners.size()) {
    const std::size_t ear = clipper.findEar(corners);
    const std::size_t count = corners.size();
    triangles.push_back({corners[(ear + count - 1) % count], corners[ear], corners[(ear + 1) % count]});
    corners.erase(corners.begin() + static_cast<std::ptrdiff_t>(ear));
  }
  for (std::size_t i = 2; i < corners.size(); ++i) triangles.push_back({corners[0], corners[i - 1], corners[i]});
  return triangles;
}

}  // namespace host
