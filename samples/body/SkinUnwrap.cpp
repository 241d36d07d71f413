#include "samples/body/SkinUnwrap.h"

namespace samples {
namespace {

constexpr int kHead = static_cast<int>(BodyPart::Head);

}  // namespace

SkinUnwrap::SkinUnwrap(std::shared_ptr<const ImplicitBody> body)
    : m_body(std::move(body)), m_limbs(m_body, ClothUnwrap::Kind::Top) {}

int SkinUnwrap::panel(const Vec3& place, const Vec3&) const { return static_cast<int>(m_body->partAt(place)); }

Wrapped SkinUnwrap::wrap(int panel, const Vec3& p) const {
  if (panel != kHead) return m_limbs.wrap(panel, p);
  const Vec3 local = m_body->headShape().frame().local(p) * (1.0 / m_body->headShape().height());
  return wrapAround(local.x, -local.y, local.z, 1);
}

host::TexCoord SkinUnwrap::coordinates(int panel, const Wrapped& wrapped) const {
  const double u = 0.5 + wrapped.turn;
  // The head fills the upper half from a little below the chin to a little above the crown.
  const double v = panel == kHead ? 0.5 + 0.5 * std::clamp((wrapped.length + 0.1) / 1.2, 0.01, 0.99)
                                  : 0.25 + 0.20 * std::sin(wrapped.length / 60.0);
  return {static_cast<float>(u), static_cast<float>(v)};
}

}  // namespace samples
