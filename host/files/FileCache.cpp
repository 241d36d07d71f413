#include "host/files/FileCache.h"

namespace host {

std::string fileStamp(const std::filesystem::path& file) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  if (error) return {};
  const auto time = std::filesystem::last_write_time(file, error).time_since_epoch().count();
  return std::to_string(size) + '@' + std::to_string(time);
}

}  // namespace host
