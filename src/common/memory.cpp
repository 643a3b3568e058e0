#include "common/memory.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace tamo {

void KeepMemory() {
#ifdef M_TRIM_THRESHOLD
  mallopt(M_TRIM_THRESHOLD, 64 << 20);
  mallopt(M_MMAP_THRESHOLD, 16 << 20);
  mallopt(M_ARENA_MAX, 2);
#endif
}

}  // namespace tamo
