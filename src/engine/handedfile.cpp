#include "engine/handedfile.h"

#include <unistd.h>

#include <cerrno>

#include "common/failure.h"

namespace tamo {

int HandedFile::ReadAt(qint64 offset, char* into, qint64 count, qint64& got) const {
  got = 0;
  while (got < count) {
    const ssize_t part =
        ::pread(number_, into + got, static_cast<size_t>(count - got), offset + got);
    if (part < 0 && errno == EINTR) continue;
    if (part < 0) return kFileOther;
    if (part == 0) break;
    got += part;
  }
  return kNoError;
}

}  // namespace tamo
