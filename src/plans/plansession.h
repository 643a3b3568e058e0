#pragma once

// The inside of MuPdfDraw, shared by its two source files.

#include <QObject>
#include <QSet>
#include <condition_variable>
#include <mutex>

#include "plans/filetail.h"
#include "plans/mupdfdraw.h"
#include "plans/planfile.h"
#include "plans/planpainter.h"

namespace tamo {

// Instead of an error number: nothing can be appended to the plan, it has to be written anew.
inline constexpr int kNeedsRewrite = -1;

// What comes back when a plan has been opened on its thread.
struct MuPdfDraw::Opening {
  std::mutex mutex;
  std::condition_variable ready;
  bool done = false;
  bool slow = false;  // OpenFile did not wait for it
  PlanContents contents;
};

// One open plan with its threads. Destroying it comes back within a moment whatever the plan does.
struct MuPdfDraw::Session {
  // The plan's structure; made, used and destroyed on `thread` only.
  struct Holder {
    std::unique_ptr<PlanFile> file;
  };

  std::shared_ptr<MuWorld> world;
  std::shared_ptr<ReaderSlot> slot;
  std::shared_ptr<Holder> holder = std::make_shared<Holder>();
  std::unique_ptr<JobThread> thread;
  std::unique_ptr<PlanPainter> painter;
  std::vector<PageSize> sizes;
  QSet<QString> savedNames;  // marks that stand in the file
  qint64 size = 0;           // bytes of the file as this program last knew it

  ~Session() {
    painter.reset();
    world->Abandon();
    if (thread) {
      thread->Post([holder = holder](fz_context*) { holder->file.reset(); });
      thread.reset();
    }
  }
};

// Carries news from the threads of a plan to the thread of the forms.
class MuPdfDraw::Bridge {
 public:
  explicit Bridge(MuPdfDraw* draw) : draw_(draw) {}
  void Cut();
  // Calls `work` on the viewer's own thread, if the viewer still lives then.
  static void Post(const std::shared_ptr<Bridge>& bridge, std::function<void(MuPdfDraw&)> work);
  // Many pictures at once are one piece of news.
  static void PostPictures(const std::shared_ptr<Bridge>& bridge);
  // The same after a time.
  static void After(const std::shared_ptr<Bridge>& bridge, int milliseconds,
                    std::function<void(MuPdfDraw&)> work);

 private:
  std::mutex mutex_;
  std::unique_ptr<QObject> anchor_ = std::make_unique<QObject>();
  MuPdfDraw* draw_;
  bool picturesPosted_ = false;
};

}  // namespace tamo
