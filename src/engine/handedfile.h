#pragma once

#include "common/disk.h"

namespace tamo {

// A file that this process was given open, to be read; it can't open another.
class HandedFile : public FileReader {
 public:
  HandedFile(int number, qint64 size) : number_(number), size_(size) {}
  qint64 Size() const override { return size_; }
  int ReadAt(qint64 offset, char* into, qint64 count, qint64& got) const override;

 private:
  int number_;
  qint64 size_;
};

}  // namespace tamo
