#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace host {

/// UTF-8 of a wide text, whatever the process's locale is. Lone surrogates U+DC80 to U+DCFF become the byte that they
/// stand for; what is no character at all becomes U+FFFD.
std::string toUtf8(std::wstring_view text);

/// Wide text of UTF-8. A byte that is not part of valid UTF-8 becomes the lone surrogate U+DC00 + byte, so that every
/// file name survives the way there and back.
std::wstring toWide(std::string_view bytes);

/// The path with this machine's separators, its names as they are.
std::filesystem::path nativePath(std::wstring_view windowsPath);

/// The path on this machine that a Windows-shaped path means: backslash and slash both separate, doubled ones count
/// once, and a name that is not there as written is looked for without regard to case. From the first name that is not
/// found at all, the rest is taken as written. Never fails; a drive letter means nothing here, so such a path is simply
/// not there.
std::filesystem::path resolvePath(std::wstring_view windowsPath);

}  // namespace host
