#include "common/failure.h"
#include "common/numbers.h"
#include "records/managerfile.h"
#include "reports/compare.h"
#include "reports/printpages.h"
#include "reports/reportsform.h"

// What is done with a report that stands: printing, copying, ticking, refreshing, leaving.

namespace tamo {
namespace {

QString TitleOf(const OrderedList& report) {
  return report.Empty() ? QString() : report.Row(0);
}

}  // namespace

void ReportsForm::PrintReport() {
  if (!Reporter.Shown()) return;
  const QString mark = bid_.Mark();
  const QString name =
      mark.isEmpty() ? kit_.shared.JobName : kit_.shared.JobName + QStringLiteral("   ") + mark;
  PrintPages(kit_.platform.printer, remarks_.Within(Reporter.SharedRows()), kit_.shared.JobID,
             name);
  if (TitleOf(Reporter) == QLatin1String("Recap Sheet") && !bid_.Former()) OfferToKeep();
}

void ReportsForm::CopyReport() {
  QString text;
  if (bid_.Former()) text = bid_.Mark() + QStringLiteral("\r\n");
  const auto copy = [&](const OrderedList& list) {
    text += remarks_.Within(list.SharedRows()).Joined();
    GetDesk().GetMessages().Tell(
        list.Row(0) + QStringLiteral(" has been copied to the computer clipboard.\n"
                                     "Use paste on the mouse right click to paste report into\n"
                                     "other applications such as email."));
    kit_.platform.clipboard.Clear();
    kit_.platform.clipboard.SetText(text);
  };
  if (Reporter1.Shown() && !Reporter1.Empty()) copy(Reporter1);
  if (!Reporter.Empty()) copy(Reporter);
}

void ReportsForm::WriteProjectFile() {
  if (bid_.Former()) {
    GetDesk().GetMessages().Tell(QStringLiteral(
        "This is not the bid as it stands. Nothing was written for the project manager; go back to "
        "the bid as it stands first."));
    return;
  }
  const OrderedList& list = Reporter.Empty() ? Reporter1 : Reporter;
  WriteManagerFile(kit_.files, kit_.shared, kit_.shared.JobID, kit_.shared.JobName,
                   remarks_.Within(list.SharedRows()));
}

void ReportsForm::ExitReports() {
  if (kit_.shared.GUIText == QLatin1String("1")) {
    joins_.windows.ShowMainForm();
  } else if (kit_.shared.GUIText == QLatin1String("2")) {
    joins_.windows.HideMainForm();
  }
  Reporter.Clear();
  Reporter1.Clear();
  ClearNotes();
  LookAt(nullptr);
  Hide();
}

void ReportsForm::ClearReport() {
  Reporter.Clear();
  ClearNotes();
  LookAt(nullptr);
  Hide();
}

void ReportsForm::ForgetProject() {
  Adjustment.clear();
  compared_ = nullptr;
  LookAt(nullptr);
}

void ReportsForm::RunByTitle() {
  const QString title = TitleOf(Reporter);
  if (title == QLatin1String("  Project Information")) {
    joins_.record.LoadJobNFO();
    ProjectInformation();
  } else if (title == QLatin1String(kCompareTitle)) {
    CompareWith(compared_);
  } else if (title == QLatin1String("Quantities")) {
    Quantities();
  } else if (title == QLatin1String("Recap Sheet")) {
    MinimalRecapSheet();
  } else if (title == QLatin1String("Bill Of Materials")) {
    BillofMaterial();
  } else if (title == QLatin1String("Schedule Check")) {
    ScheduleCheck();
  } else if (title == QLatin1String("BreakDown")) {
    BreakDown();
  } else if (title == QLatin1String("Project Manager")) {
    Flag = QStringLiteral("False");
    AreaRoomWP();
  } else if (TitleOf(Reporter1) == QLatin1String("Project Manager")) {
    Flag = QStringLiteral("True");
    AreaRoomWP();
    Flag = QStringLiteral("False");
  }
}

void ReportsForm::Refresh() {
  if (kit_.shared.AutoCheck != 1 || !Visible() || running_ || bid_.Former()) return;
  kit_.shared.TopOfReport = NumberText(Reporter.Top());
  refreshing_ = true;
  // The position is forgotten behind every refresh, also one that fails.
  struct Ending {
    ReportsForm& form;
    ~Ending() {
      form.refreshing_ = false;
      form.kit_.shared.TopOfReport.clear();
    }
  } const ending{*this};
  RunByTitle();
  const double top = Value(kit_.shared.TopOfReport);
  if (top < Reporter.Count()) Reporter.SetTop(static_cast<int>(top));
}

void ReportsForm::Ticked(int row) {
  if (running_) return;
  const bool ticked = Reporter1.Ticked(row);
  if (copied_ == nullptr || !copied_->IsDetail(row)) {
    Reporter1.SetTicked(row, false);
    return;
  }
  progress_.Tick(Reporter1.Row(row), ticked);
  ShowProgress();
}

void ReportsForm::ShowProgress() {
  const std::pair<TextField&, const QString&> figures[] = {
      {ttText, progress_.ttText}, {tlText, progress_.tlText}, {tmText, progress_.tmText},
      {tcText, progress_.tcText}, {pcText, progress_.pcText}, {lcText, progress_.lcText},
      {lpText, progress_.lpText}, {mcText, progress_.mcText}, {mpText, progress_.mpText}};
  for (const auto& [field, figure] : figures) field.SetText(figure);
}

void ReportsForm::NotePicked() {
  const int row = remarks_.RowMeant();
  OrderedList& list = Reporter1.Shown() ? static_cast<OrderedList&>(Reporter1) : Reporter;
  if (row < 0 || row >= list.Count()) return;
  list.SetTop(row);
  list.SetIndex(row);
}

void ReportsForm::WholeQuantitiesChanged() {
  const bool whole = WholeQuantities.Value() == 1;
  if (whole == joins_.settings.WholeQuantities()) return;
  joins_.settings.SetWholeQuantities(whole);
  if (Reporter.Empty() && Reporter1.Empty()) return;
  refreshing_ = true;
  struct Ending {
    bool& flag;
    ~Ending() { flag = false; }
  } const ending{refreshing_};
  RunByTitle();
}

}  // namespace tamo
