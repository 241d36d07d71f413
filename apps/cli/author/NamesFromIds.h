#pragma once

#include <string>

namespace cli {

/// The id without that of its owner before it: "walking" of "anna_walking" for the owner "anna".
std::wstring withoutOwner(const std::wstring& id, const std::wstring& owner);

/// For people to read: "Summer Dress" of "summer_dress".
std::wstring nameFor(const std::wstring& id);

}  // namespace cli
