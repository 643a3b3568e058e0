#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <vector>

#include "engine/sandbox.h"

// The system calls of a worker. All others fail with "not permitted".

namespace tamo {
namespace {

#if defined(__x86_64__)
constexpr unsigned kMachine = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr unsigned kMachine = AUDIT_ARCH_AARCH64;
#else
constexpr unsigned kMachine = 0;
#endif

constexpr long kAllowed[] = {
    SYS_read,
    SYS_pread64,
    SYS_write,
    SYS_sendto,
    SYS_recvfrom,
    SYS_recvmsg,
    SYS_futex,
    SYS_mmap,
    SYS_munmap,
    SYS_mremap,
    SYS_mprotect,
    SYS_madvise,
    SYS_brk,
    SYS_exit,
    SYS_exit_group,
    SYS_rt_sigreturn,
    SYS_rt_sigprocmask,
    SYS_sigaltstack,
    SYS_clock_gettime,
    SYS_clock_nanosleep,
    SYS_gettimeofday,
    SYS_getrandom,
    SYS_sched_yield,
    SYS_restart_syscall,
    SYS_getpid,
    SYS_gettid,
    SYS_rseq,
    SYS_set_robust_list,
    SYS_close,
    SYS_lseek,
};

sock_filter Step(unsigned short code, unsigned value, unsigned char yes, unsigned char no) {
  return {code, yes, no, value};
}

std::vector<sock_filter> Program() {
  constexpr unsigned short kLoad = BPF_LD | BPF_W | BPF_ABS;
  constexpr unsigned short kEqual = BPF_JMP | BPF_JEQ | BPF_K;
  constexpr unsigned short kReturn = BPF_RET | BPF_K;
  std::vector<sock_filter> steps = {
      Step(kLoad, offsetof(seccomp_data, arch), 0, 0),
      Step(kEqual, kMachine, 1, 0),
      Step(kReturn, SECCOMP_RET_KILL_PROCESS, 0, 0),
      Step(kLoad, offsetof(seccomp_data, nr), 0, 0),
  };
  auto left = static_cast<unsigned char>(std::size(kAllowed));
  for (const long call : kAllowed) steps.push_back(Step(kEqual, unsigned(call), left--, 0));
  steps.push_back(Step(kReturn, SECCOMP_RET_ERRNO | EPERM, 0, 0));
  steps.push_back(Step(kReturn, SECCOMP_RET_ALLOW, 0, 0));
  return steps;
}

}  // namespace

void FilterCalls(WorkerGuard& guard) {
  guard.calls = HasSanitizer();
  if (kMachine == 0 || HasSanitizer()) return;
  std::vector<sock_filter> steps = Program();
  const sock_fprog program{static_cast<unsigned short>(steps.size()), steps.data()};
  guard.calls =
      ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_TSYNC, &program) == 0;
}

}  // namespace tamo
