#pragma once

namespace cli {

/// Reads the arguments, runs the command and answers its exit status. Never throws.
int run(int argc, const char* const* argv);

}  // namespace cli
