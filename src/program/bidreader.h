#pragma once

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include "common/files.h"
#include "common/sharedfields.h"
#include "records/markupsfile.h"
#include "reports/bidoverview.h"

namespace tamo {

// Reads how a bid stands, on a thread of its own, so that nobody waits for it. It has files of its
// own, which keep the texts of sheets that did not change: what is read again is what was stored.
class BidReader {
 public:
  struct Question {
    SharedFields shared;  // which project
    Markups markups;      // that stand where the file gives none
    // What the program itself made of its files since the last question: one that it removed is not
    // gone.
    bool opened = false;  // the project was opened
    QStringList changed;  // files that were stored or removed
  };

  // The disk outlives this. `onAnswer` is called on the thread of the reader.
  BidReader(Disk& disk, std::function<void()> onAnswer);
  ~BidReader();
  BidReader(const BidReader&) = delete;
  BidReader& operator=(const BidReader&) = delete;

  // The newest question takes the place of one that was not begun yet.
  void Ask(Question question);
  struct Answer {
    BidOverview state;
    QString project;  // its id
  };
  // The last answer that was not taken yet.
  std::optional<Answer> Take();
  // Nothing is asked, and no answer is on its way.
  bool Idle();

  // The same at once, by the caller, from `files`.
  static BidOverview Read(Files& files, const Question& question,
                          const std::function<bool(int done, int all)>& progress = {});

 private:
  void Run();
  void Forget(const Question& question);

  Files files_;
  std::function<void()> onAnswer_;
  std::mutex mutex_;
  std::condition_variable wake_;
  std::optional<Question> question_;
  std::optional<Answer> answer_;
  bool reading_ = false;
  std::atomic<bool> stop_ = false;
  std::thread thread_;
};

}  // namespace tamo
