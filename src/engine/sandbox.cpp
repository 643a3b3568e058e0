#include "engine/sandbox.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <malloc.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "plans/wiresocket.h"

namespace tamo {
namespace {

// All the memory there is for it: the engine takes 320 MB at most, the tiles 48, its code and what
// stands in it 80, and each thread its stack.
constexpr rlim_t kMemory = rlim_t(512) << 20;
constexpr size_t kStack = size_t(2) << 20;
constexpr rlim_t kSeconds = 3600;  // of the processor, then another worker takes its place

void Limit(__rlimit_resource what, rlim_t most) {
  const rlimit limit{most, most};
  ::setrlimit(what, &limit);
}

// No file can be opened, made or run by its name any more.
bool LockFiles() {
  landlock_ruleset_attr rules{};
  rules.handled_access_fs =
      LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_READ_FILE |
      LANDLOCK_ACCESS_FS_READ_DIR | LANDLOCK_ACCESS_FS_REMOVE_DIR | LANDLOCK_ACCESS_FS_REMOVE_FILE |
      LANDLOCK_ACCESS_FS_MAKE_CHAR | LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
      LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO | LANDLOCK_ACCESS_FS_MAKE_BLOCK |
      LANDLOCK_ACCESS_FS_MAKE_SYM;
  const long ruleset = ::syscall(SYS_landlock_create_ruleset, &rules, sizeof rules, 0);
  if (ruleset < 0) return false;
  const bool locked = ::syscall(SYS_landlock_restrict_self, ruleset, 0) == 0;
  ::close(static_cast<int>(ruleset));
  return locked;
}

}  // namespace

bool HasSanitizer() {
#if defined(__SANITIZE_ADDRESS__)
  return true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
  return true;
#endif
#endif
  return false;
}

void ShutIn(WorkerGuard& guard) {
  ::syscall(SYS_close_range, kWorkerTiles + 1, ~0U, 0);
  ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
  ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
  // What is given back is kept for the next page.
  ::mallopt(M_ARENA_MAX, 1);
  ::mallopt(M_MMAP_THRESHOLD, 32 << 20);
  ::mallopt(M_TRIM_THRESHOLD, 64 << 20);
  guard.files = LockFiles();
  Limit(RLIMIT_CORE, 0);
  Limit(RLIMIT_FSIZE, 0);
  Limit(RLIMIT_CPU, kSeconds);
  if (HasSanitizer()) return;
  Limit(RLIMIT_AS, kMemory);
  pthread_attr_t threads;
  ::pthread_attr_init(&threads);
  ::pthread_attr_setstacksize(&threads, kStack);
  ::pthread_setattr_default_np(&threads);
  ::pthread_attr_destroy(&threads);
}

}  // namespace tamo
