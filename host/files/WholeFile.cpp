#include "host/files/WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <optional>
#include <system_error>

#include "host/files/Uninterrupted.h"

namespace host {

namespace fs = std::filesystem;

namespace {

constexpr int MOST_ATTEMPTS = 100;
/// As the system follows.
constexpr int MOST_LINKS = 40;

std::string reasonOf(int error) {
  if (error == ENOENT) return "its folder is not there";
  // For a pipe.
  if (error == ENXIO) return "nobody reads from it";
  return std::generic_category().message(error);
}

std::string errorText(const fs::path& file, int error) {
  return error == 0 ? std::string() : "cannot write \"" + file.string() + "\": " + reasonOf(error);
}

/// What is at the path already, opened as for writing into it, so that the system says who may.
class Present {
 public:
  explicit Present(const fs::path& file) {
    if (::stat(file.c_str(), &status_) == 0 && S_ISBLK(status_.st_mode)) {
      error_ = EPERM;
      return;
    }
    descriptor_ = ::open(file.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    error_ = descriptor_ < 0 || ::fstat(descriptor_, &status_) != 0 ? errno : 0;
    // The administrator may write everything, and yet leaves what its owner has marked so.
    if (error_ == 0 && isFile() && (status_.st_mode & 0222) == 0) error_ = EACCES;
  }
  ~Present() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  Present(const Present&) = delete;
  Present& operator=(const Present&) = delete;

  bool isThere() const { return error_ != ENOENT; }
  int error() const { return isThere() ? error_ : 0; }
  bool isFile() const { return S_ISREG(status_.st_mode); }
  int descriptor() const { return descriptor_; }
  mode_t permissions() const { return status_.st_mode & 07777; }

 private:
  int descriptor_ = -1;
  int error_ = 0;
  struct stat status_ {};
};

int writeAll(int descriptor, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = ::write(descriptor, content.data(), content.size());
    if (written < 0 && errno != EINTR) return errno;
    if (written > 0) content.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

/// Into what is no file; now it may wait.
int writeInto(int descriptor, std::string_view content) {
  return ::fcntl(descriptor, F_SETFL, O_WRONLY) == 0 ? writeAll(descriptor, content) : errno;
}

/// A new file that is to take the place of another in its folder.
class Draft {
 public:
  explicit Draft(fs::path target) : target_(std::move(target)) {}
  ~Draft() {
    close();
    if (!name_.empty()) ::unlink(name_.c_str());
  }
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;

  /// Without a name, it goes whatever happens. Not every file system has that.
  bool openUnnamed() {
    const fs::path folder = target_.has_parent_path() ? target_.parent_path() : fs::path(".");
    descriptor_ = ::open(folder.c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, 0666);
    return descriptor_ >= 0;
  }

  int openNamed() {
    return beside([this](const fs::path& name) {
      descriptor_ = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
      return descriptor_ >= 0;
    });
  }

  int fill(std::string_view content, const Present& present) {
    const int error = writeAll(descriptor_, content);
    // A file system without permissions refuses, and has nothing to keep.
    if (present.isThere() && ::fchmod(descriptor_, present.permissions()) != 0) errno = 0;
    return error;
  }

  int close() {
    if (descriptor_ < 0) return 0;
    const int answer = ::close(descriptor_);
    descriptor_ = -1;
    return answer == 0 ? 0 : errno;
  }

  /// False when it cannot be given one.
  bool giveName() {
    if (linkTo(target_)) return true;
    return errno == EEXIST && beside([this](const fs::path& name) { return linkTo(name); }) == 0;
  }

  int takePlace() {
    if (name_.empty()) return 0;
    const int error = std::rename(name_.c_str(), target_.c_str()) == 0 ? 0 : errno;
    if (error != 0) ::unlink(name_.c_str());
    name_.clear();
    return error;
  }

 private:
  bool linkTo(const fs::path& name) const {
    const std::string self = "/proc/self/fd/" + std::to_string(descriptor_);
    return ::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
  }

  /// Makes it under a name that is not there yet, and short: the target's own may be as long as it can be.
  template <class Make>
  int beside(Make make) {
    for (int i = 0; i < MOST_ATTEMPTS; ++i) {
      // Known before it is there: without memory nothing may stay.
      name_ = target_.parent_path() / (".zorvel-" + std::to_string(::getpid()) + "-" + std::to_string(i) + ".tmp");
      if (make(name_)) return 0;
      const int error = errno;
      name_.clear();
      if (error != EEXIST) return error;
    }
    return EEXIST;
  }

  fs::path target_;
  /// Of its own; empty for none, and once it has taken the target's.
  fs::path name_;
  int descriptor_ = -1;
};

/// Nothing when it has to be done with a name.
std::optional<int> replaceUnnamed(const fs::path& target, const Present& present, std::string_view content) {
  Draft draft(target);
  if (!draft.openUnnamed()) return std::nullopt;
  if (const int error = draft.fill(content, present); error != 0) return error;
  const Uninterrupted whole;
  if (!draft.giveName()) return std::nullopt;
  return draft.takePlace();
}

int replaceNamed(const fs::path& target, const Present& present, std::string_view content) {
  const Uninterrupted whole;
  Draft draft(target);
  int error = draft.openNamed();
  if (error == 0) error = draft.fill(content, present);
  if (const int closing = draft.close(); error == 0) error = closing;
  return error == 0 ? draft.takePlace() : error;
}

}  // namespace

fs::path writtenFile(const fs::path& file) {
  fs::path found = file;
  std::error_code error;
  for (int i = 0; i < MOST_LINKS; ++i) {
    const fs::path target = fs::read_symlink(found, error);
    if (error) break;
    found = found.parent_path() / target;
  }
  return found;
}

std::string writeWholeFile(const fs::path& file, std::string_view content) {
  const Present present(file);
  if (present.error() != 0) return errorText(file, present.error());
  if (present.isThere() && !present.isFile()) return errorText(file, writeInto(present.descriptor(), content));
  const fs::path target = writtenFile(file);
  const std::optional<int> error = replaceUnnamed(target, present, content);
  return errorText(file, error ? *error : replaceNamed(target, present, content));
}

}  // namespace host
