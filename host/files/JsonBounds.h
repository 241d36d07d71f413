#pragma once

#include <cstddef>
#include <string_view>

namespace host {

/// Of what is read from a repository. A value takes about a hundred bytes.
constexpr std::size_t MOST_JSON_VALUES = 1'000'000;

/// Whether what is made of a JSON text stays in proportion: not so many values that they take gigabytes, no object of
/// so many members that to look each of them up takes minutes. A glance at the text that says nothing of its syntax.
bool isWithinBounds(std::string_view json, std::size_t mostValues = MOST_JSON_VALUES);

}  // namespace host
