#pragma once

#include <QString>
#include <memory>

#include "common/disk.h"

namespace tamo {

// Who wants to know what stood in a file before it was replaced or removed. Called in the thread
// that saves, which waits for it.
class FileWitness {
 public:
  virtual ~FileWitness() = default;
  // `path` has been replaced or removed. `former` goes on reading the old file, although it has no
  // name any more; null when there was none.
  virtual void Replaced(const QString& path, std::shared_ptr<FileReader> former) = 0;
  // The disk is full: gives up something that can be spared. False when there is nothing left.
  virtual bool MakeRoom() = 0;
};

}  // namespace tamo
