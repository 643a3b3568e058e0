// Preloaded into a program: opening, reading, writing and syncing of files.

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstring>

#include "faults.h"
#include "next.h"
#include "openfiles.h"

using namespace tamo;

namespace {

constexpr int kWrites = O_WRONLY | O_RDWR | O_CREAT | O_TRUNC;

std::string HowOpened(int flags) {
  std::string how;
  if ((flags & O_CREAT) != 0) how += 'c';
  if ((flags & O_EXCL) != 0) how += 'x';
  if ((flags & O_TRUNC) != 0) how += 't';
  if ((flags & O_APPEND) != 0) how += 'a';
  return how;
}

template <typename Next>
int Open(const char* path, int flags, Next next) {
  if (!IsBelow(path)) return next();
  Operation operation((flags & kWrites) != 0 ? 'w' : 'r', "open", path, HowOpened(flags));
  if (operation.blow() == Blow::Error) {
    errno = operation.error();
    operation.Done(-1);
    return -1;
  }
  const int handle = next();
  if (operation.blow() == Blow::Half) operation.Die("killed behind");
  if (handle >= 0) RememberOpen(handle, path);
  operation.Done(handle);
  return handle;
}

template <typename Next>
ssize_t Read(int handle, size_t count, Next next) {
  const std::string path = PathOfOpen(handle);
  if (path.empty()) return next(count);
  Operation operation('r', "read", path);
  if (operation.blow() == Blow::Error) {
    errno = operation.error();
    operation.Done(-1);
    return -1;
  }
  if (operation.blow() == Blow::Half) operation.Die("killed behind");
  const ssize_t got = next(operation.blow() == Blow::Short ? std::min<size_t>(count, 7) : count);
  operation.Done(got);
  return got;
}

template <typename Next>
ssize_t Write(int handle, const void* bytes, size_t count, Next next) {
  const std::string path = PathOfOpen(handle);
  if (path.empty()) return next(count);
  Operation operation('w', "write", path);
  if (operation.blow() == Blow::Error) {
    errno = operation.error();
    operation.Done(-1);
    return -1;
  }
  const bool part = operation.blow() == Blow::Half || operation.blow() == Blow::Short;
  const ssize_t wrote = next(part ? (count + 1) / 2 : count);
  if (operation.blow() == Blow::Half)
    operation.Die("killed within", bytes, static_cast<size_t>(std::max<ssize_t>(wrote, 0)));
  operation.Done(wrote, bytes, static_cast<size_t>(std::max<ssize_t>(wrote, 0)));
  return wrote;
}

template <typename Next>
int Handled(const char* name, int handle, Next next) {
  const std::string path = PathOfOpen(handle);
  if (path.empty()) return next();
  Operation operation('w', name, path);
  if (operation.blow() == Blow::Error) {
    errno = operation.error();
    operation.Done(-1);
    return -1;
  }
  const int result = next();
  if (operation.blow() == Blow::Half) operation.Die("killed behind");
  operation.Done(result);
  return result;
}

mode_t ModeOf(int flags, va_list arguments) {
  return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  TAMO_NEXT(open);
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = ModeOf(flags, arguments);
  va_end(arguments);
  return Open(path, flags, [&] { return next(path, flags, mode); });
}

int open64(const char* path, int flags, ...) {
  TAMO_NEXT(open64);
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = ModeOf(flags, arguments);
  va_end(arguments);
  return Open(path, flags, [&] { return next(path, flags, mode); });
}

int openat(int folder, const char* path, int flags, ...) {
  TAMO_NEXT(openat);
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = ModeOf(flags, arguments);
  va_end(arguments);
  return Open(path, flags, [&] { return next(folder, path, flags, mode); });
}

int openat64(int folder, const char* path, int flags, ...) {
  TAMO_NEXT(openat64);
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = ModeOf(flags, arguments);
  va_end(arguments);
  return Open(path, flags, [&] { return next(folder, path, flags, mode); });
}

int creat(const char* path, mode_t mode) {
  return open(path, O_WRONLY | O_CREAT | O_TRUNC, mode);
}

int close(int handle) {
  TAMO_NEXT(close);
  ForgetOpen(handle);
  return next(handle);
}

DIR* opendir(const char* path) {
  TAMO_NEXT(opendir);
  if (!IsBelow(path)) return next(path);
  Operation operation('r', "opendir", path);
  if (operation.blow() == Blow::Half) operation.Die("killed before");
  if (operation.blow() == Blow::Error) errno = operation.error();
  DIR* folder = operation.blow() == Blow::Error ? nullptr : next(path);
  operation.Done(folder == nullptr ? -1 : 0);
  return folder;
}

ssize_t read(int handle, void* into, size_t count) {
  TAMO_NEXT(read);
  return Read(handle, count, [&](size_t part) { return next(handle, into, part); });
}

ssize_t pread(int handle, void* into, size_t count, off_t from) {
  TAMO_NEXT(pread);
  return Read(handle, count, [&](size_t part) { return next(handle, into, part, from); });
}

ssize_t pread64(int handle, void* into, size_t count, off64_t from) {
  TAMO_NEXT(pread64);
  return Read(handle, count, [&](size_t part) { return next(handle, into, part, from); });
}

ssize_t write(int handle, const void* bytes, size_t count) {
  TAMO_NEXT(write);
  if (handle == STDOUT_FILENO) LogSaid(bytes, count);
  return Write(handle, bytes, count, [&](size_t part) { return next(handle, bytes, part); });
}

ssize_t pwrite(int handle, const void* bytes, size_t count, off_t to) {
  TAMO_NEXT(pwrite);
  return Write(handle, bytes, count, [&](size_t part) { return next(handle, bytes, part, to); });
}

ssize_t pwrite64(int handle, const void* bytes, size_t count, off64_t to) {
  TAMO_NEXT(pwrite64);
  return Write(handle, bytes, count, [&](size_t part) { return next(handle, bytes, part, to); });
}

int fsync(int handle) {
  TAMO_NEXT(fsync);
  return Handled("fsync", handle, [&] { return next(handle); });
}

int fdatasync(int handle) {
  TAMO_NEXT(fdatasync);
  return Handled("fsync", handle, [&] { return next(handle); });
}

int ftruncate(int handle, off_t size) noexcept {
  TAMO_NEXT(ftruncate);
  return Handled("truncate", handle, [&] { return next(handle, size); });
}

int ftruncate64(int handle, off64_t size) noexcept {
  TAMO_NEXT(ftruncate64);
  return Handled("truncate", handle, [&] { return next(handle, size); });
}

}  // extern "C"
