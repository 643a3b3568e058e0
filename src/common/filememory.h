#pragma once

#include <QString>
#include <mutex>
#include <unordered_map>

#include "common/disk.h"

namespace tamo {

// The texts of small files as they were last read, so that a report that is made anew at every
// entry reads only what has changed. A text is given again only while its file is the same one, of
// the same size and with the same times to the nanosecond. A file that was changed shortly before
// it was looked at is not kept: its clock could stand still through one change more. From any
// thread.
class FileMemory {
 public:
  // The text of `path` when its file still is what it was; false when it must be read.
  bool Find(const QString& path, const FileStamp& stamp, QString& text);
  // False: it must be read, however the file looks.
  bool Knows(const QString& path);
  // `text` was read after the file had been looked at with `stamp`.
  void Keep(const QString& path, const FileStamp& stamp, const QString& text);
  void Forget(const QString& path);

  static constexpr qsizetype kLargestText = 1 << 16;  // characters
  static constexpr qsizetype kMost = 1 << 23;         // of all texts
  static constexpr qint64 kSettled = 3'000'000'000;   // nanoseconds; the coarsest clock has 2 s

 private:
  struct Entry {
    FileStamp stamp;
    QString text;
  };
  void Add(const QString& path, Entry entry);

  std::mutex mutex_;
  // Two generations: when the younger one is full the older one is dropped.
  using Entries = std::unordered_map<QString, Entry>;
  Entries young_;
  Entries old_;
  qsizetype characters_ = 0;  // of the younger one
};

}  // namespace tamo
