#pragma once

#include <box3.h>
#include <matrix3.h>

namespace host {

/// The box around a transformed box; an empty one stays empty.
Box3 transformed(const Box3& box, const Matrix3& tm);

}  // namespace host
