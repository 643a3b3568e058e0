#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include "common/files.h"

namespace tamo {

// Reads many text files in their order, while a thread of its own reads some of them ahead: the
// device and the work on the texts go side by side. Each text and error number is what
// Files::ReadText gives. No file is read more than kFilesAhead files before it is asked for, and
// nothing is read after the object is gone. The files outlive it. One thread asks.
class TextsAhead {
 public:
  TextsAhead(Files& files, QStringList paths);
  ~TextsAhead();
  TextsAhead(const TextsAhead&) = delete;
  TextsAhead& operator=(const TextsAhead&) = delete;

  // The text of the next path. An empty path is a file that is not found.
  int Next(QString& text);

  static constexpr size_t kFilesAhead = 64;
  // Fewer are not worth a thread.
  static constexpr qsizetype kFewestForThread = 24;

 private:
  enum State { Untouched, InWork, Ready };
  struct Slot {
    std::atomic<int> state = Untouched;
    int error = 0;
    QString text;
  };

  void ReadAhead();
  int ReadHere(size_t at, QString& text);

  Files& files_;
  const QStringList paths_;  // read by both threads
  std::vector<Slot> slots_;  // empty when there is no thread
  std::atomic<size_t> next_ = 0;
  std::atomic<bool> stop_ = false;
  std::thread thread_;
};

}  // namespace tamo
