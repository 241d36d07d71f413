#include "host/files/WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace host {

namespace {

constexpr int MOST_ATTEMPTS = 100;

std::string errorText(const std::filesystem::path& file, int error) {
  return "cannot write \"" + file.string() + "\": " + std::generic_category().message(error);
}

/// A file that does not exist yet, beside the one that is meant; -1 with errno set.
int createBeside(const std::filesystem::path& file, std::filesystem::path& temporary) {
  for (int attempt = 0; attempt < MOST_ATTEMPTS; ++attempt) {
    temporary = file;
    temporary += ".tmp" + std::to_string(::getpid()) + "-" + std::to_string(attempt);
    const int descriptor = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor >= 0 || errno != EEXIST) return descriptor;
  }
  return -1;
}

int writeAll(int descriptor, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = ::write(descriptor, content.data(), content.size());
    if (written < 0 && errno != EINTR) return errno;
    if (written > 0) content.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

void copyPermissions(const std::filesystem::path& file, int descriptor) {
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0) return;
  // A file system without permissions refuses, and has nothing to keep.
  if (::fchmod(descriptor, status.st_mode & 07777) != 0) errno = 0;
}

/// Where a symbolic link leads, so that the link itself stays.
std::filesystem::path linkedFile(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_symlink(file, error)) return file;
  const std::filesystem::path target = std::filesystem::weakly_canonical(file, error);
  return error ? file : target;
}

/// A device or a pipe, in whose place no file may come.
bool isSpecial(const std::filesystem::path& file) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(file, error);
  return std::filesystem::is_other(status);
}

std::string writeInto(const std::filesystem::path& file, std::string_view content) {
  const int descriptor = ::open(file.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
  if (descriptor < 0) return errorText(file, errno);
  int error = writeAll(descriptor, content);
  if (::close(descriptor) != 0 && error == 0) error = errno;
  return error == 0 ? std::string() : errorText(file, error);
}

}  // namespace

std::string writeWholeFile(const std::filesystem::path& file, std::string_view content) {
  if (isSpecial(file)) return writeInto(file, content);
  const std::filesystem::path target = linkedFile(file);
  std::filesystem::path temporary;
  const int descriptor = createBeside(target, temporary);
  if (descriptor < 0) return errorText(file, errno);
  int error = writeAll(descriptor, content);
  if (error == 0) copyPermissions(target, descriptor);
  if (::close(descriptor) != 0 && error == 0) error = errno;
  if (error == 0 && std::rename(temporary.c_str(), target.c_str()) != 0) error = errno;
  if (error == 0) return {};
  ::unlink(temporary.c_str());
  return errorText(file, error);
}

}  // namespace host
