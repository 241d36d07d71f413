#pragma once

#include <string>
#include <vector>

namespace support {

/// The command line with these arguments.
std::vector<std::string> zorvel(std::vector<std::string> arguments);
/// The fixed use of the plug-in's window; its results go into the folder of results.
std::vector<std::string> window(const std::string& repository);

}  // namespace support
