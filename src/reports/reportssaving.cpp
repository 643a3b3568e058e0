#include "reports/reportsform.h"

#include "reports/reportrunning.h"

// A report that leaves the window as a file or a chart.

namespace tamo {
namespace {

const QString kNothingShown =
    QStringLiteral("There is no report in the window. Choose one from the menu Reports first.");

}  // namespace

ShownReport ReportsForm::InWindow() {
  const OrderedList& list = Reporter.Empty() ? Reporter1 : Reporter;
  const QString mark = bid_.Mark();
  return {kind_, remarks_.Within(list.SharedRows()), kit_.shared.JobID,
          mark.isEmpty() ? kit_.shared.JobName : kit_.shared.JobName + QStringLiteral("   ") + mark,
          [this](ReportKind kind, TableSink& table) { return WriteFigures(kind, table); }};
}

void ReportsForm::SaveReport() {
  if (running_) return;
  if (Reporter.Empty() && Reporter1.Empty()) return GetDesk().GetMessages().Tell(kNothingShown);
  joins_.files.Save(InWindow());
}

void ReportsForm::ShowChart() {
  if (running_) return;
  const bool drawn = kind_ == ReportKind::Recap || kind_ == ReportKind::DetailedRecap ||
                     kind_ == ReportKind::BreakDown;
  if (Reporter.Empty() || !drawn) {
    return GetDesk().GetMessages().Tell(QStringLiteral(
        "The recap sheet and the breakdown have a chart. Choose one of them first."));
  }
  joins_.files.ShowChart(InWindow());
}

QStringList ReportsForm::WriteFigures(ReportKind kind, TableSink& table) {
  Running running(*this);
  ReportSource source = Source();
  source.table = &table;
  if (kind == ReportKind::WhatChanged) {
    bid_.CompareWith(*compared_, source);
  } else {
    const ReportFacts facts{LoadedMarkups(), kit_.shared.JobID, bid_.Facts()};
    QString adjustment = bid_.Former() ? QString() : Adjustment;
    MakeReport(kind, source, facts, adjustment);
  }
  running.whole = true;
  QStringList remarks = remarks_.Missed().Sentences();
  if (bid_.Former()) remarks.prepend(bid_.Mark());
  return remarks;
}

}  // namespace tamo
