#pragma once

#include <QByteArray>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "plans/workerprocess.h"

namespace tamo {

// Where the workers of plans come from. None begins before the first plan; from then on one more
// waits for the next plan, so that opening it does not wait for a process to begin.
class WorkerSource {
 public:
  explicit WorkerSource(QByteArray program);
  virtual ~WorkerSource();
  WorkerSource(const WorkerSource&) = delete;
  WorkerSource& operator=(const WorkerSource&) = delete;

  // A worker that has the plan before it. Null when it can't be started, or the plan not be read.
  // Any thread.
  virtual std::unique_ptr<WorkerProcess> Take(const FileReader& plan, qint64 size);
  const QByteArray& Program() const { return program_; }
  bool OneWaits() const;

 private:
  void Keep();
  void WantAnother();

  const QByteArray program_;
  mutable std::mutex mutex_;
  std::condition_variable news_;
  std::unique_ptr<WorkerProcess> spare_;
  std::chrono::steady_clock::time_point due_;  // when the next one begins
  bool wanted_ = false;
  bool over_ = false;
  std::thread thread_;
};

}  // namespace tamo
