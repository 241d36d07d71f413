// Stands in for the calls that open, look at, list, read, write and rename files.
#undef _FILE_OFFSET_BITS
#undef _FORTIFY_SOURCE
#include <dirent.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "tests/faults/library/Plan.h"
#include "tests/faults/library/Real.h"

using faults::Fate;

namespace {

using Path = char[4096];

template <class Result>
Result failing(faults::Kind kind, Result result) {
  errno = faults::errorOf(kind);
  return result;
}

bool isForWriting(int flags) { return (flags & O_ACCMODE) != O_RDONLY || (flags & (O_CREAT | O_TRUNC)) != 0; }

void watchOpened(const char* path, char what) {
  if (faults::isWatching() && faults::counts()) faults::watch(what, path);
}

/// Read, written or, as folders are, listed.
char waysOf(int flags) {
  if ((flags & O_DIRECTORY) == O_DIRECTORY) return 'I';
  return isForWriting(flags) ? 'W' : 'R';
}

/// A full disk or a folder that is read only refuses those who write; a share that drops refuses all.
bool mayOpen(const char* path, bool writes) {
  const int error = faults::errorOf(faults::OPEN);
  const bool refusesWritersOnly = error == ENOSPC || error == EROFS;
  if (refusesWritersOnly && !writes) return true;
  return faults::decide(faults::OPEN, path) == Fate::Normal;
}

template <class Open>
int openCounted(int folder, const char* path, int flags, Open open) {
  Path buffer;
  const char* whole = faults::wholePath(folder, path, buffer);
  if (!mayOpen(whole, isForWriting(flags))) return failing(faults::OPEN, -1);
  const int descriptor = open();
  faults::noteOpened(descriptor, whole);
  if (descriptor >= 0) watchOpened(whole, waysOf(flags));
  return descriptor;
}

template <class Open>
std::FILE* openStream(const char* path, const char* mode, Open open) {
  Path buffer;
  const char* whole = faults::wholePath(AT_FDCWD, path, buffer);
  const bool writes = std::strpbrk(mode, "wa+") != nullptr;
  if (!mayOpen(whole, writes)) return failing<std::FILE*>(faults::OPEN, nullptr);
  std::FILE* stream = open();
  if (stream != nullptr) {
    faults::noteOpened(::fileno(stream), whole);
    watchOpened(whole, writes ? 'W' : 'R');
  }
  return stream;
}

mode_t modeOf(va_list arguments, int flags) {
  return (flags & (O_CREAT | O_TMPFILE)) != 0 ? static_cast<mode_t>(va_arg(arguments, int)) : 0;
}

/// Less than what was asked for, and nothing any more from then on.
std::size_t shortened(Fate fate, std::size_t size) {
  if (fate != Fate::CutShort) return size;
  faults::drop();
  return size > 1 ? size / 2 : size;
}

/// As the C library marks a stream in which an error was met.
std::size_t failStream(std::FILE* stream) {
  constexpr int errorSeen = 0x20;
  stream->_flags |= errorSeen;
  return failing<std::size_t>(faults::READ, 0);
}

template <class Look>
int lookAt(int folder, const char* path, Look look) {
  Path buffer;
  if (faults::decide(faults::STATUS, faults::wholePath(folder, path, buffer)) != Fate::Normal) {
    return failing(faults::STATUS, -1);
  }
  return look();
}

template <class Change>
int change(faults::Kind kind, const char* path, char what, Change make) {
  Path buffer;
  const char* whole = faults::wholePath(AT_FDCWD, path, buffer);
  if (faults::decide(kind, whole) != Fate::Normal) return failing(kind, -1);
  if (faults::counts()) faults::watch(what, whole);
  return make();
}

}  // namespace

#define STANDS_IN_FOR_OPEN(name)                                                                  \
  STANDS_IN(int, name, const char* path, int flags, ...) {                                        \
    va_list arguments;                                                                            \
    va_start(arguments, flags);                                                                   \
    const mode_t mode = modeOf(arguments, flags);                                                 \
    va_end(arguments);                                                                            \
    return openCounted(AT_FDCWD, path, flags, [&] { return (*real_##name)(path, flags, mode); }); \
  }
STANDS_IN_FOR_OPEN(open)
STANDS_IN_FOR_OPEN(open64)

#define STANDS_IN_FOR_OPENAT(name)                                                                      \
  STANDS_IN(int, name, int folder, const char* path, int flags, ...) {                                  \
    va_list arguments;                                                                                  \
    va_start(arguments, flags);                                                                         \
    const mode_t mode = modeOf(arguments, flags);                                                       \
    va_end(arguments);                                                                                  \
    return openCounted(folder, path, flags, [&] { return (*real_##name)(folder, path, flags, mode); }); \
  }
STANDS_IN_FOR_OPENAT(openat)
STANDS_IN_FOR_OPENAT(openat64)

STANDS_IN(int, creat, const char* path, mode_t mode) {
  return openCounted(AT_FDCWD, path, O_WRONLY | O_CREAT, [&] { return (*real_creat)(path, mode); });
}

STANDS_IN(std::FILE*, fopen, const char* path, const char* mode) {
  return openStream(path, mode, [&] { return (*real_fopen)(path, mode); });
}
STANDS_IN(std::FILE*, fopen64, const char* path, const char* mode) {
  return openStream(path, mode, [&] { return (*real_fopen64)(path, mode); });
}

STANDS_IN(int, mkdir, const char* path, mode_t mode) {
  return change(faults::OPEN, path, 'D', [&] { return (*real_mkdir)(path, mode); });
}
STANDS_IN(char*, mkdtemp, char* pattern) {
  if (faults::decide(faults::OPEN, pattern) != Fate::Normal) return failing<char*>(faults::OPEN, nullptr);
  char* made = (*real_mkdtemp)(pattern);
  if (made != nullptr && faults::counts()) faults::watch('D', made);
  return made;
}

STANDS_IN(int, dup, int descriptor) {
  const int made = (*real_dup)(descriptor);
  faults::noteDuplicate(made, descriptor);
  return made;
}
STANDS_IN(int, close, int descriptor) {
  faults::noteOpened(descriptor, nullptr);
  return (*real_close)(descriptor);
}

STANDS_IN(ssize_t, read, int descriptor, void* bytes, std::size_t size) {
  const Fate fate = faults::decideOn(faults::READ, descriptor);
  if (fate == Fate::Fails) return failing<ssize_t>(faults::READ, -1);
  return (*real_read)(descriptor, bytes, shortened(fate, size));
}
#define STANDS_IN_FOR_PREAD(name, Offset)                                                  \
  STANDS_IN(ssize_t, name, int descriptor, void* bytes, std::size_t size, Offset offset) { \
    const Fate fate = faults::decideOn(faults::READ, descriptor);                          \
    if (fate == Fate::Fails) return failing<ssize_t>(faults::READ, -1);                    \
    return (*real_##name)(descriptor, bytes, shortened(fate, size), offset);               \
  }
STANDS_IN_FOR_PREAD(pread, off_t)
STANDS_IN_FOR_PREAD(pread64, off64_t)

STANDS_IN(std::size_t, fread, void* bytes, std::size_t size, std::size_t count, std::FILE* stream) {
  const Fate fate = faults::decideOn(faults::READ, ::fileno(stream));
  if (fate == Fate::Fails) return failStream(stream);
  const std::size_t read = (*real_fread)(bytes, size, shortened(fate, count), stream);
  if (fate == Fate::CutShort) failStream(stream);
  return read;
}
#define STANDS_IN_FOR_GETC(name)                                                                         \
  STANDS_IN(int, name, std::FILE* stream) {                                                              \
    if (faults::decideOn(faults::READ, ::fileno(stream)) == Fate::Normal) return (*real_##name)(stream); \
    failStream(stream);                                                                                  \
    return EOF;                                                                                          \
  }
STANDS_IN_FOR_GETC(fgetc)
STANDS_IN_FOR_GETC(getc)

STANDS_IN(ssize_t, write, int descriptor, const void* bytes, std::size_t size) {
  const Fate fate = faults::decideOn(faults::WRITE, descriptor);
  if (fate == Fate::Fails) return failing<ssize_t>(faults::WRITE, -1);
  return (*real_write)(descriptor, bytes, fate == Fate::CutShort && size > 1 ? size / 2 : size);
}
#define STANDS_IN_FOR_PWRITE(name, Offset)                                                                  \
  STANDS_IN(ssize_t, name, int descriptor, const void* bytes, std::size_t size, Offset offset) {            \
    const Fate fate = faults::decideOn(faults::WRITE, descriptor);                                          \
    if (fate == Fate::Fails) return failing<ssize_t>(faults::WRITE, -1);                                    \
    return (*real_##name)(descriptor, bytes, fate == Fate::CutShort && size > 1 ? size / 2 : size, offset); \
  }
STANDS_IN_FOR_PWRITE(pwrite, off_t)
STANDS_IN_FOR_PWRITE(pwrite64, off64_t)
STANDS_IN(ssize_t, writev, int descriptor, const iovec* parts, int count) {
  if (faults::decideOn(faults::WRITE, descriptor) != Fate::Normal) return failing<ssize_t>(faults::WRITE, -1);
  return (*real_writev)(descriptor, parts, count);
}
STANDS_IN(std::size_t, fwrite, const void* bytes, std::size_t size, std::size_t count, std::FILE* stream) {
  if (faults::decideOn(faults::WRITE, ::fileno(stream)) != Fate::Normal) return failStream(stream);
  return (*real_fwrite)(bytes, size, count, stream);
}
STANDS_IN(int, fsync, int descriptor) {
  if (faults::decideOn(faults::WRITE, descriptor) != Fate::Normal) return failing(faults::WRITE, -1);
  return (*real_fsync)(descriptor);
}

STANDS_IN(int, rename, const char* from, const char* to) {
  return change(faults::RENAME, to, 'N', [&] { return (*real_rename)(from, to); });
}
STANDS_IN(int, renameat2, int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
  return change(faults::RENAME, to, 'N', [&] { return (*real_renameat2)(fromFolder, from, toFolder, to, flags); });
}
STANDS_IN(int, link, const char* from, const char* to) {
  return change(faults::RENAME, to, 'N', [&] { return (*real_link)(from, to); });
}
STANDS_IN(int, linkat, int fromFolder, const char* from, int toFolder, const char* to, int flags) {
  return change(faults::RENAME, to, 'N', [&] { return (*real_linkat)(fromFolder, from, toFolder, to, flags); });
}
STANDS_IN(int, unlink, const char* path) {
  if (faults::counts()) faults::watch('U', path);
  return (*real_unlink)(path);
}

STANDS_IN(int, stat, const char* path, struct stat* status) {
  return lookAt(AT_FDCWD, path, [&] { return (*real_stat)(path, status); });
}
STANDS_IN(int, stat64, const char* path, struct stat64* status) {
  return lookAt(AT_FDCWD, path, [&] { return (*real_stat64)(path, status); });
}
STANDS_IN(int, lstat, const char* path, struct stat* status) {
  return lookAt(AT_FDCWD, path, [&] { return (*real_lstat)(path, status); });
}
STANDS_IN(int, lstat64, const char* path, struct stat64* status) {
  return lookAt(AT_FDCWD, path, [&] { return (*real_lstat64)(path, status); });
}
STANDS_IN(int, fstatat, int folder, const char* path, struct stat* status, int flags) {
  return lookAt(folder, path, [&] { return (*real_fstatat)(folder, path, status, flags); });
}
STANDS_IN(int, fstatat64, int folder, const char* path, struct stat64* status, int flags) {
  return lookAt(folder, path, [&] { return (*real_fstatat64)(folder, path, status, flags); });
}
STANDS_IN(int, statx, int folder, const char* path, int flags, unsigned mask, struct statx* status) {
  return lookAt(folder, path, [&] { return (*real_statx)(folder, path, flags, mask, status); });
}
STANDS_IN(int, fstat, int descriptor, struct stat* status) {
  if (faults::decideOn(faults::STATUS, descriptor) != Fate::Normal) return failing(faults::STATUS, -1);
  return (*real_fstat)(descriptor, status);
}
STANDS_IN(int, fstat64, int descriptor, struct stat64* status) {
  if (faults::decideOn(faults::STATUS, descriptor) != Fate::Normal) return failing(faults::STATUS, -1);
  return (*real_fstat64)(descriptor, status);
}
STANDS_IN(int, access, const char* path, int how) {
  return lookAt(AT_FDCWD, path, [&] { return (*real_access)(path, how); });
}
STANDS_IN(int, faccessat, int folder, const char* path, int how, int flags) {
  return lookAt(folder, path, [&] { return (*real_faccessat)(folder, path, how, flags); });
}
STANDS_IN(ssize_t, readlink, const char* path, char* target, std::size_t size) {
  Path buffer;
  if (faults::decide(faults::STATUS, faults::wholePath(AT_FDCWD, path, buffer)) != Fate::Normal) {
    return failing<ssize_t>(faults::STATUS, -1);
  }
  return (*real_readlink)(path, target, size);
}
STANDS_IN(char*, realpath, const char* path, char* resolved) {
  Path buffer;
  if (faults::decide(faults::STATUS, faults::wholePath(AT_FDCWD, path, buffer)) != Fate::Normal) {
    return failing<char*>(faults::STATUS, nullptr);
  }
  return (*real_realpath)(path, resolved);
}

STANDS_IN(DIR*, opendir, const char* path) {
  Path buffer;
  const char* whole = faults::wholePath(AT_FDCWD, path, buffer);
  if (faults::decide(faults::LIST, whole) != Fate::Normal) return failing<DIR*>(faults::LIST, nullptr);
  DIR* folder = (*real_opendir)(path);
  if (folder != nullptr) {
    faults::noteOpened(::dirfd(folder), whole);
    watchOpened(whole, 'I');
  }
  return folder;
}
STANDS_IN(dirent*, readdir, DIR* folder) {
  if (faults::decideOn(faults::LIST, ::dirfd(folder)) != Fate::Normal) return failing<dirent*>(faults::LIST, nullptr);
  return (*real_readdir)(folder);
}
STANDS_IN(dirent64*, readdir64, DIR* folder) {
  if (faults::decideOn(faults::LIST, ::dirfd(folder)) != Fate::Normal) return failing<dirent64*>(faults::LIST, nullptr);
  return (*real_readdir64)(folder);
}

STANDS_IN(void*, mmap, void* wanted, std::size_t size, int protection, int flags, int descriptor, off_t offset) {
  if (faults::isOwn(__builtin_return_address(0)) && faults::decide(faults::MAP, nullptr) != Fate::Normal)
    return failing(faults::MAP, MAP_FAILED);
  return (*real_mmap)(wanted, size, protection, flags, descriptor, offset);
}
STANDS_IN(void*, mmap64, void* wanted, std::size_t size, int protection, int flags, int descriptor, off64_t offset) {
  if (faults::isOwn(__builtin_return_address(0)) && faults::decide(faults::MAP, nullptr) != Fate::Normal)
    return failing(faults::MAP, MAP_FAILED);
  return (*real_mmap64)(wanted, size, protection, flags, descriptor, offset);
}
