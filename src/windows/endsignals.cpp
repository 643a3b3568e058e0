#include "windows/endsignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <csignal>

namespace tamo {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};
volatile std::sig_atomic_t writeEnd = -1;

// Nothing here but what a signal handler may do.
void Asked(int) {
  const int before = errno;
  const char byte = 1;
  const ssize_t written = ::write(static_cast<int>(writeEnd), &byte, 1);
  (void)written;
  errno = before;
}

void Handle(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  for (const int signal : kSignals) ::sigaction(signal, &action, nullptr);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> asked) : asked_(std::move(asked)) {
  if (::pipe2(pipe_, O_CLOEXEC | O_NONBLOCK) != 0) return;
  writeEnd = pipe_[1];
  auto* notifier = new QSocketNotifier(pipe_[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this] { Take(); });
  Handle(&Asked);
}

EndSignals::~EndSignals() {
  if (pipe_[0] < 0) return;
  Handle(SIG_DFL);
  writeEnd = -1;
  ::close(pipe_[0]);
  ::close(pipe_[1]);
}

void EndSignals::Take() {
  char bytes[16];
  while (::read(pipe_[0], bytes, sizeof bytes) > 0) continue;
  asked_();
}

}  // namespace tamo
