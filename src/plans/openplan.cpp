#include "plans/openplan.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

#include "common/failure.h"
#include "plans/filetail.h"

namespace tamo {

// What comes back when a plan has been opened on its thread.
struct OpenPlan::Opening {
  mutable std::mutex mutex;
  std::condition_variable ready;
  bool done = false;
  bool late = false;
  PlanContents contents;
};

OpenPlan::OpenPlan(Disk& disk, PlanEngine& engine, QString path, QString password)
    : disk_(disk),
      engine_(engine),
      path_(std::move(path)),
      password_(std::move(password)),
      opening_(std::make_shared<Opening>()) {}

OpenPlan::~OpenPlan() {
  if (plan_ != nullptr) plan_->Abandon();
  if (thread_) thread_->Post([last = std::move(plan_)] {});
}

std::unique_ptr<OpenPlan> OpenPlan::Begin(Disk& disk, PlanEngine& engine, const QString& path,
                                          const QString& password, std::function<void()> onLate,
                                          int& error) {
  std::shared_ptr<FileReader> reader;
  error = disk.OpenToRead(path, reader);
  if (error != kNoError) return nullptr;
  const FileTail tail = ReadTail(*reader);
  if (tail.torn) CutTornTail(disk, path, tail.whole);
  std::unique_ptr<OpenPlan> plan(new OpenPlan(disk, engine, path, password));
  plan->size_ = tail.whole;
  plan->source_ = std::make_shared<PlanSource>(reader, tail.whole);
  plan->plan_ = engine.NewPlan(plan->source_);
  if (plan->plan_ == nullptr) {
    error = kFileOther;
    return nullptr;
  }
  plan->thread_ = std::make_unique<WorkThread>();
  plan->thread_->Post(
      [engine = plan->plan_, opening = plan->opening_, password, tell = std::move(onLate)] {
        PlanContents contents = engine->Open(password);
        bool late = false;
        {
          const std::lock_guard<std::mutex> guard(opening->mutex);
          opening->contents = std::move(contents);
          opening->done = true;
          late = opening->late;
          opening->ready.notify_all();
        }
        if (late && tell) tell();
      });
  return plan;
}

std::unique_ptr<OpenPlan> OpenPlan::Another(const QString& path, int& error) const {
  return Begin(disk_, engine_, path, password_, nullptr, error);
}

bool OpenPlan::Wait(int milliseconds) {
  std::unique_lock<std::mutex> lock(opening_->mutex);
  const bool done = opening_->ready.wait_for(lock, std::chrono::milliseconds(milliseconds),
                                             [this] { return opening_->done; });
  if (!done) opening_->late = true;
  return done;
}

bool OpenPlan::Done() const {
  const std::lock_guard<std::mutex> guard(opening_->mutex);
  return opening_->done;
}

bool OpenPlan::Late() const {
  const std::lock_guard<std::mutex> guard(opening_->mutex);
  return opening_->late;
}

PlanContents OpenPlan::Take() {
  PlanContents contents;
  {
    const std::lock_guard<std::mutex> guard(opening_->mutex);
    contents = std::move(opening_->contents);
  }
  taken_ = true;
  sizes_ = contents.sizes;
  saved_.Read(contents.marks);
  return contents;
}

}  // namespace tamo
