#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace bench {

/// Writes many files of the same few contents: most are links to one that was written before.
class LinkedFiles {
 public:
  /// Makes the folder, too. The bytes have to live as long as this.
  void write(const std::filesystem::path& file, const std::string& bytes);

 private:
  struct Written {
    std::filesystem::path file;
    int links = 0;
  };

  std::map<const std::string*, Written> written_;
  std::filesystem::path folder_;
};

}  // namespace bench
