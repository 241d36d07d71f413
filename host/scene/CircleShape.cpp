#include "host/scene/CircleShape.h"

#include "host/services/Change.h"
#include "host/services/Ref.h"

namespace host {

BOOL CircleShape::SetValue(int index, TimeValue /*t*/, float v) {
  if (index != 0) return FALSE;
  // Before a node refers to the circle there is nothing to give back: undoing the node undoes the circle.
  if (HasDependents() == FALSE) {
    radius_ = v;
  } else {
    changeMember(Ref<CircleShape>(this), &CircleShape::radius_, v);
  }
  return TRUE;
}

BOOL CircleShape::GetValue(int index, TimeValue /*t*/, float& v, Interval& /*valid*/) {
  if (index != 0) return FALSE;
  v = radius_;
  return TRUE;
}

Box3 CircleShape::bounds() const {
  Box3 box;
  box += Point3(-radius_, -radius_, 0.0F);
  box += Point3(radius_, radius_, 0.0F);
  return box;
}

}  // namespace host
