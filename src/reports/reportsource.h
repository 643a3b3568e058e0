#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "common/files.h"
#include "common/textrows.h"
#include "records/datafolder.h"

namespace tamo {

// Where a report reads from, and whom it tells how far it is. The files outlive it.
struct ReportSource {
  Files& files;
  ProjectFolder project;  // the open one
  // Called again and again while a report is made, `done` of `all` sheets of takeoff; false stops
  // the report. May be empty.
  std::function<bool(int done, int all)> progress;
  // Bill and copies read the whole quantity column instead of the part that they are used to.
  bool wholeQuantities = false;
};

// Something that the columns of a report hide, with the rows (from 0) of the report that it means.
struct ReportNote {
  QString text;
  std::vector<int> rows;
};

// A report: its lines, the first of which is its title, and what an estimator should know of them.
struct Report {
  TextRows lines;
  std::vector<ReportNote> notes;
  // A quantity column was read only in part, so the switch "Read whole quantities" would change the
  // figures.
  bool partlyRead = false;
};

// The failure number of a report that was stopped by the user.
inline constexpr int kReportStopped = 18;

// Tells how far the report is; raises a RunTimeFailure (kReportStopped) when it is to stop.
void TellProgress(const ReportSource& source, int done, int all);

}  // namespace tamo
