#include "program/bidreader.h"

#include <new>
#include <system_error>
#include <utility>

#include "common/paths.h"
#include "records/datafolder.h"
#include "reports/reportsource.h"

#ifdef __linux__
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace tamo {
namespace {

// Who types comes first.
void StepBehindTheWindow() {
#ifdef __linux__
  constexpr int kNice = 5;
  setpriority(PRIO_PROCESS, static_cast<id_t>(syscall(SYS_gettid)), kNice);
#endif
}

}  // namespace

BidReader::BidReader(Disk& disk, std::function<void()> onAnswer)
    : files_(disk), onAnswer_(std::move(onAnswer)) {}

BidReader::~BidReader() {
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    stop_ = true;
  }
  wake_.notify_one();
  if (thread_.joinable()) thread_.join();
}

void BidReader::Ask(Question question) {
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    if (question_) {
      question.opened |= question_->opened;
      question.changed += question_->changed;
    }
    question_ = std::move(question);
  }
  try {
    if (!thread_.joinable()) thread_ = std::thread([this] { Run(); });
  } catch (const std::system_error&) {
    // No thread to be had: the next question tries again.
    const std::lock_guard<std::mutex> guard(mutex_);
    question_.reset();
  }
  wake_.notify_one();
}

std::optional<BidReader::Answer> BidReader::Take() {
  const std::lock_guard<std::mutex> guard(mutex_);
  return std::exchange(answer_, std::nullopt);
}

bool BidReader::Idle() {
  const std::lock_guard<std::mutex> guard(mutex_);
  return !question_ && !reading_ && !answer_;
}

BidOverview BidReader::Read(Files& files, const Question& question,
                            const std::function<bool(int done, int all)>& progress) {
  Markups markups = question.markups;
  LoadMarkups(files, question.shared, markups);
  ReportSource source{files, ProjectFolder(question.shared), progress};
  return OverviewOfBid(source, markups);
}

void BidReader::Forget(const Question& question) {
  if (question.opened) files_.ForgetFolder(BareFolder(ProjectFolder(question.shared).Path()));
  for (const QString& path : question.changed) files_.Forget(path);
}

void BidReader::Run() {
  StepBehindTheWindow();
  std::unique_lock<std::mutex> lock(mutex_);
  for (;;) {
    wake_.wait(lock, [this] { return stop_ || question_; });
    if (stop_) return;
    const Question question = *std::exchange(question_, std::nullopt);
    reading_ = true;
    lock.unlock();
    BidOverview state;
    try {
      Forget(question);
      state = Read(files_, question, [this](int, int) { return !stop_; });
    } catch (const std::bad_alloc&) {
      state = {};
      state.failure = QStringLiteral("There is not enough memory for the figures of this bid.");
    }
    lock.lock();
    reading_ = false;
    if (stop_) return;
    answer_ = Answer{std::move(state), question.shared.JobID};
    onAnswer_();
  }
}

}  // namespace tamo
