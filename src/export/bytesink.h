#pragma once

#include <QByteArray>

namespace tamo {

// Where a file goes while it is made: onto a disk, into a pipe, into memory.
class ByteSink {
 public:
  virtual ~ByteSink() = default;
  // All of `bytes`. An error number as Disk has them; after the first error nothing more is
  // written, and each call answers it.
  virtual int Write(const QByteArray& bytes) = 0;
};

// In memory, for what is short.
class BytesInMemory : public ByteSink {
 public:
  int Write(const QByteArray& bytes) override {
    all += bytes;
    return 0;
  }
  QByteArray all;
};

}  // namespace tamo
