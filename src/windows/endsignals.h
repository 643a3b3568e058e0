#pragma once

#include <QObject>
#include <functional>

namespace tamo {

// The system's requests to end the program: SIGTERM, SIGHUP (log-out) and SIGINT. The handler of a
// signal only writes a byte into a pipe; `asked` runs in the event loop. One at a time.
class EndSignals : public QObject {
 public:
  explicit EndSignals(std::function<void()> asked);
  ~EndSignals() override;

 private:
  void Take();

  std::function<void()> asked_;
  int pipe_[2] = {-1, -1};
};

}  // namespace tamo
