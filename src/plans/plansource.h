#pragma once

#include <memory>
#include <mutex>

#include "common/disk.h"

namespace tamo {

// The file that an open plan is read from, by any thread. A copy with the same first bytes can take
// its place.
class PlanSource {
 public:
  PlanSource(std::shared_ptr<FileReader> reader, qint64 size)
      : reader_(std::move(reader)), size_(size) {}
  void Replace(std::shared_ptr<FileReader> reader);
  std::shared_ptr<FileReader> Reader() const;
  qint64 Size() const { return size_; }  // bytes of the whole state; what follows is not read

 private:
  mutable std::mutex mutex_;
  std::shared_ptr<FileReader> reader_;
  const qint64 size_;
};

}  // namespace tamo
