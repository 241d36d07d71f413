#include "samples/Unwrap.h"

#include <map>
#include <tuple>

namespace samples {
namespace {

constexpr int kTrunk = 0;
constexpr int kHead = 1;
constexpr int kLeftArm = 2;
constexpr int kRightArm = 3;
constexpr int kLeftLeg = 4;
constexpr int kRightLeg = 5;

// On both sides of the plane that halves a bent joint the cloth is drawn together outside and apart inside, so that the
// lengths along both bones meet there.
Vec3 alongLimb(const Limb& limb, const Vec3& p) {
  const Vec3 fromJoint = p - limb.joint();
  const double beyond = dot(fromJoint, normalized(limb.upper.z + limb.lower.z));
  const double drawn = 0.5 * dot(fromJoint, limb.upper.z - limb.lower.z) * (1 - smoothStep(0, 12, std::abs(beyond)));
  const Vec3 upper = limb.upper.local(p) - Vec3{0, 0, drawn};
  const Vec3 lower = limb.lower.local(p) + Vec3{0, 0, limb.upperLength + drawn};
  return mix(upper, lower, smoothStep(-3, 3, beyond));
}

Wrapped around(double x, double y, double along, double girth) { return {std::atan2(x, y) / (2 * kPi), along, girth}; }

Wrapped wrapLimb(const Limb& limb, Side side, const Vec3& p, double girth) {
  const Vec3 q = alongLimb(limb, p);
  // The seam runs along the inner side.
  return around(q.y, -sign(side) * q.x, -q.z, girth);
}

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

host::TexCoord Unwrap::coordinates(int, const Wrapped& wrapped) const {
  const double across = wrapped.girth > 0 ? wrapped.turn * wrapped.girth : wrapped.turn;
  return {static_cast<float>(across / kTile), static_cast<float>(wrapped.length / kTile)};
}

ClothUnwrap::ClothUnwrap(std::shared_ptr<const ImplicitBody> body, Kind kind)
    : m_body(std::move(body)), m_lap(m_body->skeleton()), m_kind(kind) {}

int ClothUnwrap::panel(const Vec3& place, const Vec3&) const {
  if (m_kind == Kind::Trousers) {
    const Skeleton& skeleton = m_body->skeleton();
    const double left = m_body->legDistance(Side::Left, place);
    const double right = m_body->legDistance(Side::Right, place);
    const bool high = skeleton.toRest(place).z > skeleton.restPelvis() - 0.04 * skeleton.stature();
    const bool isLeft = high ? skeleton.pelvis().local(place).x > 0 : left < right;
    return isLeft ? kLeftLeg : kRightLeg;
  }
  const double trunk = std::min(
      {m_body->trunkDistance(place), m_body->legDistance(Side::Left, place), m_body->legDistance(Side::Right, place)});
  for (const Side side : {Side::Left, Side::Right}) {
    if (m_body->armDistance(side, place) < trunk - 0.8) return side == Side::Left ? kLeftArm : kRightArm;
  }
  return kTrunk;
}

Wrapped ClothUnwrap::wrap(int panel, const Vec3& p) const {
  const Skeleton& skeleton = m_body->skeleton();
  switch (panel) {
    case kLeftArm:
      return wrapLimb(skeleton.arm(Side::Left), Side::Left, p, 40);
    case kRightArm:
      return wrapLimb(skeleton.arm(Side::Right), Side::Right, p, 40);
    case kLeftLeg:
      return wrapLimb(skeleton.leg(Side::Left), Side::Left, p, 60);
    case kRightLeg:
      return wrapLimb(skeleton.leg(Side::Right), Side::Right, p, 60);
    default:
      break;
  }
  const Vec3 rest = m_kind == Kind::Dress ? m_lap.straight(p) : skeleton.toRest(p);
  return around(rest.x, -rest.y, rest.z, 100);
}

SkinUnwrap::SkinUnwrap(std::shared_ptr<const ImplicitBody> body)
    : m_body(std::move(body)), m_limbs(m_body, ClothUnwrap::Kind::Top) {}

int SkinUnwrap::panel(const Vec3& place, const Vec3&) const { return static_cast<int>(m_body->partAt(place)); }

Wrapped SkinUnwrap::wrap(int panel, const Vec3& p) const {
  if (panel != kHead) return m_limbs.wrap(panel, p);
  const Vec3 local = m_body->headShape().frame().local(p) * (1.0 / m_body->headShape().height());
  return around(local.x, -local.y, local.z, 1);
}

host::TexCoord SkinUnwrap::coordinates(int panel, const Wrapped& wrapped) const {
  const double u = 0.5 + wrapped.turn;
  // The head fills the upper half from a little below the chin to a little above the crown.
  const double v = panel == kHead ? 0.5 + 0.5 * std::clamp((wrapped.length + 0.1) / 1.2, 0.01, 0.99)
                                  : 0.25 + 0.20 * std::sin(wrapped.length / 60.0);
  return {static_cast<float>(u), static_cast<float>(v)};
}

int BoxUnwrap::panel(const Vec3&, const Vec3& n) const {
  const double x = std::abs(n.x), y = std::abs(n.y), z = std::abs(n.z);
  if (y >= x && y >= z) return n.y < 0 ? 0 : 1;
  if (x >= z) return n.x > 0 ? 2 : 3;
  return n.z > 0 ? 4 : 5;
}

Wrapped BoxUnwrap::wrap(int panel, const Vec3& p) const {
  switch (panel) {
    case 0:
      return {p.x, p.z, 0};
    case 1:
      return {-p.x, p.z, 0};
    case 2:
      return {p.y, p.z, 0};
    case 3:
      return {-p.y, p.z, 0};
    case 4:
      return {p.x, p.y, 0};
    default:
      return {p.x, -p.y, 0};
  }
}

void appendSurface(host::Mesh& mesh, const Surface& surface, const Field& field, double blur, const Unwrap& unwrap,
                   std::uint16_t materialId) {
  Appender(mesh, surface, field, blur, unwrap).run(materialId);
}

}  // namespace samples
