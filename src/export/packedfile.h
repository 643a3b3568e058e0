#pragma once

#include <QByteArray>
#include <QHash>

namespace tamo {

// A packed file (ZIP) in memory: what it holds is found by the directory at its end. Made for
// files of strangers: nothing outside the bytes is ever read, and an entry that would grow beyond
// `most` bytes is refused.
class PackedFile {
 public:
  explicit PackedFile(const QByteArray& bytes);

  bool Whole() const { return whole_; }  // its directory could be read
  bool Has(const QByteArray& name) const { return entries_.contains(name); }
  // False when there is no such entry, or it is damaged, or too large.
  bool Read(const QByteArray& name, qint64 most, QByteArray& content) const;

 private:
  struct Entry {
    int method = 0;  // 0 as it is, 8 deflated
    quint32 packed = 0;
    quint32 size = 0;
    quint32 check = 0;
    quint32 place = 0;
  };
  bool ReadDirectory();
  quint32 At(qint64 place, int bytes) const;

  const QByteArray& bytes_;
  QHash<QByteArray, Entry> entries_;
  bool whole_ = false;
};

}  // namespace tamo
