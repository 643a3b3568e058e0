#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "common/files.h"
#include "common/tablesink.h"
#include "common/textrows.h"
#include "records/datafolder.h"
#include "reports/uncounted.h"

namespace tamo {

class ReportMemory;

// Where a report reads from, and whom it tells how far it is. The files outlive it.
struct ReportSource {
  Files& files;
  ProjectFolder project;  // the open one
  // Called again and again while a report is made, `done` of `all` sheets of takeoff; false stops
  // the report. May be empty.
  std::function<bool(int done, int all)> progress;
  // Bill and copies read the whole quantity column instead of the part that they are used to.
  bool wholeQuantities = false;
  // Takes what could not be counted; may be null. It outlives the source.
  Uncounted* uncounted = nullptr;
  // What earlier reports have read out of texts, so that it need not be read out of the same texts
  // again; may be null. It outlives the source.
  ReportMemory* memory = nullptr;
  // Takes the first rows of a copy as soon as they stand; may be empty. Other reports stand only
  // when the last sheet has been read.
  std::function<void(const QStringList& rows)> onFirstPage = {};
  // Gets the same figures as the lines, one row a line; may be null. It outlives the source.
  TableSink* table = nullptr;
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

// The bottom line items and the adjustment of the project, for a report that counts them. What
// can't be read is not counted, and told.
QStringList CountedItems(const ReportSource& source);
void ReadCountedAdjustment(const ReportSource& source, QString& adjustment);

// Tells how far the report is; raises a RunTimeFailure (kReportStopped) when it is to stop.
void TellProgress(const ReportSource& source, int done, int all);

}  // namespace tamo
