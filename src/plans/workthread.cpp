#include "plans/workthread.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

namespace tamo {
namespace {

constexpr auto kMeanwhile = std::chrono::milliseconds(4);

}  // namespace

struct WorkThread::State {
  std::mutex mutex;
  std::condition_variable wake;
  std::condition_variable ended;
  std::deque<Job> jobs;
  bool stop = false;
  bool done = false;
};

WorkThread::WorkThread() : state_(std::make_shared<State>()) {
  thread_ = std::thread([state = state_] { Loop(state); });
}

void WorkThread::Loop(const std::shared_ptr<State>& state) {
  std::unique_lock<std::mutex> lock(state->mutex);
  for (;;) {
    state->wake.wait(lock, [&] { return state->stop || !state->jobs.empty(); });
    if (state->jobs.empty()) break;
    Job job = std::move(state->jobs.front());
    state->jobs.pop_front();
    lock.unlock();
    job();
    job = nullptr;
    lock.lock();
  }
  state->done = true;
  state->ended.notify_all();
}

WorkThread::~WorkThread() {
  std::unique_lock<std::mutex> lock(state_->mutex);
  state_->stop = true;
  state_->wake.notify_all();
  const bool ended =
      state_->ended.wait_for(lock, std::chrono::milliseconds(4), [this] { return state_->done; });
  lock.unlock();
  if (ended) {
    thread_.join();
  } else {
    thread_.detach();
  }
}

void WorkThread::Post(Job job) {
  const std::lock_guard<std::mutex> guard(state_->mutex);
  state_->jobs.push_back(std::move(job));
  state_->wake.notify_all();
}

bool WorkThread::Run(Job job, int milliseconds, const std::function<void()>& meanwhile) {
  using Clock = std::chrono::steady_clock;

  struct Wait {
    std::mutex mutex;
    std::condition_variable done;
    bool finished = false;
  };
  const auto wait = std::make_shared<Wait>();
  Post([wait, job = std::move(job)] {
    job();
    const std::lock_guard<std::mutex> guard(wait->mutex);
    wait->finished = true;
    wait->done.notify_all();
  });
  const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
  std::unique_lock<std::mutex> lock(wait->mutex);
  const auto finished = [&] { return wait->finished; };
  if (!meanwhile) return wait->done.wait_until(lock, end, finished);
  while (!wait->done.wait_for(lock, kMeanwhile, finished) && Clock::now() < end) {
    lock.unlock();
    meanwhile();
    lock.lock();
  }
  return wait->finished;
}

}  // namespace tamo
