#include "schedule/scheduleform.h"

#include <algorithm>

#include "records/namelists.h"
#include "schedule/finishcodes.h"
#include "schedule/librarysystems.h"

namespace tamo {
namespace {

constexpr const char* kCellNames[kScheduleCells] = {
    "Number", "Name", "Floor", "Base", "North", "East", "South", "West", "Ceiling", "Remarks"};

}  // namespace

ScheduleForm::ScheduleForm(const Kit& kit, OSTForm& ost)
    : Form(kit.desk, QStringLiteral("Schedule")), kit_(kit), ost_(ost) {
  SetCaption(QStringLiteral("Schedule"));
  BindLists();
  BindMenus();
  BindSources();
  BindAreas();
  ShowSummary();
}

void ScheduleForm::BindLists() {
  Rows.onSelect = [this] { ShowCells(); };
  Cells.onSelect = [this] { ShowCell(); };
  Unsure.onSelect = [this] {
    const QStringList place = Unsure.Selected().split(u' ');
    if (place.size() != 2) return;
    Rows.SetIndex(place[0].toInt());
    Cells.SetIndex(place[1].toInt());
  };
  Key.onSelect = [this] { ShowSystem(); };
  Correct.onKey = [this](tamo::Key& key) {
    if (!key.IsEnter()) return;
    key.Drop();
    CorrectCell();
  };
  System.onKey = [this](tamo::Key& key) {
    if (!key.IsEnter()) return;
    key.Drop();
    ChooseSystem();
  };
  Correct.onGotFocus = [this] { Correct.SelectAll(); };
  System.onGotFocus = [this] { System.SelectAll(); };
}

void ScheduleForm::BindMenus() {
  MakeRooms.onClick = [this] { WriteRooms(); };
  TakeBack.onClick = [this] { TakeRoomsBack(); };
  LeaveOut.onClick = [this] { LeaveRowOut(); };
  Xit.onClick = [this] { Hide(); };
  TakeBack.SetEnabled(false);
  ost_.FindMenu(QStringLiteral("ReadSchedule"))->onClick = [this] { Read(); };
  ost_.FindMenu(QStringLiteral("AddToSchedule"))->onClick = [this] { AddPart(); };
  ost_.FindMenu(QStringLiteral("DrawScheduleBox"))->onClick = [this] {
    FrameFound();
    ost_.Viewer().Box().Ask(BoxUse::Table);
  };
  ost_.onEnterBox = [this] { return EnterBox(); };
  ost_.onPlanPressed = [this] { ClickedOnPlan(); };
  Compare.onClick = [this] { CompareWithKept(); };
}

void ScheduleForm::Read() {
  std::vector<ScheduleTable> before = std::move(parts_);
  std::vector<int> pagesBefore = std::move(pages_);
  parts_.clear();
  pages_.clear();
  if (TakeFromPlan()) {
    edits_.Clear();
    return ShowAll();
  }
  parts_ = std::move(before);
  pages_ = std::move(pagesBefore);
}

void ScheduleForm::AddPart() {
  if (TakeFromPlan()) ShowAll();
}

// The project's key; a new bid begins with the last one's.
void ScheduleForm::LoadKey() {
  key_.clear();
  if (!kit_.shared.JobID.isEmpty()) ReadFinishKey(kit_.files, ProjectFolder(kit_.shared), key_);
  FinishKey last;
  ReadFinishKey(kit_.files, DataFolder(kit_.shared), last);
  QStringList systems;
  ReadNames(kit_.files, kit_.shared, NameList::Systems, systems);
  for (const QString& code : CodesOf(rows_)) {
    if (InFinishKey(key_, code)) continue;
    const QString system =
        InFinishKey(last, code) ? SystemOfCode(last, code) : InLibrary(systems, code);
    if (!system.isEmpty()) SetSystemOfCode(key_, code, system);
  }
}

void ScheduleForm::ShowAll() {
  LoadAreas();
  made_ = {};
  TakeBack.SetEnabled(false);
  MakeRows();
  ShowColumns();
  Show(&ost_);
}

void ScheduleForm::ShowUnsure() {
  QStringList places;
  for (size_t row = 0; row < rows_.size(); ++row) {
    for (size_t cell = 0; cell < rows_[row].doubts.size(); ++cell) {
      if (!rows_[row].doubts[cell].empty())
        places.append(QStringLiteral("%1 %2").arg(row).arg(cell));
    }
  }
  Unsure.SetRows(places);
}

void ScheduleForm::ShowCells() {
  QStringList cells;
  if (Rows.Index() >= 0) {
    const FinishRow& row = rows_[size_t(Rows.Index())];
    const ScheduleTable& part = parts_[size_t(row.part)];
    PageBox place = NoBox();
    for (const ScheduleCell& cell : part.rows[size_t(row.row)].cells) {
      if (cell.text.isEmpty()) continue;
      place.Take({cell.box.left, cell.box.top});
      place.Take({cell.box.right, cell.box.bottom});
    }
    if (pages_[size_t(row.part)] != kNoPage && !clicked_) {
      FrameOnPlan(place, pages_[size_t(row.part)]);
    }
    for (size_t i = 0; i < row.cells.size(); ++i) {
      const QString mark = row.doubts[i].empty() ? QString() : QStringLiteral("? ");
      cells.append(mark + QLatin1String(kCellNames[i]) + u'\t' + row.cells[i]);
    }
  }
  Cells.SetRows(cells);
  ShowCell();
}

void ScheduleForm::ShowCell() {
  Correct.Clear();
  Why.SetCaption({});
  if (Rows.Index() < 0 || Cells.Index() < 0) return;
  const FinishRow& row = rows_[size_t(Rows.Index())];
  const auto cell = size_t(Cells.Index());
  Correct.SetText(row.cells[cell]);
  FrameCell(row, Cells.Index());
  QStringList reasons;
  for (const Doubt doubt : row.doubts[cell]) reasons.append(DoubtText(doubt));
  if (!reasons.isEmpty()) Why.SetCaption(QStringLiteral("Not sure: %1.").arg(reasons.join(u"; ")));
}

// The selected cell on the drawing; the whole row where the cell has no text.
void ScheduleForm::FrameCell(const FinishRow& row, int cell) {
  const int page = pages_[size_t(row.part)];
  if (page == kNoPage || clicked_) return;
  const ScheduleTable& part = parts_[size_t(row.part)];
  PageBox place = NoBox();
  for (size_t i = 0; i < part.columns.size(); ++i) {
    const std::vector<int> cells = CellsFor(part.columns[i].role);
    if (std::find(cells.begin(), cells.end(), cell) == cells.end()) continue;
    const ScheduleCell& own = part.rows[size_t(row.row)].cells[i];
    if (own.text.isEmpty()) continue;
    place.Take({own.box.left, own.box.top});
    place.Take({own.box.right, own.box.bottom});
  }
  if (!place.Empty()) FrameOnPlan(place, page);
}

void ScheduleForm::CorrectCell() {
  if (Rows.Index() < 0 || Cells.Index() < 0) return;
  FinishRow& row = rows_[size_t(Rows.Index())];
  const int cell = Cells.Index();
  row.cells[size_t(cell)] = Correct.Text().simplified();
  row.doubts[size_t(cell)].clear();
  edits_.Correct(row, cell, row.cells[size_t(cell)]);
  Rows.SetRow(Rows.Index(), row.Text());
  ShowUnsure();
  Key.SetRows(CodesOf(rows_));
  ShowCells();
  Cells.SetIndex(cell);
  ShowSummary();
}

void ScheduleForm::LeaveRowOut() {
  if (Rows.Index() < 0) return;
  edits_.LeaveOut(rows_[size_t(Rows.Index())]);
  rows_.erase(rows_.begin() + Rows.Index());
  Rows.Remove(Rows.Index());
  ShowCells();
  ShowUnsure();
  Key.SetRows(CodesOf(rows_));
  ShowSummary();
}

void ScheduleForm::ShowSystem() {
  const QString code = Key.Selected();
  CodeLabel.SetCaption(code.isEmpty() ? QStringLiteral("System:")
                                      : QStringLiteral("System of %1:").arg(code));
  const auto told = legend_.find(code.toUpper());
  LegendText.SetCaption(told == legend_.end() ? QString() : told->second);
  System.SetText(SystemOfCode(key_, code));
  if (Key.Index() >= 0) GetDesk().Focus(System);
}

// A blank leaves the code out.
void ScheduleForm::ChooseSystem() {
  if (Key.Index() < 0) return;
  QStringList systems;
  ReadNames(kit_.files, kit_.shared, NameList::Systems, systems);
  const QString system = InLibrary(systems, System.Text());
  if (system.isEmpty() && !System.Empty()) {
    kit_.desk.GetMessages().Tell(System.Text() + QStringLiteral(" System Name Not Found"));
    return;
  }
  TakeSystem(system);
}

// The system of the selected code. The next code comes up.
void ScheduleForm::TakeSystem(const QString& system) {
  SetSystemOfCode(key_, Key.Selected(), system);
  if (!kit_.shared.JobID.isEmpty()) WriteFinishKey(kit_.files, ProjectFolder(kit_.shared), key_);
  WriteFinishKey(kit_.files, DataFolder(kit_.shared), key_);
  ShowSummary();
  if (Key.Index() + 1 < Key.Count()) Key.SetIndex(Key.Index() + 1);
}

void ScheduleForm::ShowSummary() {
  if (rows_.empty()) {
    Summary.SetCaption(
        QStringLiteral("Draw a box around a room finish schedule, or choose Read Schedule for the "
                       "one on the sheet."));
    return;
  }
  const RoomPlan plan = PlanRooms(rows_, key_, Areas());
  ShowUnpriced(plan);
  Summary.SetCaption(QStringLiteral("%1 rooms, %2 lines, %3 codes left out, %4 cells not sure.")
                         .arg(plan.rooms.size())
                         .arg(plan.Lines())
                         .arg(plan.leftOut.size())
                         .arg(Unsure.Count()));
}

}  // namespace tamo
