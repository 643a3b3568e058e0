#pragma once

#include <functional>
#include <memory>
#include <thread>

namespace tamo {

// A thread that does one job after the other. Destroying it ends it after the jobs given to it;
// when that takes longer than a moment the thread is left to end by itself, so a job owns what it
// works on.
class WorkThread {
 public:
  using Job = std::function<void()>;

  WorkThread();
  ~WorkThread();
  WorkThread(const WorkThread&) = delete;
  WorkThread& operator=(const WorkThread&) = delete;

  void Post(Job job);
  // Does a job and waits for it; false when it is not done in time (it then still comes to its
  // end). `meanwhile`, when there is one, is called every few milliseconds by who waits.
  bool Run(Job job, int milliseconds, const std::function<void()>& meanwhile = nullptr);

 private:
  struct State;
  static void Loop(const std::shared_ptr<State>& state);
  std::shared_ptr<State> state_;
  std::thread thread_;
};

}  // namespace tamo
