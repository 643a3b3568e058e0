// Taking off: the walk through every line of every room, and the arithmetic of a line.

#include "common/chain.h"
#include "common/columns.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "records/roomline.h"
#include "takeoff/rfsform.h"
#include "takeoff/unitcodes.h"

namespace tamo {

void RFSForm::BindTakeoff() {
  OnEnter(How, Keys::Number, [this] { TakeHeight(); });
  How.onGotFocus = [this] { HowGotFocus(); };
  OnEnter(Length, [this] { TakeLength(); });
  SayTakenNumber(Length);
  Length.onGotFocus = [this] { LengthGotFocus(); };
  Length.onDoubleClick = [this] { Toggle(Lengths); };
  RoomList.onSelect = [this] { LineSelected(); };
}

void RFSForm::HowGotFocus() {
  kit_.shared.IAmHere = QStringLiteral("RH");
  How.SelectAll();
  DescriptionsList.Hide();
  AreaList.Hide();
  Lengths.Hide();
  const QString kept = How.Text();
  plan_.SetToolMode(0);
  How.SetText(kept);
  if (place.room < RoomsList.Count()) {
    RoomsList.SetIndex(place.room);
    GetDesk().Focus(How);
  }
  How.SelectAll();
}

void RFSForm::TakeHeight() {
  measured.Entered(How);
  if (Flag != QLatin1String("Estimate")) {
    FinishRoom();
    return;
  }
  if (GroupedValue(How.Text()) != 0) {
    GetDesk().Focus(Length);
    return;
  }
  Lengths.Clear();
  Lengths.Hide();
  for (TextField* field : {&Description, &Units, &Area, &How}) field->Clear();
  SaveAndWalkOn();
}

void RFSForm::LengthGotFocus() {
  if (Description.Empty() && RoomList.Index() >= 0)
    Description.SetText(RoomLine(RoomList.Selected()).System());
  if (place.room < RoomsList.Count()) RoomsList.SetIndex(place.room);
  // Selecting the room may have moved the focus on; a measure then belongs to the field that has
  // it.
  if (Length.HasFocus()) kit_.shared.IAmHere = QStringLiteral("RL");
  Length.SelectAll();
  How.SelectAll();
  DescriptionsList.Hide();
  AreaList.Hide();
  Lengths.Hide();
}

void RFSForm::TakeLength() {
  if (GroupedValue(Length.Text()) == 0) {
    Description.SetText(RoomLine(RoomList.Selected()).System());
    EndLineEntry();
    return;
  }
  if (RoomList.Index() < 0) {
    throw RunTimeFailure(
        kSubscript,
        QStringLiteral("No line of the room is selected, so the length has no place. Nothing was "
                       "stored; select a line in the list, then enter the length."));
  }
  record_.RequireStorable();
  Description.SetText(RoomLine(RoomList.Selected()).System());
  AddEntry();
}

void RFSForm::AddEntry() {
  const double entered = GroupedValue(Length.Text());
  const double stands = RoomLine(RoomList.Selected()).Quantity();
  const bool linear = IsLinearOrCount(Units.Text());
  // A surface is rounded on its running total, halves upward.
  const double total =
      linear ? stands + entered : Rounded(stands + GroupedValue(How.Text()) * entered);
  BeginQuantity(total);
  if (linear) {
    plan_.SetToolMode(0);
    StoreQuantity(total);
    Lengths.Add(GrownLeft(Length.Text(), 10));
    Length.Clear();
    GetDesk().Focus(Length);
    record_.SaveRoom();
    plan_.SaveIt();
    return;
  }
  plan_.SetToolMode(0);
  LoadSystem();
  StoreQuantity(total);
  measured.Entered(How);
  Lengths.Add(How.Text() + QStringLiteral(" X ") + Length.Text());
  Length.Clear();
  record_.SaveRoom();
  plan_.SaveIt();
  plan_.SetToolMode(0);
  GetDesk().Focus(Length);
}

void RFSForm::StoreQuantity(double total) {
  RoomList.SetRow(
      RoomList.Index(),
      RoomLine::Of(Description.Text(), Area.Text(), NumberText(total), Units.Text()).Text());
}

// Length left blank or 0: a counted or measured line is finished, a surface asks for a further
// height.
void RFSForm::EndLineEntry() {
  const bool linear = IsLinearOrCount(Units.Text());
  Length.Clear();
  Lengths.Hide();
  How.Clear();
  if (!linear) {
    place.height = 0;
    GetDesk().Focus(How);
    return;
  }
  Description.Clear();
  Units.Clear();
  Lengths.Clear();
  if (RoomList.Index() >= 0) {
    SaveAndWalkOn();
  } else {
    EstimateRFS();
  }
}

// A save that is refused says why; the walk goes on all the same.
void RFSForm::SaveAndWalkOn() {
  GetDesk().Dispatch([this] { record_.SaveRoom(); });
  EstimateRFS();
}

// To the next line, through rooms without lines, to the end of the last room.
void RFSForm::EstimateRFS() {
  const Files::Look look(kit_.files);
  place.room = RoomsList.Index();
  int line = RoomList.Index();
  for (;;) {
    place.line = ++line;
    if (line < RoomList.Count()) {
      RoomList.SetIndex(line);
      AskForLineEntry();
      return;
    }
    ++place.room;
    place.line = -1;
    if (place.room >= RoomsList.Count()) {
      FinishSchedule();
      return;
    }
    const int room = place.room;
    RoomsList.SetIndex(room);
    Room.SetText(RoomsList.Row(room));
    record_.LoadRoom();
    if (!RoomList.Empty()) RoomList.SetIndex(0);
    line = -1;
  }
}

void RFSForm::AskForLineEntry() {
  const bool needsHeight = GroupedValue(How.Text()) == 0 && !IsLinearOrCount(Units.Text());
  GetDesk().Focus(needsHeight ? How : Length);
  UpdateStatus();
}

void RFSForm::FinishSchedule() {
  if (kit_.shared.GUIText == QLatin1String("2")) {
    exits_.ShowOST();
    Hide();
    return;
  }
  exits_.ShowMainForm();
  Hide();
  exits_.ShowMainForm();
}

// The selection event of RoomList, in both modes.
void RFSForm::LineSelected() {
  place.line = RoomList.Index();
  UpdateStatus();
  if (place.quiet) {
    place.quiet = false;
    return;
  }
  const RoomLine line(RoomList.Selected());
  if (line.Text().isEmpty() || !record_.NameStands()) return;
  Description.SetText(line.System());
  Area.SetText(line.FinishArea());
  LoadSystem();
  RoomsList.Hide();
  if (AsksForWidth(Area.Text())) {
    How.Clear();
    GetDesk().Focus(How);
    return;
  }
  if (!IsLinearOrCount(Units.Text())) {
    LengthLabel.SetCaption(QStringLiteral("Length"));
    plan_.SetToolMode(1);
    GetDesk().Focus(How.Empty() ? How : Length);
    return;
  }
  How.Clear();
  const bool count = IsCount(Units.Text());
  GetDesk().Focus(Length);
  LengthLabel.SetCaption(count ? QStringLiteral("How many") : QStringLiteral("Length"));
  if (count) plan_.SetToolMode(0);
  plan_.SetToolMode(count ? 2 : 1);
  if (count) GetDesk().Focus(Length);
}

}  // namespace tamo
