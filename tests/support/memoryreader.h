#pragma once

#include <QByteArray>
#include <algorithm>
#include <cstring>

#include "common/disk.h"

namespace tamo::test {

// A file in memory.
class MemoryReader : public FileReader {
 public:
  explicit MemoryReader(QByteArray bytes) : bytes_(std::move(bytes)) {}
  qint64 Size() const override { return bytes_.size(); }
  int ReadAt(qint64 offset, char* into, qint64 count, qint64& got) const override {
    got = std::clamp(static_cast<qint64>(bytes_.size()) - offset, qint64(0), count);
    if (got > 0) std::memcpy(into, bytes_.constData() + offset, static_cast<size_t>(got));
    return 0;
  }

 private:
  QByteArray bytes_;
};

}  // namespace tamo::test
