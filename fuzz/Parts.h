#pragma once

#include <string_view>
#include <utility>

namespace fuzz {

/// What stands before the first zero, and what after it: nothing when there is no zero.
inline std::pair<std::string_view, std::string_view> partsOf(std::string_view bytes) {
  const std::size_t zero = bytes.find('\0');
  if (zero == std::string_view::npos) return {bytes, {}};
  return {bytes.substr(0, zero), bytes.substr(zero + 1)};
}

}  // namespace fuzz
