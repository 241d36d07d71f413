#include "samples/geometry/Unwrap.h"

#include <map>
#include <tuple>

namespace samples {
namespace {

class Appender {
 public:
  Appender(host::Mesh& mesh, const Surface& surface, const Field& field, double blur, const Unwrap& unwrap)
      : m_mesh(mesh), m_surface(surface), m_unwrap(unwrap) {
    m_normals.reserve(surface.positions.size());
    for (const Vec3& position : surface.positions) m_normals.push_back(field.slope(position, blur).normal);
  }

  void run(std::uint16_t materialId) {
    m_mesh.materialIds.resize(m_mesh.triangles.size(), 0);
    for (const Surface::Triangle& triangle : m_surface.triangles) {
      const Vec3 centre =
          (m_surface.positions[triangle[0]] + m_surface.positions[triangle[1]] + m_surface.positions[triangle[2]]) *
          (1.0 / 3.0);
      const int panel = m_unwrap.panel(centre, normalized(m_surface.areaNormal(triangle)));
      const double turn = m_unwrap.wrap(panel, centre).turn;
      m_mesh.triangles.push_back(
          {vertex(triangle[0], panel, turn), vertex(triangle[1], panel, turn), vertex(triangle[2], panel, turn)});
      m_mesh.materialIds.push_back(materialId);
    }
  }

 private:
  std::uint32_t vertex(std::uint32_t source, int panel, double turn) {
    Wrapped wrapped = m_unwrap.wrap(panel, m_surface.positions[source]);
    int shift = 0;
    if (wrapped.girth > 0) shift = static_cast<int>(std::lround(turn - wrapped.turn));
    const auto next = static_cast<std::uint32_t>(m_mesh.positions.size());
    const auto [found, added] = m_vertices.try_emplace({source, panel, shift}, next);
    if (!added) return found->second;
    wrapped.turn += shift;
    m_mesh.positions.push_back(toPoint(m_surface.positions[source]));
    m_mesh.normals.push_back(toPoint(m_normals[source]));
    m_mesh.texCoords.push_back(m_unwrap.coordinates(panel, wrapped));
    return next;
  }

  static Point3 toPoint(const Vec3& v) {
    return {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)};
  }

  host::Mesh& m_mesh;
  const Surface& m_surface;
  const Unwrap& m_unwrap;
  std::vector<Vec3> m_normals;
  std::map<std::tuple<std::uint32_t, int, int>, std::uint32_t> m_vertices;
};

}  // namespace

Wrapped wrapAround(double x, double y, double along, double girth) {
  return {std::atan2(x, y) / (2 * kPi), along, girth};
}

host::TexCoord Unwrap::coordinates(int, const Wrapped& wrapped) const {
  const double across = wrapped.girth > 0 ? wrapped.turn * wrapped.girth : wrapped.turn;
  return {static_cast<float>(across / kTile), static_cast<float>(wrapped.length / kTile)};
}

void appendSurface(host::Mesh& mesh, const Surface& surface, const Field& field, double blur, const Unwrap& unwrap,
                   std::uint16_t materialId) {
  Appender(mesh, surface, field, blur, unwrap).run(materialId);
}

}  // namespace samples
