#pragma once

#include <string>
#include <string_view>

namespace host {

/// The name in capital letters, one for one, as Windows compares names; whatever the process's locale is.
std::wstring inCapitals(std::wstring_view name);

}  // namespace host
