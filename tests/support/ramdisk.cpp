#include "support/ramdisk.h"

#include <algorithm>
#include <cstring>

#include "common/failure.h"
#include "common/paths.h"
#include "common/textlines.h"

namespace tamo::test {
namespace {

class RamReader : public FileReader {
 public:
  explicit RamReader(QByteArray bytes) : bytes_(std::move(bytes)) {}
  qint64 Size() const override { return bytes_.size(); }
  int ReadAt(qint64 offset, char* into, qint64 count, qint64& got) const override {
    got = std::clamp<qint64>(bytes_.size() - offset, 0, count);
    std::memcpy(into, bytes_.constData() + offset, static_cast<size_t>(got));
    return kNoError;
  }

 private:
  QByteArray bytes_;
};

}  // namespace

void RamDisk::Put(const QString& path, const QStringList& lines) {
  MakeFoldersAbove(path);
  files_[path] = JoinedLines(lines).toUtf8();
}

QStringList RamDisk::Lines(const QString& path) const {
  return WholeLines(QString::fromUtf8(files_.value(path)));
}

QStringList RamDisk::TakeTouched() {
  QStringList touched;
  touched.swap(touched_);
  return touched;
}

int RamDisk::Missing(const QString& path) const {
  return folders_.contains(FolderOf(path)) ? kFileNotFound : kPathNotFound;
}

void RamDisk::MakeFoldersAbove(const QString& path) {
  for (const QString& level : FolderLevels(path)) folders_.insert(level);
}

int RamDisk::Read(const QString& path, QByteArray& bytes) {
  const auto file = files_.constFind(path);
  bytes = file == files_.constEnd() ? QByteArray() : *file;
  return file == files_.constEnd() ? Missing(path) : kNoError;
}

int RamDisk::OpenToRead(const QString& path, std::shared_ptr<FileReader>& reader) {
  QByteArray bytes;
  const int error = Read(path, bytes);
  if (error == kNoError) reader = std::make_shared<RamReader>(bytes);
  return error;
}

int RamDisk::OpenNew(const QString& path, int& handle) {
  if (!folders_.contains(FolderOf(path))) return kPathNotFound;
  files_[path] = QByteArray();
  handle = nextHandle_++;
  open_[handle] = path;
  return kNoError;
}

int RamDisk::OpenExclusive(const QString& path, int& handle) {
  return Exists(path) ? kFileExists : OpenNew(path, handle);
}

int RamDisk::OpenAtEnd(const QString& path, int& handle) {
  if (!files_.contains(path)) return Missing(path);
  handle = nextHandle_++;
  open_[handle] = path;
  return kNoError;
}

int RamDisk::Write(int handle, const QByteArray& bytes) {
  files_[open_.value(handle)] += bytes;
  return kNoError;
}

int RamDisk::Truncate(int handle, qint64 size) {
  files_[open_.value(handle)].resize(size);
  return kNoError;
}

int RamDisk::Sync(int) {
  return kNoError;
}

int RamDisk::Close(int handle) {
  touched_ += open_.take(handle);
  return kNoError;
}

int RamDisk::Rename(const QString& from, const QString& to) {
  if (!files_.contains(from)) return Missing(from);
  files_[to] = files_.take(from);
  touched_.removeAll(from);
  touched_ += to;
  return kNoError;
}

int RamDisk::SyncFolder(const QString&) {
  return kNoError;
}

int RamDisk::MakeFolder(const QString& path) {
  if (Exists(path)) return kNoAccess;
  MakeFoldersAbove(path + QLatin1Char('/'));
  return kNoError;
}

int RamDisk::RemoveFile(const QString& path) {
  if (files_.remove(path) == 0) return Missing(path);
  touched_ += path;
  return kNoError;
}

int RamDisk::RemoveFolder(const QString& path) {
  if (!Names(path).isEmpty()) return kNoAccess;
  return folders_.remove(path) ? kNoError : Missing(path);
}

bool RamDisk::Exists(const QString& path) {
  return files_.contains(path) || IsFolder(path);
}
bool RamDisk::IsFolder(const QString& path) {
  return folders_.contains(EndsInSeparator(path) ? path.chopped(1) : path);
}
bool RamDisk::IsLink(const QString&) {
  return false;
}
bool RamDisk::CanWrite(const QString& path) {
  return files_.contains(path) || folders_.contains(FolderOf(path));
}
qint64 RamDisk::Size(const QString& path) {
  return files_.contains(path) ? files_.value(path).size() : -1;
}

QStringList RamDisk::Names(const QString& folder) {
  const QString above = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
  QStringList names;
  for (auto file = files_.lowerBound(above); file != files_.cend() && file.key().startsWith(above);
       ++file) {
    const QString name = file.key().mid(above.size());
    if (!name.contains(QLatin1Char('/'))) names += name;
  }
  for (const QString& other : folders_) {
    if (FolderOf(other) + QLatin1Char('/') == above) names += FileNameOf(other);
  }
  names.sort();
  return names;
}

}  // namespace tamo::test
