#pragma once

#include <QByteArray>
#include <QString>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include "common/filewitness.h"
#include "history/historyfolder.h"
#include "history/journalcare.h"
#include "history/journalwriter.h"

namespace tamo {

// The journal of former states: whoever replaces a file leaves what stood there, and goes on. A
// thread of its own writes it down. Nothing that goes wrong here is told or stops anybody: what
// can't be written is not in the journal.
class Journal : public FileWitness {
 public:
  // `disk` is used from the thread as well; `folder` and `now` are asked in the thread that saves.
  struct Setting {
    Disk& disk;
    std::function<HistoryFolder()> folder;
    std::function<QByteArray()> now;  // as HistoryRecord has it
    HistoryLimits limits{};
  };
  explicit Journal(Setting setting);
  // Writes what waits, for two seconds at most.
  ~Journal() override;

  void Replaced(const QString& path, std::shared_ptr<FileReader> former) override;
  bool MakeRoom() override;
  // Waits until all is written that was handed over; false when that takes too long.
  bool Drain(std::chrono::milliseconds atMost);

 private:
  struct Entry {
    HistoryFolder folder;
    QByteArray when;
    QString path;
    std::shared_ptr<FileReader> former;
    std::optional<QByteArray> text;  // of a file that had to be read at once
  };

  void Work();
  void WriteDown(Entry& entry);
  void Tend(const Entry& entry);

  const Setting setting_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<Entry> waiting_;
  bool busy_ = false;
  bool stop_ = false;
  bool hurry_ = false;  // somebody waits, or has stopped
  QString inUse_;       // the journal file that is being written
  JournalWriter writer_;
  QString tended_;  // the folder and day that were tended last
  qint64 tendedSize_ = 0;
  std::thread thread_;
};

// Now, as HistoryRecord has it, on the day `today`.
QByteArray WhenText(QDate today);

}  // namespace tamo
