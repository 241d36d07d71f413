#include "samples/body/SkinUnwrap.h"

namespace samples {
namespace {

constexpr int HEAD = static_cast<int>(BodyPart::Head);

}  // namespace

SkinUnwrap::SkinUnwrap(std::shared_ptr<const ImplicitBody> body)
    : body_(std::move(body)), limbs_(body_, ClothUnwrap::Kind::Top) {}

int SkinUnwrap::panel(const Vec3& place, const Vec3&) const { return static_cast<int>(body_->partAt(place)); }

Wrapped SkinUnwrap::wrap(int panel, const Vec3& p) const {
  if (panel != HEAD) return limbs_.wrap(panel, p);
  const Vec3 local = body_->headShape().frame().local(p) * (1.0 / body_->headShape().height());
  return wrapAround(local.x, -local.y, local.z, 1);
}

host::TexCoord SkinUnwrap::coordinates(int panel, const Wrapped& wrapped) const {
  const double u = 0.5 + wrapped.turn;
  // The head fills the upper half from a little below the chin to a little above the crown.
  const double v = panel == HEAD ? 0.5 + 0.5 * std::clamp((wrapped.length + 0.1) / 1.2, 0.01, 0.99)
                                 : 0.25 + 0.20 * std::sin(wrapped.length / 60.0);
  return {static_cast<float>(u), static_cast<float>(v)};
}

}  // namespace samples
