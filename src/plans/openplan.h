#pragma once

#include <functional>
#include <memory>

#include "common/disk.h"
#include "plans/planengine.h"
#include "plans/savedmarks.h"
#include "plans/workthread.h"

namespace tamo {

// A plan that is open, or being opened: its file, what the engine has of it, and the thread on
// which it is opened and saved. One thread calls. Destroying it comes back within a moment
// whatever the plan does.
class OpenPlan {
 public:
  // Begins to open a plan; a part at its end that a save left torn is cut off first. Null when it
  // is not there: `error` says why. Disk and engine outlive the plan. `onLate` is called by the
  // plan's thread when it is open after somebody gave up waiting for it.
  static std::unique_ptr<OpenPlan> Begin(Disk& disk, PlanEngine& engine, const QString& path,
                                         const QString& password, std::function<void()> onLate,
                                         int& error);
  // Another file by the same engine and password; nobody hears when it is late.
  std::unique_ptr<OpenPlan> Another(const QString& path, int& error) const;
  ~OpenPlan();
  OpenPlan(const OpenPlan&) = delete;
  OpenPlan& operator=(const OpenPlan&) = delete;

  // False when it is not opened within that time; it goes on.
  bool Wait(int milliseconds);
  bool Done() const;  // it is opened, for good or ill
  bool Late() const;  // somebody gave up waiting for it
  // What it holds, once, when it is done; its marks are the saved ones from then on.
  PlanContents Take();
  bool Taken() const { return taken_; }

  const std::shared_ptr<EnginePlan>& Engine() const { return plan_; }
  PlanSource& Source() const { return *source_; }
  WorkThread& Thread() const { return *thread_; }
  const std::vector<PageSize>& Sizes() const { return sizes_; }  // when it is taken
  SavedMarks& Saved() { return saved_; }
  const SavedMarks& Saved() const { return saved_; }
  // Where its file stands, also after a save has put it elsewhere.
  const QString& Path() const { return path_; }
  void SetPath(const QString& path) { path_ = path; }
  // Bytes of the file as this program last knew it, and how many a save has added to it.
  qint64 Size() const { return size_; }
  void Grow(qint64 bytes) { size_ += bytes; }

 private:
  struct Opening;

  OpenPlan(Disk& disk, PlanEngine& engine, QString path, QString password);

  Disk& disk_;
  PlanEngine& engine_;
  QString path_;
  QString password_;
  std::shared_ptr<PlanSource> source_;
  std::shared_ptr<EnginePlan> plan_;
  std::unique_ptr<WorkThread> thread_;
  std::shared_ptr<Opening> opening_;
  bool taken_ = false;
  std::vector<PageSize> sizes_;
  SavedMarks saved_;
  qint64 size_ = 0;
};

}  // namespace tamo
