#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "common/tablesink.h"
#include "common/textrows.h"
#include "reports/namedreports.h"

namespace tamo {

// A report that stands in its window, for whoever makes something else of it. Lives as long as the
// call that hands it over.
struct ShownReport {
  ReportKind kind = ReportKind::Recap;
  ListRows lines;  // as they are printed: what was not counted stands behind the title
  QString jobID;   // of the open project
  QString name;    // of the project, and which former state it is
  // Hands the figures of a report of the same bid over, made anew from the files, and answers what
  // whoever reads them must know: what was not counted, which former state it is. Raises what the
  // report raises.
  std::function<QStringList(ReportKind kind, TableSink& table)> figures;
};

// What the reports need of whoever knows file formats and charts.
class ReportFiles {
 public:
  virtual ~ReportFiles() = default;
  // Asks where to, and writes it; what goes wrong is told.
  virtual void Save(const ShownReport& report) = 0;
  virtual void ShowChart(const ShownReport& report) = 0;
};

}  // namespace tamo
