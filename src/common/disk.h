#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>

namespace tamo {

// An open file that is read in parts, at any place and from any thread, until it is destroyed. It
// goes on reading the file it opened, also when another file has taken its name since.
class FileReader {
 public:
  virtual ~FileReader() = default;
  virtual qint64 Size() const = 0;  // when it was opened
  // Up to `count` bytes from `offset`; `got` is less only at the end of the file.
  virtual int ReadAt(qint64 offset, char* into, qint64 count, qint64& got) const = 0;
};

// Which file stands under a name, and how it looks from outside. Two equal stamps of a file that
// had rest before the first of them mean the same content.
struct FileStamp {
  quint64 device = 0;
  quint64 number = 0;
  qint64 size = -1;     // bytes; -1 when nothing is known of it
  qint64 modified = 0;  // its text, in nanoseconds since 1970 as the device's clock tells
  qint64 changed = 0;   // its text, name, rights or times
  qint64 seen = 0;      // when it was looked at, by the program's clock

  bool Known() const { return size >= 0; }
  bool operator==(const FileStamp& other) const {
    return device == other.device && number == other.number && size == other.size &&
           modified == other.modified && changed == other.changed;
  }
};

inline constexpr qint64 kLargestText = 64 << 20;  // bytes; no text file of ours comes near it

// An error number: the file system can't do that.
inline constexpr int kNotOffered = 1004;

// The file system, one call a step, so that a test can make any step fail. Every call that can fail
// returns an error number: 0, 53 file not found, 76 path not found, 75 access, 61 disk full, 57
// other; reading also 14 far too large, 62 ended short. Paths are whole paths in the platform's
// form.
class Disk {
 public:
  virtual ~Disk() = default;

  // The whole of a file of at most kLargestText bytes. From any thread.
  virtual int Read(const QString& path, QByteArray& bytes) = 0;
  // From any thread. Unknown for what is no file, and on devices of other machines, whose stamps
  // can be older than the file.
  virtual FileStamp Stamp(const QString& path) = 0;
  // Both at once: `stamp` is how the file looked before it was read. From any thread.
  virtual int ReadStamped(const QString& path, QByteArray& bytes, FileStamp& stamp) {
    stamp = Stamp(path);
    return Read(path, bytes);
  }
  // For files too large to be read whole.
  virtual int OpenToRead(const QString& path, std::shared_ptr<FileReader>& reader) = 0;

  // A new file for writing, replacing one of that name. `handle` is valid until Close.
  virtual int OpenNew(const QString& path, int& handle) = 0;
  // A new file for writing; 58 when there is something of that name already. Of several programs,
  // also on several machines, one gets it.
  virtual int OpenExclusive(const QString& path, int& handle) = 0;
  // An existing file for adding at its end, or for cutting (Truncate).
  virtual int OpenAtEnd(const QString& path, int& handle) = 0;
  // All of `bytes`, unbuffered, or an error.
  virtual int Write(int handle, const QByteArray& bytes) = 0;
  virtual int Truncate(int handle, qint64 size) = 0;
  // Gives an open new file the rights, the owner and the extended attributes of the file `from`, as
  // far as the system lets it; nothing when there is none.
  virtual void TakeOver(int handle, const QString& from) {
    (void)handle;
    (void)from;
  }
  // Returns when the bytes are on the device.
  virtual int Sync(int handle) = 0;
  virtual int Close(int handle) = 0;
  // `to` is replaced in one step: whoever opens it sees the old file or the new one, whole.
  virtual int Rename(const QString& from, const QString& to) = 0;
  // As Rename, but 58 when `to` is there. kNotOffered where the file system has no such step.
  virtual int RenameNew(const QString& from, const QString& to) {
    (void)from;
    (void)to;
    return kNotOffered;
  }
  // Two files change names in one step. kNotOffered likewise.
  virtual int Swap(const QString& one, const QString& other) {
    (void)one;
    (void)other;
    return kNotOffered;
  }
  // Makes a rename in `folder` last.
  virtual int SyncFolder(const QString& folder) = 0;

  virtual int MakeFolder(const QString& path) = 0;  // one level; 75 when it exists already
  virtual int RemoveFile(const QString& path) = 0;
  virtual int RemoveFolder(const QString& path) = 0;  // only an empty one

  virtual bool Exists(const QString& path) = 0;
  virtual bool IsFolder(const QString& path) = 0;
  virtual bool IsLink(const QString& path) = 0;
  // The path at the end of the symbolic links that `path` is, or `path` itself. It need not exist.
  virtual QString FollowLink(const QString& path) { return path; }
  // Since it was last written, by the device's clock; -1 when that is not known.
  virtual qint64 SecondsSinceWritten(const QString& path) {
    (void)path;
    return -1;
  }
  // Whether a file could be written there: the file's own right, or its folder's when it does not
  // exist.
  virtual bool CanWrite(const QString& path) = 0;
  virtual qint64 Size(const QString& path) = 0;  // -1 when there is none
  // The names in a folder, sorted: files and folders, without "." and "..".
  virtual QStringList Names(const QString& folder) = 0;
};

// The machine's own file system.
class RealDisk : public Disk {
 public:
  int Read(const QString& path, QByteArray& bytes) override;
  FileStamp Stamp(const QString& path) override;
  // With a look less at the file. A double that overrides Read or Stamp goes back to Disk's.
  int ReadStamped(const QString& path, QByteArray& bytes, FileStamp& stamp) override;
  int OpenToRead(const QString& path, std::shared_ptr<FileReader>& reader) override;
  int OpenNew(const QString& path, int& handle) override;
  int OpenExclusive(const QString& path, int& handle) override;
  int OpenAtEnd(const QString& path, int& handle) override;
  int Write(int handle, const QByteArray& bytes) override;
  int Truncate(int handle, qint64 size) override;
  void TakeOver(int handle, const QString& from) override;
  int Sync(int handle) override;
  int Close(int handle) override;
  int Rename(const QString& from, const QString& to) override;
  int RenameNew(const QString& from, const QString& to) override;
  int Swap(const QString& one, const QString& other) override;
  int SyncFolder(const QString& folder) override;
  int MakeFolder(const QString& path) override;
  int RemoveFile(const QString& path) override;
  int RemoveFolder(const QString& path) override;
  bool Exists(const QString& path) override;
  bool IsFolder(const QString& path) override;
  bool IsLink(const QString& path) override;
  QString FollowLink(const QString& path) override;
  qint64 SecondsSinceWritten(const QString& path) override;
  bool CanWrite(const QString& path) override;
  qint64 Size(const QString& path) override;
  QStringList Names(const QString& folder) override;
};

}  // namespace tamo
