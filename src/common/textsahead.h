#pragma once

#include <QString>
#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

#include "common/files.h"

namespace tamo {

// How far the thread and the one that asks go apart; BM_Pace holds each number against its
// neighbours.
struct ReadingPace {
  size_t lead = 4;           // files left to the asking thread before the other one's first
  int glances = 100;         // at a file that is being read, before the asking thread sleeps
  size_t ahead = 512;        // most files that are read before they are asked for
  size_t fewest = 24;        // files that are worth a thread
  qsizetype most = 1 << 21;  // characters of texts that wait, and the last one's
};

// Reads many text files in their order, while a thread of its own reads some of them ahead: the
// device and the work on the texts go side by side. Each text and error number is what
// Files::ReadForReport gives. No file is read more than ReadingPace::ahead files before it is asked
// for, and nothing is read after the object is gone. The files outlive it. One thread asks. It
// halves what a report of files that were not read before takes: BM_TextsAhead beside
// BM_PlainTexts.
class TextsAhead {
 public:
  // Looks at each text that the other thread has read, on that thread; `stopped` when the object is
  // about to go.
  using Seen =
      std::function<void(size_t at, const QString& text, const std::atomic<bool>& stopped)>;

  // `pathOf` gives the path of each of `count` files; it is called from both threads.
  TextsAhead(Files& files, size_t count, std::function<QString(size_t)> pathOf,
             const ReadingPace& pace = {}, Seen seen = {});
  ~TextsAhead();
  TextsAhead(const TextsAhead&) = delete;
  TextsAhead& operator=(const TextsAhead&) = delete;

  // The text of the next path. An empty path is a file that is not found.
  int Next(QString& text);

 private:
  enum State { Untouched, InWork, Ready };
  struct Slot {
    std::atomic<int> state = Untouched;
    int error = 0;
    QString text;
  };

  bool FarAhead(size_t at, size_t next) const {
    return at + 1 >= next + pace_.ahead || waiting_ > pace_.most;
  }
  void ReadAhead();
  void ReadSlot(size_t at, Slot& slot);
  int ReadHere(size_t at, QString& text, bool missing = false);

  Files& files_;
  const Files::Look look_{files_};
  const std::function<QString(size_t)> pathOf_;
  const ReadingPace pace_;
  const Seen seen_;
  std::vector<Slot> slots_;  // empty when there is no thread
  std::atomic<size_t> next_ = 0;
  std::atomic<qsizetype> waiting_ = 0;  // characters read and not asked for
  std::atomic<bool> stop_ = false;
  std::thread thread_;
};

}  // namespace tamo
