#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace host {

/// A file to read from. Only a regular one is opened, at once and without waiting: a pipe would keep its reader
/// waiting for ever, and opening a device may do anything.
class RegularFile {
 public:
  /// Who has seen in a listing that it is a regular file spares the question, a way there and back on a share.
  enum class Seen { Nowhere, InListing };

  /// Look at isOpen() before anything else.
  explicit RegularFile(const std::filesystem::path& file, Seen seen = Seen::Nowhere);
  ~RegularFile();
  RegularFile(const RegularFile&) = delete;
  RegularFile& operator=(const RegularFile&) = delete;

  bool isOpen() const { return descriptor_ >= 0; }
  /// Why it is not open, for a person.
  const char* problem() const { return problem_; }
  /// When it was opened.
  std::uintmax_t size() const { return size_; }
  /// Reads on until `bytes` has so many or the file ends. False when it cannot be read.
  bool readUpTo(std::size_t count, std::string& bytes);
  /// Whether the end has been met.
  bool isAtEnd() const { return isAtEnd_; }
  /// The caller closes it.
  int release();

 private:
  void open(const std::filesystem::path& file);
  /// How many bytes are still to come, as far as that is known.
  std::size_t expected() const;

  int descriptor_ = -1;
  const char* problem_ = "";
  std::uintmax_t size_ = 0;
  std::uintmax_t position_ = 0;
  bool isAtEnd_ = false;
};

}  // namespace host
