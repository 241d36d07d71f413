#pragma once

#include <string_view>

namespace host {

/// Whether what is made of a JSON text stays in proportion: not so many values that they take gigabytes, no object of
/// so many members that to look each of them up takes minutes. A glance at the text that says nothing of its syntax.
bool isWithinBounds(std::string_view json);

}  // namespace host
