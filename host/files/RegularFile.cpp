#include "host/files/RegularFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "host/files/FilesRead.h"

namespace host {

namespace {

constexpr std::size_t BLOCK = std::size_t{1} << 20U;

const char* const NOT_FOUND = "the file was not found";
const char* const NO_FILE = "it is no file";
const char* const NOT_OPENED = "the file cannot be opened";

bool isRegular(const struct stat& status) { return S_ISREG(status.st_mode); }

}  // namespace

RegularFile::RegularFile(const std::filesystem::path& file, Seen seen) {
  struct stat status {};
  const bool isKnown = seen == Seen::InListing;
  if (!isKnown && ::stat(file.c_str(), &status) != 0) {
    problem_ = NOT_FOUND;
  } else if (!isKnown && !isRegular(status)) {
    problem_ = NO_FILE;
  } else {
    open(file);
  }
}

void RegularFile::open(const std::filesystem::path& file) {
  // It may have become a pipe meanwhile.
  descriptor_ = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  struct stat status {};
  if (descriptor_ < 0) {
    problem_ = NOT_OPENED;
  } else if (::fstat(descriptor_, &status) == 0 && isRegular(status)) {
    size_ = static_cast<std::uintmax_t>(status.st_size);
    FilesRead::note(file);
  } else {
    problem_ = NO_FILE;
    ::close(release());
  }
}

RegularFile::~RegularFile() {
  if (isOpen()) ::close(descriptor_);
}

bool RegularFile::readUpTo(std::size_t count, std::string& bytes) {
  while (isOpen() && !isAtEnd_ && bytes.size() < count) {
    const std::size_t before = bytes.size();
    bytes.resize(before + std::min({BLOCK, count - before, expected()}));
    const ssize_t read = ::read(descriptor_, bytes.data() + before, bytes.size() - before);
    bytes.resize(before + static_cast<std::size_t>(std::max<ssize_t>(read, 0)));
    if (read < 0 && errno != EINTR) return false;
    position_ += static_cast<std::uintmax_t>(std::max<ssize_t>(read, 0));
    // Of a file of some length nobody has to ask whether there is more.
    isAtEnd_ = read == 0 || (position_ == size_ && size_ != 0);
  }
  return isOpen();
}

std::size_t RegularFile::expected() const {
  return position_ < size_ ? static_cast<std::size_t>(size_ - position_) : BLOCK;
}

int RegularFile::release() { return std::exchange(descriptor_, -1); }

}  // namespace host
