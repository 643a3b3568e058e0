#include "common/filelook.h"

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <QList>

namespace tamo {
namespace {

constexpr mode_t kRights = S_IRWXU | S_IRWXG | S_IRWXO;

mode_t WithoutGroup(mode_t mode) {
  const mode_t others = mode & S_IRWXO;
  return (mode & ~static_cast<mode_t>(S_IRWXG)) | ((mode & S_IRWXG) & (others << 3));
}

void TakeOverRights(int handle, const struct stat& from) {
  struct stat now {};
  if (::fstat(handle, &now) != 0) return;
  bool sameGroup = now.st_gid == from.st_gid;
  if (now.st_uid != from.st_uid || !sameGroup) {
    sameGroup = ::fchown(handle, from.st_uid, from.st_gid) == 0 || sameGroup ||
                ::fchown(handle, static_cast<uid_t>(-1), from.st_gid) == 0;
  }
  const mode_t mode = from.st_mode & kRights;
  ::fchmod(handle, sameGroup ? mode : WithoutGroup(mode));
}

void TakeOverAttributes(int handle, const QByteArray& from) {
  const ssize_t size = ::listxattr(from.constData(), nullptr, 0);
  if (size <= 0) return;
  QByteArray names(static_cast<qsizetype>(size), '\0');
  const ssize_t got = ::listxattr(from.constData(), names.data(), static_cast<size_t>(size));
  if (got <= 0) return;
  names.truncate(static_cast<qsizetype>(got));
  for (const QByteArray& name : names.split('\0')) {
    if (name.isEmpty()) continue;
    const ssize_t length = ::getxattr(from.constData(), name.constData(), nullptr, 0);
    if (length < 0) continue;
    QByteArray value(static_cast<qsizetype>(length), '\0');
    if (::getxattr(from.constData(), name.constData(), value.data(), static_cast<size_t>(length)) !=
        length)
      continue;
    ::fsetxattr(handle, name.constData(), value.constData(), static_cast<size_t>(length), 0);
  }
}

}  // namespace

void TakeOverLook(int handle, const QByteArray& from) {
  struct stat info {};
  if (::stat(from.constData(), &info) != 0 || !S_ISREG(info.st_mode)) return;
  TakeOverRights(handle, info);
  TakeOverAttributes(handle, from);
}

}  // namespace tamo
