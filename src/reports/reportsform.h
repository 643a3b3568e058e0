#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "common/form.h"
#include "common/kit.h"
#include "history/history.h"
#include "pricing/pricingform.h"
#include "reports/copies.h"
#include "reports/projectprogress.h"
#include "reports/projectrecord.h"
#include "reports/reportedbid.h"
#include "reports/reportfiles.h"
#include "reports/reportmemory.h"
#include "reports/reportremarks.h"
#include "reports/reportsource.h"
#include "workspace/frontwindows.h"
#include "workspace/settingsform.h"

namespace tamo {

// One screen for all reports. A report is a list of lines of fixed width whose first line is its
// title; it is made from the files of the open project each time, and shown, printed or copied as
// it stands. While a report is made its lists are hidden, but the first page of a copy is shown as
// soon as it stands; one that stops on a failure leaves them hidden and empty.
class ReportsForm : public Form {
 public:
  // What it is joined to; all of it outlives the form.
  struct Joins {
    PricingForm& pricing;  // keeps the markups, and shows the sum of the bottom line items
    ProjectRecord& record;
    FrontWindows& windows;
    SettingsForm& settings;  // keeps whether whole quantities are read
    Form& planWindow;        // the report stands above it
    History& history;        // former states of the bid, and what a comparison begins with
    ReportFiles& files;      // saves a report as a file, draws its chart
  };
  ReportsForm(const Kit& kit, const Joins& joins);

  OrderedList Reporter{*this, QStringLiteral("Reporter")};  // the report
  CheckList Reporter1{*this, QStringLiteral("Reporter1")};  // the Office Copy, a box at each line
  OrderedList prList{*this, QStringLiteral("prList")};  // cleared by the recap, filled by nothing
  // What the columns of the report hide; clicking a note shows its row.
  OrderedList NotesList{*this, QStringLiteral("NotesList")};
  CheckBox WholeQuantities{*this, QStringLiteral("WholeQuantities"),
                           QStringLiteral("Read &whole quantities")};
  // Only while a former state of the bid is looked at: which, and the way back.
  Label VersionLabel{*this, QStringLiteral("VersionLabel")};
  Button BackToNow{*this, QStringLiteral("BackToNow"),
                   QStringLiteral("Back to the Bid as It Stands")};
  // Behind the printing of a recap: keeps the bid as it was printed.
  Button KeepPrinted{*this, QStringLiteral("KeepPrinted"), {}};
  Frame Frame1{*this, QStringLiteral("Frame1")};  // the project manager's figures
  TextField ttText{*this, QStringLiteral("ttText")};
  TextField tlText{*this, QStringLiteral("tlText")};
  TextField tmText{*this, QStringLiteral("tmText")};
  TextField tcText{*this, QStringLiteral("tcText")};
  TextField pcText{*this, QStringLiteral("pcText")};
  TextField lcText{*this, QStringLiteral("lcText")};
  TextField lpText{*this, QStringLiteral("lpText")};
  TextField mcText{*this, QStringLiteral("mcText")};
  TextField mpText{*this, QStringLiteral("mpText")};

  struct Entries {
    explicit Entries(ReportsForm& form);
    MenuEntry printReport, CopyReport, MakeProjectFile, ExitReports, SaveReport, ShowChart;
  };
  Entries menu{*this};

  QString Flag;        // "True" Office Copy, "False" Field Copy; stays as the last report left it
  QString Adjustment;  // the adjustment as last read

  // The reports. Each clears both lists first. The commands of the shells show the form, set Flag
  // or DTText, and show or hide `menu.MakeProjectFile` before them.
  void MinimalRecapSheet();  // detailed when the shared DTText is "True"
  void DetailedRecapSheet();
  void Quantities();
  void BillofMaterial();
  void AreaRoomWP();  // the copy that Flag names
  void BreakDown();
  void ProjectInformation();
  void ScheduleCheck();
  // What lies between the version that was sent and the bid as it stands.
  void WhatChanged();
  void CompareWith(std::shared_ptr<const FormerBid> then);

  // All reports read this state from now on and say so, until the form is left, another project is
  // opened, or nullptr is given.
  void LookAt(std::shared_ptr<const FormerBid> former);

  void PrintReport();  // the report in Reporter; never the Office Copy
  void CopyReport();
  void SaveReport();        // as a PDF, CSV or workbook
  void ShowChart();         // of the recap or the breakdown
  void WriteProjectFile();  // of the report in the window, into the data folder
  void ExitReports();
  void ClearReport();  // empties Reporter and hides the form: its project is left

  // Makes the open report again after its data changed, when AutoCheck is on and the form is
  // visible; keeps the first visible line where the new report is long enough.
  void Refresh();

  // Another project is opened, made or cleared: no adjustment of the one before counts.
  void ForgetProject();

  // Called while a report is made, `done` of `all` sheets or systems; false stops the report. A
  // display that lets events through here need not care for reports asked for meanwhile: they are
  // not begun.
  std::function<bool(int done, int all)> onProgress;
  // A report has ended: whole, or stopped on something.
  std::function<void(bool whole)> onMade;

 private:
  void BindControls();
  void BindVersions();
  QStringList WriteFigures(ReportKind kind, TableSink& table);
  ShownReport InWindow();
  void OfferToKeep();
  void Make(const std::function<void()>& report);
  void Fill(Report report, bool readsQuantities = false);
  void FillCopy(TakeoffCopy report);
  void TakeNotes(Report& report, bool readsQuantities);
  void Clear();
  void ClearNotes();
  ReportSource Source();
  ReportSource SourceOfCopy(OrderedList& list);
  Markups LoadedMarkups();
  void FocusList();
  void ShowWindow();
  void RunByTitle();
  void ShowProgress();
  void Ticked(int row);
  void NotePicked();
  void WholeQuantitiesChanged();

  const Kit kit_;
  Joins joins_;
  ReportMemory memory_;
  ReportedBid bid_{kit_, joins_.history, joins_.record};
  std::shared_ptr<const FormerBid> compared_;  // of the last comparison
  ReportKind kind_ = ReportKind::Recap;        // of the report in the window
  class Running;
  bool running_ = false;     // a report is being made: ticks do not count, no other begins
  bool refreshing_ = false;  // the window stays where it is
  ReportRemarks remarks_{NotesList};
  std::shared_ptr<const CopyRows> copied_;  // in Reporter1: its detail lines can be ticked
  ProjectProgress progress_;
  double bottomLineSum_ = 0;  // as a breakdown with an adjustment last made it
};

}  // namespace tamo
