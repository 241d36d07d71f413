#pragma once

namespace cli {

/// Reads the arguments, runs the command and answers its exit status. Throws nothing but that memory has run
/// out.
int run(int argc, const char* const* argv);

}  // namespace cli
