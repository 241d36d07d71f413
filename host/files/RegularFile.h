#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace host {

/// A file to read from. Only a regular one is opened, at once and without waiting: a pipe would keep its reader
/// waiting for ever, and opening a device may do anything.
class RegularFile {
 public:
  /// Look at isOpen() before anything else.
  explicit RegularFile(const std::filesystem::path& file);
  ~RegularFile();
  RegularFile(const RegularFile&) = delete;
  RegularFile& operator=(const RegularFile&) = delete;

  bool isOpen() const { return descriptor_ >= 0; }
  /// When it was opened.
  std::uintmax_t size() const { return size_; }
  /// Reads on until `bytes` has so many or the file ends. False when it cannot be read.
  bool readUpTo(std::size_t count, std::string& bytes);
  /// Whether the end has been met.
  bool isAtEnd() const { return isAtEnd_; }
  /// The caller closes it.
  int release();

 private:
  int descriptor_ = -1;
  std::uintmax_t size_ = 0;
  bool isAtEnd_ = false;
};

}  // namespace host
