#pragma once

#include <object.h>

#include "host/scene/Geometry.h"

namespace host {

constexpr Class_ID LAMP_HELPER(0x1F4B20D8, 0x6C35A97E);

/// A helper that is seen and picked like a solid thing, and that nothing can stand on: where a light is meant to hang.
class LampHelper final : public HelperObject, public Geometry {
 public:
  Class_ID ClassID() override { return LAMP_HELPER; }
  Box3 bounds() const override;
  std::shared_ptr<const Mesh> mesh() const override;
};

}  // namespace host
