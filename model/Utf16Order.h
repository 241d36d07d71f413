#pragma once

namespace ZORVEL {

/// Orders zero-terminated texts by their UTF-16 code units: below, at or above zero. Where a wide character is a whole
/// code point (32 bits), those beyond U+FFFF take the place of the surrogate pair they would be. Null counts as empty.
int CompareUtf16(const wchar_t* left, const wchar_t* right);

}  // namespace ZORVEL
