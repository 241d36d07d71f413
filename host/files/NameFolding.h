#pragma once

#include <string>
#include <string_view>

namespace host {

/// The same for names that differ only in letter case, whatever the process's locale is.
std::wstring foldName(std::wstring_view name);

}  // namespace host
