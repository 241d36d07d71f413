#include "samples/repository/TextFile.h"

#include <fstream>
#include <system_error>

namespace samples {

std::string writeTextFile(const std::filesystem::path& file, const std::string& text) {
  std::error_code error;
  std::filesystem::create_directories(file.parent_path(), error);
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream.write(text.data(), static_cast<std::streamsize>(text.size()));
  stream.close();
  return stream ? std::string() : "cannot write " + file.string();
}

}  // namespace samples
