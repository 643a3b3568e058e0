// What taking back shows of a room, and what it calls an entry.

#include "common/columns.h"
#include "common/numbers.h"
#include "records/roomline.h"
#include "takeoff/listchange.h"
#include "takeoff/rfsform.h"
#include "takeoff/unitcodes.h"

namespace tamo {

QString RFSForm::TheLine() const {
  return Area.Empty() ? Description.Text()
                      : Description.Text() + QStringLiteral(", ") + Area.Text();
}

void RFSForm::BeginLine() {
  steps_.Begin(QStringLiteral("the line ") + TheLine() + InSheet(Room.Text()), *this);
}

void RFSForm::BeginQuantity(double total) {
  const bool surface = !IsLinearOrCount(Units.Text());
  const QString entry =
      surface ? How.Text() + QStringLiteral(" X ") + Length.Text() : Length.Text();
  const RoomLine line(RoomList.Selected());
  const EnteredLine into{false,           Room.Text(),
                         line.System(),   TrimmedBlanks(Units.Text()),
                         entry,           surface ? GroupedValue(How.Text()) : 1,
                         line.Quantity(), total};
  steps_.Begin(entry + QStringLiteral(" of ") + TheLine() + InSheet(Room.Text()), *this);
  if (surface) {
    steps_.Measured({{"RL", Length.Text()}, {"RH", How.Text()}}, into);
  } else {
    steps_.Measured({{"RL", Length.Text()}}, into);
  }
}

QString RFSForm::TargetOf(const TextField& field) const {
  if (Room.Empty() || record_.SheetFile().isEmpty()) return {};
  QString target = WithKind(QStringLiteral("Room"), Room.Text());
  if (&field == &How && Entering()) return target;
  const RoomLine line(RoomList.Selected());
  if (line.Text().isEmpty()) return {};
  for (const QString& part : {line.System(), line.FinishArea()}) {
    if (!part.isEmpty()) target += QStringLiteral(", ") + part;
  }
  return target;
}

SheetState RFSForm::State() const {
  return {record_.SheetFile(),
          RoomList.SharedRows(),
          RoomList.Index(),
          {How.Text(), CopyHeight},
          Lengths.Rows()};
}

void RFSForm::ShowState(const SheetState& state) {
  ChangeRows(RoomList, state.lines.List());
  SelectLine(state.line);
  How.SetText(state.texts.value(0));
  CopyHeight = state.texts.value(1);
  Lengths.SetRows(state.entries);
  UpdateStatus();
}

void RFSForm::SelectLine(int at) {
  if (at == SheetState::kAsItIs || at == RoomList.Index()) return;
  place.quiet = true;
  RoomList.SetIndex(at);
  place.quiet = false;
}

void RFSForm::FollowFiles(const QStringList& paths) {
  record_.FollowFiles(paths);
}

}  // namespace tamo
