#include "plans/sheetjobs.h"

#include <chrono>
#include <thread>
#include <utility>

namespace tamo {
namespace {

void End(std::shared_ptr<CancelFlag>& stop) {
  if (stop != nullptr) stop->Cancel();
  stop.reset();
}

}  // namespace

void SheetJobs::Begin(Job job, Stop& stop) {
  if (thread_ == nullptr) thread_ = std::make_unique<WorkThread>();
  if (stop == nullptr) stop = std::make_shared<CancelFlag>();
  ++busy_;
  thread_->Post([this, job = std::move(job), stop, post = queue_.Poster()] {
    const TellNews tell = [&](std::function<void()> news) {
      post([stop, news = std::move(news)] {
        if (!stop->Cancelled()) news();
      });
    };
    if (!stop->Cancelled()) job(*stop, tell);
    post([this] { --busy_; });
  });
}

void SheetJobs::Post(Job job) {
  Begin(std::move(job), sheet_);
}

void SheetJobs::PostLasting(Job job) {
  Begin(std::move(job), lasting_);
}

void SheetJobs::LeaveSheet() {
  End(sheet_);
}

void SheetJobs::StopAll() {
  End(sheet_);
  End(lasting_);
}

bool SheetJobs::Settle(int milliseconds) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
  queue_.Run();
  while (busy_ > 0) {
    if (std::chrono::steady_clock::now() >= end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    queue_.Run();
  }
  return true;
}

}  // namespace tamo
