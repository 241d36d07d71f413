#pragma once

#include <string>
#include <string_view>

namespace cli {

/// Writes all of it now. Answers an empty text, or why it could not be: a pipe that nobody reads any more, a full disk.
[[nodiscard]] std::string writeStandardOutput(std::string_view text);

}  // namespace cli
