#pragma once

#include <QString>
#include <QStringView>
#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

#include "records/linescanner.h"
#include "reports/linesystems.h"
#include "reports/namerows.h"
#include "reports/pricedsystem.h"
#include "reports/reportsource.h"

namespace tamo {

// A system that was read before it was asked for.
struct SystemAhead {
  QString path;
  QString text;
  std::shared_ptr<const PricedSystem> system;  // of the text; null: it was not taken apart
};

// The systems of a report, read and taken apart by the thread that reads the sheets ahead while the
// asking thread is at the sheets before them. Each file is read by one of the two, whoever comes to
// its name first. Only what was read well is handed over: whatever is wrong with a file or a figure
// in it, the asking thread meets itself, in its turn, and tells it.
class SystemsAhead {
 public:
  // The source outlives it.
  explicit SystemsAhead(const ReportSource& source);
  SystemsAhead(const SystemsAhead&) = delete;
  SystemsAhead& operator=(const SystemsAhead&) = delete;

  // From the reading thread, for each sheet: reads the systems of its lines that nobody has read
  // yet, until it is `stopped`. Where sheets bring nothing new, only some of them are looked at.
  void Look(LineScanner lines, const std::atomic<bool>& stopped);
  // From the asking thread, once for each system: waits for it when it is being read. False: the
  // asking thread has to read it.
  bool Take(const QString& name, SystemAhead& system);

  static constexpr qsizetype kMost = 1 << 21;  // characters of texts that wait to be taken

 private:
  struct Slot {
    std::atomic<bool> done = false;
    bool whole = false;  // the text is there
    SystemAhead found;
  };

  bool ReadNew(QStringView line);
  Slot& SlotOf(QStringView name, bool& isNew);
  void Read(const QString& name, Slot& slot);
  bool NothingPending() const;

  const ReportSource& source_;
  const bool takesApart_;  // nobody remembers the systems
  // By the reading thread: the names, the sheets, and of how many one is looked at.
  NameRows seen_;
  LineSystems lines_;
  int sheets_ = 0;
  int stride_ = 1;
  std::mutex mutex_;
  NameRows names_;                            // of those that were read, or are the asking thread's
  std::vector<std::unique_ptr<Slot>> slots_;  // of each of them
  std::atomic<qsizetype> waiting_ = 0;        // characters
};

}  // namespace tamo
