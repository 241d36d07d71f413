#pragma once

#include <object.h>

namespace host {

/// The dummy helper at the head of a group; never drawn.
class GroupHead final : public HelperObject {
 public:
  Class_ID ClassID() override { return Class_ID(DUMMY_CLASS_ID, 0); }
};

}  // namespace host
