#pragma once

namespace cli {

constexpr char PROGRAM_VERSION[] = "1.0.0";

}  // namespace cli
