#include "reports/reportsform.h"

#include <utility>

#include "common/failure.h"
#include "common/numbers.h"
#include "records/datafolder.h"
#include "reports/bill.h"
#include "reports/breakdown.h"
#include "reports/projectinformation.h"
#include "reports/quantities.h"
#include "reports/recap.h"
#include "reports/reportrunning.h"
#include "reports/schedulecheck.h"

// The form and its reports. What is done with a report that stands: reportscommands.cpp.

namespace tamo {

ReportsForm::Entries::Entries(ReportsForm& form)
    : printReport(form, QStringLiteral("printReport"), QStringLiteral("&Print Report")),
      CopyReport(form, QStringLiteral("CopyReport"), QStringLiteral("Copy Report to ClipBoard")),
      MakeProjectFile(form, QStringLiteral("MakeProjectFile"), QStringLiteral("&Tamo PM")),
      ExitReports(form, QStringLiteral("ExitReports"), QStringLiteral("E&xit Reports")),
      SaveReport(form, QStringLiteral("SaveReport"), QStringLiteral("&Save Report As ...")),
      ShowChart(form, QStringLiteral("ShowChart"), QStringLiteral("Show C&hart")) {
  printReport.onClick = [&form] { form.PrintReport(); };
  CopyReport.onClick = [&form] { form.CopyReport(); };
  MakeProjectFile.onClick = [&form] { form.WriteProjectFile(); };
  ExitReports.onClick = [&form] { form.ExitReports(); };
  SaveReport.onClick = [&form] { form.SaveReport(); };
  ShowChart.onClick = [&form] { form.ShowChart(); };
  MakeProjectFile.Hide();
}

ReportsForm::ReportsForm(const Kit& kit, const Joins& joins)
    : Form(kit.desk, QStringLiteral("Reports")), kit_(kit), joins_(joins) {
  AddText(QStringLiteral("Flag"), &Flag);
  AddText(QStringLiteral("Adjustment"), &Adjustment);
  BindControls();
}

void ReportsForm::BindControls() {
  for (TextField* field :
       {&ttText, &tlText, &tmText, &tcText, &pcText, &lcText, &lpText, &mcText, &mpText}) {
    field->PutInto(Frame1);
    field->readOnly = true;
  }
  for (Control* control :
       std::initializer_list<Control*>{&Reporter, &Reporter1, &prList, &NotesList, &WholeQuantities,
                                       &Frame1, &VersionLabel, &BackToNow, &KeepPrinted})
    control->Hide();
  prList.inTabOrder = false;
  Reporter1.onTick = [this](int row) { Ticked(row); };
  NotesList.onSelect = [this] { NotePicked(); };
  WholeQuantities.onChange = [this] { WholeQuantitiesChanged(); };
  BindVersions();
}

void ReportsForm::Clear() {
  Reporter.Hide();
  Reporter1.Hide();
  Frame1.Hide();
  Reporter.Clear();
  Reporter1.Clear();
  copied_.reset();
  ClearNotes();
}

void ReportsForm::ClearNotes() {
  WholeQuantities.Hide();
  KeepPrinted.Hide();
  if (!bid_.Former()) VersionLabel.Hide();
  remarks_.Clear();
}

void ReportsForm::Make(const std::function<void()>& report) {
  if (running_) return;
  Running running(*this);
  Clear();
  try {
    report();
    running.whole = true;
    FocusList();
  } catch (const RunTimeFailure& failure) {
    Clear();
    if (failure.number != kReportStopped) throw;
    NotesList.Add(failure.text);
    NotesList.Show();
  }
}

ReportSource ReportsForm::Source() {
  return {bid_.GetFiles(),    kit_.shared, onProgress, joins_.settings.WholeQuantities(),
          &remarks_.Missed(), &memory_};
}

// A refresh keeps its place in the report, which may lie behind the first page.
ReportSource ReportsForm::SourceOfCopy(OrderedList& list) {
  ReportSource source = Source();
  if (!refreshing_) {
    source.onFirstPage = [&list](const QStringList& rows) {
      list.SetRows(rows);
      list.Show();
    };
  }
  return source;
}

Markups ReportsForm::LoadedMarkups() {
  if (bid_.Former()) return bid_.LoadedMarkups();
  joins_.pricing.LoadMarkups();
  for (const ReadFailure& failure : kit_.files.ReadFailures()) {
    if (failure.path == ProjectFolder(kit_.shared).Markups() ||
        failure.path == DataFolder(kit_.shared).Markups())
      remarks_.Missed().File(QStringLiteral("the markups as they stand now"), failure.path,
                             failure.number);
  }
  return joins_.pricing.MarkupTexts();
}

void ReportsForm::TakeNotes(Report& report, bool readsQuantities) {
  remarks_.Take(std::move(report.notes));
  const bool whole = joins_.settings.WholeQuantities();
  WholeQuantities.SetValue(whole ? 1 : 0);
  WholeQuantities.SetShown(readsQuantities && (report.partlyRead || whole));
}

void ReportsForm::Fill(Report report, bool readsQuantities) {
  Reporter.TakeRows(ListRows(std::move(report.lines)));
  TakeNotes(report, readsQuantities);
  Reporter.Show();
}

void ReportsForm::FillCopy(TakeoffCopy report) {
  Reporter1.TakeRows(ListRows(std::move(report.lines)));
  copied_ = report.rows;
  TakeNotes(report, true);
  progress_.Begin(report.total, report.labor, report.material);
  ShowProgress();
  Reporter1.Show();
  Frame1.Show();
}

// The keys read on in the report that was asked for.
void ReportsForm::FocusList() {
  if (refreshing_ || GetDesk().Active() != this || GetDesk().Focused() != nullptr) return;
  for (OrderedList* list : std::initializer_list<OrderedList*>{&Reporter, &Reporter1})
    GetDesk().Focus(*list);
}

void ReportsForm::ShowWindow() {
  // A refresh finds the window open and takes the focus from nobody.
  if (!refreshing_) Show(&joins_.planWindow);
}

void ReportsForm::MinimalRecapSheet() {
  Make([this] {
    prList.Clear();
    kind_ =
        kit_.shared.DTText == QLatin1String("True") ? ReportKind::DetailedRecap : ReportKind::Recap;
    const Markups markups = LoadedMarkups();
    QString former;
    Fill(tamo::MinimalRecapSheet(Source(), markups, kit_.shared.DTText == QLatin1String("True"),
                                 bid_.Former() ? former : Adjustment));
  });
}

void ReportsForm::DetailedRecapSheet() {
  Make([this] {
    const Markups markups = LoadedMarkups();
    Fill(tamo::DetailedRecapSheet(Source(), markups));
  });
}

void ReportsForm::Quantities() {
  Make([this] {
    kind_ = ReportKind::Quantities;
    Fill(tamo::Quantities(Source()));
  });
}

void ReportsForm::ScheduleCheck() {
  Make([this] {
    kind_ = ReportKind::ScheduleCheck;
    Fill(tamo::ScheduleCheck(Source()));
  });
}

void ReportsForm::BillofMaterial() {
  Make([this] {
    kind_ = ReportKind::BillOfMaterial;
    Fill(tamo::BillofMaterial(Source()), true);
  });
}

void ReportsForm::AreaRoomWP() {
  Make([this] {
    if (Flag == QLatin1String("True")) {
      kind_ = ReportKind::OfficeCopy;
      const Markups markups = LoadedMarkups();
      FillCopy(OfficeCopy(SourceOfCopy(Reporter1), markups));
    } else if (Flag == QLatin1String("False")) {
      kind_ = ReportKind::FieldCopy;
      Fill(FieldCopy(SourceOfCopy(Reporter)), true);
    }
  });
}

void ReportsForm::BreakDown() {
  Make([this] {
    kind_ = ReportKind::BreakDown;
    const Markups markups = LoadedMarkups();
    QString former;
    const BreakFigures figures = MakeBreak(Source(), markups, bid_.Former() ? former : Adjustment);
    Report report = tamo::BreakDown(figures);
    // The sum is made only when the items are listed behind an adjustment; otherwise the field
    // shows the sum made before. A test holds it.
    if (!bid_.Former()) {
      if (figures.bottomLineListed) bottomLineSum_ = figures.roll.rawBottomLine;
      joins_.pricing.TotalBL = NumberText(bottomLineSum_);
    }
    ShowWindow();
    Fill(std::move(report));
  });
}

void ReportsForm::ProjectInformation() {
  Make([this] {
    kind_ = ReportKind::ProjectInformation;
    ShowWindow();
    Fill(tamo::ProjectInformation(kit_.shared.JobID, bid_.Facts()));
  });
}

}  // namespace tamo
