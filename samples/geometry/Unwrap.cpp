#include "samples/geometry/Unwrap.h"

#include <map>
#include <tuple>

namespace samples {
namespace {

class Appender {
 public:
  Appender(host::Mesh& mesh, const Surface& surface, const Field& field, double blur, const Unwrap& unwrap)
      : mesh_(mesh), surface_(surface), unwrap_(unwrap) {
    normals_.reserve(surface.positions.size());
    for (const Vec3& position : surface.positions) normals_.push_back(field.slope(position, blur).normal);
  }

  void run(std::uint16_t materialId) {
    mesh_.materialIds.resize(mesh_.triangles.size(), 0);
    for (const Surface::Triangle& triangle : surface_.triangles) {
      const Vec3 centre =
          (surface_.positions[triangle[0]] + surface_.positions[triangle[1]] + surface_.positions[triangle[2]]) *
          (1.0 / 3.0);
      const int panel = unwrap_.panel(centre, normalized(surface_.areaNormal(triangle)));
      const double turn = unwrap_.wrap(panel, centre).turn;
      mesh_.triangles.push_back(
          {vertex(triangle[0], panel, turn), vertex(triangle[1], panel, turn), vertex(triangle[2], panel, turn)});
      mesh_.materialIds.push_back(materialId);
    }
  }

 private:
  std::uint32_t vertex(std::uint32_t source, int panel, double turn) {
    Wrapped wrapped = unwrap_.wrap(panel, surface_.positions[source]);
    int shift = 0;
    if (wrapped.girth > 0) shift = static_cast<int>(std::lround(turn - wrapped.turn));
    const auto next = static_cast<std::uint32_t>(mesh_.positions.size());
    const auto [found, added] = vertices_.try_emplace({source, panel, shift}, next);
    if (!added) return found->second;
    wrapped.turn += shift;
    mesh_.positions.push_back(toPoint(surface_.positions[source]));
    mesh_.normals.push_back(toPoint(normals_[source]));
    mesh_.texCoords.push_back(unwrap_.coordinates(panel, wrapped));
    return next;
  }

  static Point3 toPoint(const Vec3& v) {
    return {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)};
  }

  host::Mesh& mesh_;
  const Surface& surface_;
  const Unwrap& unwrap_;
  std::vector<Vec3> normals_;
  std::map<std::tuple<std::uint32_t, int, int>, std::uint32_t> vertices_;
};

}  // namespace

Wrapped wrapAround(double x, double y, double along, double girth) {
  return {std::atan2(x, y) / (2 * PI), along, girth};
}

host::TexCoord Unwrap::coordinates(int, const Wrapped& wrapped) const {
  const double across = wrapped.girth > 0 ? wrapped.turn * wrapped.girth : wrapped.turn;
  return {static_cast<float>(across / TILE), static_cast<float>(wrapped.length / TILE)};
}

void appendSurface(host::Mesh& mesh, const Surface& surface, const Field& field, double blur, const Unwrap& unwrap,
                   std::uint16_t materialId) {
  Appender(mesh, surface, field, blur, unwrap).run(materialId);
}

}  // namespace samples
