#include "common/disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <mutex>
#include <set>

#include "common/failure.h"
#include "common/filedescriptor.h"
#include "common/filelook.h"

// Plain system calls: every write, sync and rename is checked, nothing is buffered behind our back.

namespace tamo {
namespace {

QByteArray Native(const QString& path) {
  return QFile::encodeName(path);
}

int NumberOf(int error, const QString& path) {
  switch (error) {
    case ENOENT: {
      const QString folder = QFileInfo(path).path();
      return folder.isEmpty() || QFileInfo(folder).isDir() ? kFileNotFound : kPathNotFound;
    }
    case ENOTDIR:
      return kPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case EEXIST:
    case ETXTBSY:
      return kNoAccess;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return kDiskFull;
    default:
      return kFileOther;
  }
}

int Result(int returned, const QString& path) {
  return returned < 0 ? NumberOf(errno, path) : kNoError;
}

// Network file systems and old kernels have no such renames.
int RenameWith(unsigned flags, const QString& from, const QString& to) {
  const int done =
      ::renameat2(AT_FDCWD, Native(from).constData(), AT_FDCWD, Native(to).constData(), flags);
  if (done == 0) return kNoError;
  if (errno == EINVAL || errno == ENOSYS || errno == ENOTSUP) return kNotOffered;
  return errno == EEXIST ? kFileExists : NumberOf(errno, to);
}

class RealReader : public FileReader {
 public:
  RealReader(int handle, qint64 size) : handle_(handle), size_(size) {}
  ~RealReader() override { ::close(handle_); }
  RealReader(const RealReader&) = delete;
  RealReader& operator=(const RealReader&) = delete;

  int Descriptor() const { return handle_; }
  qint64 Size() const override { return size_; }
  int ReadAt(qint64 offset, char* into, qint64 count, qint64& got) const override {
    got = 0;
    while (got < count) {
      const ssize_t part =
          ::pread(handle_, into + got, static_cast<size_t>(count - got), offset + got);
      if (part < 0 && errno == EINTR) continue;
      if (part < 0) return NumberOf(errno, {});
      if (part == 0) break;
      got += part;
    }
    return kNoError;
  }

 private:
  int handle_;
  qint64 size_;
};

int ReadToEnd(int handle, QByteArray& bytes) {
  char block[65536];
  for (;;) {
    const ssize_t got = ::read(handle, block, sizeof block);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return NumberOf(errno, {});
    if (got == 0) return kNoError;
    if (bytes.size() + got > kLargestText) return kTooLarge;
    bytes.append(block, static_cast<qsizetype>(got));
  }
}

qint64 Nanoseconds(const timespec& time) {
  return static_cast<qint64>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

// Whether the device of the file `name` is one of this machine. Each device is asked once.
bool IsLocal(dev_t device, const QByteArray& name) {
  static std::mutex mutex;
  static std::set<dev_t> local;
  const std::lock_guard lock(mutex);
  if (local.contains(device)) return true;
  struct statfs info {};
  if (::statfs(name.constData(), &info) != 0) return false;
  // NFS, SMB (three of them), FUSE, 9P, AFS, Ceph, Coda.
  for (const unsigned long remote : {0x6969UL, 0x517BUL, 0xFF534D42UL, 0xFE534D42UL, 0x65735546UL,
                                     0x01021997UL, 0x5346414FUL, 0x00C36400UL, 0x73757245UL}) {
    if ((static_cast<unsigned long>(info.f_type) & 0xFFFFFFFFUL) == remote) return false;
  }
  local.insert(device);
  return true;
}

}  // namespace

int DescriptorOf(const FileReader& reader) {
  const auto* real = dynamic_cast<const RealReader*>(&reader);
  return real == nullptr ? -1 : real->Descriptor();
}

int RealDisk::OpenToRead(const QString& path, std::shared_ptr<FileReader>& reader) {
  const int handle = ::open(Native(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (handle < 0) return NumberOf(errno, path);
  struct stat info {};
  if (::fstat(handle, &info) != 0 || !S_ISREG(info.st_mode)) {
    ::close(handle);
    return kNoAccess;
  }
  reader = std::make_shared<RealReader>(handle, static_cast<qint64>(info.st_size));
  return kNoError;
}

namespace {

qint64 Now() {
  timespec now{};
  ::clock_gettime(CLOCK_REALTIME, &now);
  return Nanoseconds(now);
}

FileStamp StampOf(const struct stat& info, const QByteArray& name, qint64 seen) {
  if (!S_ISREG(info.st_mode) || !IsLocal(info.st_dev, name)) return {};
  return {
      info.st_dev, info.st_ino, info.st_size, Nanoseconds(info.st_mtim), Nanoseconds(info.st_ctim),
      seen};
}

// The whole of the file, and how it looked when it was opened.
int ReadWhole(const QString& path, QByteArray& bytes, FileStamp* stamp) {
  bytes.clear();
  const QByteArray name = Native(path);
  const qint64 seen = stamp != nullptr ? Now() : 0;
  const int handle = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (handle < 0) return NumberOf(errno, path);
  struct stat info {};
  int error = kNoError;
  if (::fstat(handle, &info) != 0 || !S_ISREG(info.st_mode)) {
    error = kNoAccess;
  } else if (info.st_size > kLargestText) {
    error = kTooLarge;
  } else {
    if (stamp != nullptr) *stamp = StampOf(info, name, seen);
    bytes.reserve(static_cast<qsizetype>(info.st_size) + 1);
    error = ReadToEnd(handle, bytes);
    if (error == kNoError && bytes.size() < info.st_size) error = kPastEnd;
  }
  ::close(handle);
  if (error != kNoError) bytes.clear();
  return error;
}

}  // namespace

int RealDisk::Read(const QString& path, QByteArray& bytes) {
  return ReadWhole(path, bytes, nullptr);
}

int RealDisk::ReadStamped(const QString& path, QByteArray& bytes, FileStamp& stamp) {
  stamp = {};
  return ReadWhole(path, bytes, &stamp);
}

FileStamp RealDisk::Stamp(const QString& path) {
  const QByteArray name = Native(path);
  struct stat info {};
  if (::stat(name.constData(), &info) != 0) return {};
  return StampOf(info, name, Now());
}

int RealDisk::OpenNew(const QString& path, int& handle) {
  handle =
      ::open(Native(path).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0666);
  return Result(handle, path);
}

int RealDisk::OpenExclusive(const QString& path, int& handle) {
  handle = ::open(Native(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  return handle < 0 && errno == EEXIST ? kFileExists : Result(handle, path);
}

int RealDisk::OpenAtEnd(const QString& path, int& handle) {
  handle = ::open(Native(path).constData(), O_WRONLY | O_APPEND | O_CLOEXEC);
  return Result(handle, path);
}

int RealDisk::Write(int handle, const QByteArray& bytes) {
  qsizetype done = 0;
  while (done < bytes.size()) {
    const ssize_t wrote =
        ::write(handle, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
    if (wrote < 0 && errno == EINTR) continue;
    if (wrote < 0) return NumberOf(errno, {});
    done += wrote;
  }
  return kNoError;
}

int RealDisk::Truncate(int handle, qint64 size) {
  return Result(::ftruncate(handle, size), {});
}
int RealDisk::Sync(int handle) {
  return Result(::fdatasync(handle), {});
}
int RealDisk::Close(int handle) {
  return Result(::close(handle), {});
}

void RealDisk::TakeOver(int handle, const QString& from) {
  TakeOverLook(handle, Native(from));
}

int RealDisk::Rename(const QString& from, const QString& to) {
  return Result(std::rename(Native(from).constData(), Native(to).constData()), to);
}

int RealDisk::RenameNew(const QString& from, const QString& to) {
  return RenameWith(RENAME_NOREPLACE, from, to);
}

int RealDisk::Swap(const QString& one, const QString& other) {
  return RenameWith(RENAME_EXCHANGE, one, other);
}

int RealDisk::SyncFolder(const QString& folder) {
  const int handle = ::open(Native(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return NumberOf(errno, folder);
  const int error = Result(::fsync(handle), folder);
  ::close(handle);
  return error;
}

int RealDisk::MakeFolder(const QString& path) {
  return Result(::mkdir(Native(path).constData(), 0777), path);
}
int RealDisk::RemoveFile(const QString& path) {
  return Result(::unlink(Native(path).constData()), path);
}
int RealDisk::RemoveFolder(const QString& path) {
  return Result(::rmdir(Native(path).constData()), path);
}

bool RealDisk::Exists(const QString& path) {
  struct stat info {};
  return ::stat(Native(path).constData(), &info) == 0;
}

bool RealDisk::IsFolder(const QString& path) {
  struct stat info {};
  return ::stat(Native(path).constData(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool RealDisk::IsLink(const QString& path) {
  struct stat info {};
  return ::lstat(Native(path).constData(), &info) == 0 && S_ISLNK(info.st_mode);
}

QString RealDisk::FollowLink(const QString& path) {
  constexpr int kLongestChain = 40;
  QString end = path;
  for (int i = 0; i < kLongestChain && IsLink(end); ++i) {
    const QString to = QFile::symLinkTarget(end);
    if (to.isEmpty()) break;
    end = to;
  }
  return end;
}

qint64 RealDisk::SecondsSinceWritten(const QString& path) {
  struct stat info {};
  if (::lstat(Native(path).constData(), &info) != 0) return -1;
  return std::max<qint64>(0, ::time(nullptr) - info.st_mtim.tv_sec);
}

bool RealDisk::CanWrite(const QString& path) {
  if (Exists(path)) return ::access(Native(path).constData(), W_OK) == 0;
  return ::access(Native(QFileInfo(path).path()).constData(), W_OK) == 0;
}

qint64 RealDisk::Size(const QString& path) {
  struct stat info {};
  return ::stat(Native(path).constData(), &info) == 0 ? static_cast<qint64>(info.st_size) : -1;
}

QStringList RealDisk::Names(const QString& folder) {
  QStringList names =
      QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace tamo
