#include "plans/sheetjobs.h"

#include <utility>

#include "plans/waituntil.h"

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
  return WaitUntil(milliseconds, [this] {
    queue_.Run();
    return busy_ == 0;
  });
}

}  // namespace tamo
