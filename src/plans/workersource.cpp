#include "plans/workersource.h"

#include <utility>

namespace tamo {
namespace {

// The plan that was opened last has its first page by then.
constexpr auto kQuiet = std::chrono::milliseconds(500);

}  // namespace

WorkerSource::WorkerSource(QByteArray program) : program_(std::move(program)) {}

WorkerSource::~WorkerSource() {
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    over_ = true;
    news_.notify_all();
  }
  if (thread_.joinable()) thread_.join();
}

// The life of the thread that begins the next one.
void WorkerSource::Keep() {
  std::unique_lock<std::mutex> lock(mutex_);
  while (!over_) {
    if (!wanted_) {
      news_.wait(lock);
    } else if (std::chrono::steady_clock::now() < due_) {
      news_.wait_until(lock, due_);
    } else {
      wanted_ = false;
      spare_ = WorkerProcess::Start(program_);
    }
  }
}

void WorkerSource::WantAnother() {
  wanted_ = true;
  due_ = std::chrono::steady_clock::now() + kQuiet;
  if (!thread_.joinable()) thread_ = std::thread([this] { Keep(); });
  news_.notify_all();
}

std::unique_ptr<WorkerProcess> WorkerSource::Take(const FileReader& plan, qint64 size) {
  std::unique_ptr<WorkerProcess> process;
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    process = std::move(spare_);
    WantAnother();
  }
  if (process != nullptr && process->Hand(plan, size)) return process;
  process = WorkerProcess::Start(program_);
  if (process != nullptr && process->Hand(plan, size)) return process;
  return nullptr;
}

bool WorkerSource::OneWaits() const {
  const std::lock_guard<std::mutex> guard(mutex_);
  return spare_ != nullptr;
}

}  // namespace tamo
