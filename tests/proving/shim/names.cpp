// Preloaded into a program: what is done to names of files, and looks at them.

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "faults.h"
#include "next.h"
#include "openfiles.h"

using namespace tamo;

namespace {

template <typename Next>
int Named(char kind, const char* name, const char* path, const char* other, Next next) {
  if (!IsBelow(path) && !IsBelow(other)) return next();
  Operation operation(kind, name, path, other == nullptr ? "" : other);
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

template <typename Next>
int Renamed(const char* from, const char* to, Next next) {
  const int result = Named('w', "rename", from, to, next);
  if (result == 0) RenameOpen(from, to);
  return result;
}

}  // namespace

extern "C" {

int rename(const char* from, const char* to) noexcept {
  TAMO_NEXT(rename);
  return Renamed(from, to, [&] { return next(from, to); });
}

int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
  TAMO_NEXT(renameat);
  return Renamed(from, to, [&] { return next(fromFolder, from, toFolder, to); });
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
  TAMO_NEXT(renameat2);
  const auto rename = [&] { return next(fromFolder, from, toFolder, to, flags); };
  if ((flags & RENAME_EXCHANGE) != 0) return Named('w', "exchange", from, to, rename);
  return Renamed(from, to, rename);
}

int link(const char* from, const char* to) noexcept {
  TAMO_NEXT(link);
  return Named('w', "link", from, to, [&] { return next(from, to); });
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
  TAMO_NEXT(linkat);
  return Named('w', "link", from, to, [&] { return next(fromFolder, from, toFolder, to, flags); });
}

int unlink(const char* path) noexcept {
  TAMO_NEXT(unlink);
  return Named('w', "unlink", path, nullptr, [&] { return next(path); });
}

int unlinkat(int folder, const char* path, int flags) noexcept {
  TAMO_NEXT(unlinkat);
  const char* name = (flags & AT_REMOVEDIR) != 0 ? "rmdir" : "unlink";
  return Named('w', name, path, nullptr, [&] { return next(folder, path, flags); });
}

int remove(const char* path) noexcept {
  TAMO_NEXT(remove);
  return Named('w', "unlink", path, nullptr, [&] { return next(path); });
}

int mkdir(const char* path, mode_t mode) noexcept {
  TAMO_NEXT(mkdir);
  return Named('w', "mkdir", path, nullptr, [&] { return next(path, mode); });
}

int mkdirat(int folder, const char* path, mode_t mode) noexcept {
  TAMO_NEXT(mkdirat);
  return Named('w', "mkdir", path, nullptr, [&] { return next(folder, path, mode); });
}

int rmdir(const char* path) noexcept {
  TAMO_NEXT(rmdir);
  return Named('w', "rmdir", path, nullptr, [&] { return next(path); });
}

int stat(const char* path, struct stat* into) noexcept {
  TAMO_NEXT(stat);
  return Named('l', "stat", path, nullptr, [&] { return next(path, into); });
}

int stat64(const char* path, struct stat64* into) noexcept {
  TAMO_NEXT(stat64);
  return Named('l', "stat", path, nullptr, [&] { return next(path, into); });
}

int lstat(const char* path, struct stat* into) noexcept {
  TAMO_NEXT(lstat);
  return Named('l', "stat", path, nullptr, [&] { return next(path, into); });
}

int lstat64(const char* path, struct stat64* into) noexcept {
  TAMO_NEXT(lstat64);
  return Named('l', "stat", path, nullptr, [&] { return next(path, into); });
}

int statx(int folder, const char* path, int flags, unsigned mask, struct statx* into) noexcept {
  TAMO_NEXT(statx);
  return Named('l', "stat", path, nullptr, [&] { return next(folder, path, flags, mask, into); });
}

int access(const char* path, int how) noexcept {
  TAMO_NEXT(access);
  return Named('l', "access", path, nullptr, [&] { return next(path, how); });
}

}  // extern "C"
