#pragma once

#include <QHash>
#include <QString>
#include <memory>
#include <vector>

#include "reports/namerows.h"
#include "reports/pricedsystem.h"
#include "reports/takeoffwalk.h"

namespace tamo {

// A takeoff line as the merge of all sheets reads it.
struct MergeLine {
  qsizetype from = 0;  // where it stands in the text of its sheet
  qsizetype size = 0;
  int name = 0;      // number of its system
  double value = 0;  // its quantity where the system is already listed
};

// What stands on a sheet for the merge.
struct MergeSheet {
  std::vector<MergeLine> lines;
  int unread = 0;  // lines without a quantity
};

// What reports have read out of the texts of files, for the next report: with the automatic refresh
// one follows every entry. What is kept of a text counts only for an equal text, so whoever asks
// gets what reading the text again would give. Of a bid too large for it, parts are read each time.
// One thread.
class ReportMemory {
 public:
  // Forgets all when it has become too large; numbers of systems hold until the next one.
  void BeginReport();

  // The lines of a sheet. It stands until the next call.
  const MergeSheet& Lines(const TakeoffSheet& sheet);
  // `ready` is the system of the text, where somebody has it already. Raises what PricedSystemOf
  // raises.
  std::shared_ptr<const PricedSystem> System(const QString& name, const QString& text,
                                             std::shared_ptr<const PricedSystem> ready = nullptr);
  bool KnowsSystems() const { return !systems_.isEmpty(); }

  // The number of a system in the lines of the sheets.
  int NumberOf(QStringView system);

  static constexpr qsizetype kMost = 1 << 22;  // characters of all sheets
  static constexpr int kMostSystems = 4096;

 private:
  struct Sheet {
    SheetKind kind = SheetKind::Room;
    QString text;
    MergeSheet lines;
  };
  struct Priced {
    QString text;
    std::shared_ptr<const PricedSystem> system;
  };
  MergeSheet Read(const TakeoffSheet& sheet);

  NameRows names_;
  std::vector<Sheet> sheets_;  // by their number in the walk
  qsizetype characters_ = 0;   // of their texts
  MergeSheet last_;            // of a sheet that is not kept
  QHash<QString, Priced> systems_;
};

}  // namespace tamo
