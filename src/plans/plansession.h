#pragma once

// The inside of PdfDraw, shared by its source files.

#include <QHash>
#include <QObject>
#include <atomic>
#include <condition_variable>
#include <mutex>

#include "common/failure.h"
#include "plans/filetail.h"
#include "plans/pdfdraw.h"
#include "plans/planengine.h"
#include "plans/planpainter.h"
#include "plans/workthread.h"

namespace tamo {

// What comes back when a plan has been opened on its thread.
struct PdfDraw::Opening {
  std::mutex mutex;
  std::condition_variable ready;
  bool done = false;
  bool slow = false;  // OpenFile did not wait for it
  PlanContents contents;
};

// One open plan with its threads. Destroying it comes back within a moment whatever the plan does.
struct PdfDraw::Session {
  std::shared_ptr<PlanSource> source;
  std::shared_ptr<EnginePlan> plan;
  std::unique_ptr<WorkThread> thread;  // opens and saves
  std::unique_ptr<PlanPainter> painter;
  std::vector<PageSize> sizes;
  QHash<QString, Mark> saved;  // the marks as they stand in the file, by name
  qint64 size = 0;             // bytes of the file as this program last knew it

  ~Session() {
    painter.reset();
    if (plan != nullptr) plan->Abandon();
    if (thread) thread->Post([last = std::move(plan)] {});
  }
};

// How far a part of a save has come, written by the plan's thread.
struct PdfDraw::Progress {
  std::mutex writing;
  bool left = false;  // nobody waits for it any more: nothing may be written
  std::atomic<int> perCent = 0;
  int error = kFileOther;
  QString problem;  // in words, where the work has some
};

// How long parts of a save may take, in milliseconds.
inline constexpr int kBuildPatience = 20000;
inline constexpr int kCopyPatience = 600000;
// Instead of an error number: nothing can be appended to the plan, it has to be written anew.
inline constexpr int kNeedsRewrite = -1;

// Brings news from the threads of a plan to the thread of the forms.
class PdfDraw::FormsThread {
 public:
  explicit FormsThread(PdfDraw* draw) : draw_(draw) {}
  void Cut();
  // Calls `work` on the viewer's own thread, if the viewer still lives then.
  static void Post(const std::shared_ptr<FormsThread>& forms, std::function<void(PdfDraw&)> work);
  // Many pictures at once are one piece of news.
  static void PostPictures(const std::shared_ptr<FormsThread>& forms);
  // The same after a time.
  static void After(const std::shared_ptr<FormsThread>& forms, int milliseconds,
                    std::function<void(PdfDraw&)> work);

 private:
  std::mutex mutex_;
  std::unique_ptr<QObject> anchor_ = std::make_unique<QObject>();
  PdfDraw* draw_;
  bool picturesPosted_ = false;
};

}  // namespace tamo
