#include "takeoff/rfsform.h"

#include "common/failure.h"

namespace tamo {

RFSForm::RFSForm(const Kit& kit, PlanTools& plan, MissingSystemPricing& pricing,
                 TakeoffReportRefresh& reports, TakeoffExits& exits, TakingBack& steps)
    : RFSScreen(kit, plan, pricing, reports, exits, steps) {
  BindWindow(OST1);
  measured.target = [this](const TextField& field) { return TargetOf(field); };
  Exit.onClick = [this] { LeaveForm(); };
  BindEntry();
  BindTakeoff();
  BindLists();
}

void RFSForm::EnterRoomFinishSchedule(Form* owner) {
  Flag = QStringLiteral("Enter");
  record_.FollowProject();
  Show(owner);
  autoRoom_.ShowOff();
  AutoRoom.Show();
  UpdatePrompts();
  GetDesk().Focus(Room);
}

void RFSForm::TakeOffRoomFinishSchedule(Form* owner) {
  EnterRoomFinishSchedule(owner);
  Flag = QStringLiteral("Estimate");
  AutoRoom.Hide();
  UpdatePrompts();
  if (!Visible()) return;  // there are no systems to take off yet
  Show(owner);
  if (!record_.FollowName()) return;
  // Lines that belong to no room have no place in the walk.
  if (Room.Empty()) record_.ForgetLines();
  RoomsList.Hide();
  DescriptionsList.Hide();
  record_.LoadRooms();
  RoomsList.SetEnabled(true);
  RoomsList.SetIndex(-1);
  EstimateRFS();
}

void RFSForm::Init() {
  record_.FollowProject();
  LoadDescriptions();
  if (DescriptionsList.Empty()) {
    exits_.ShowMainForm();
    Hide();
    return;
  }
  record_.LoadRooms();
  Show(OwnerForm());
  RFSFrame.Show();
  ShowScale();
  UpdatePrompts();
  GetDesk().Focus(Room);
}

void RFSForm::LeaveForm() {
  for (TextField* field : {&Room, &Area, &How, &Length}) field->Clear();
  measured.Forget();
  record_.ForgetLines();
  Hide();
  kit_.shared.DriveBy = QStringLiteral("True");
}

void RFSForm::LoadDescriptions() {
  const int error = ReadDescriptions();
  if (!DescriptionsList.Empty()) return;
  const bool missing = error == kFileNotFound && kit_.shared.DriveBy == QLatin1String("False");
  if (error == kNoError || missing) TellToPriceFirst();
}

void RFSForm::LoadSystem() {
  FetchSystem(Description.Text());
  UpdatePrompts();
}

}  // namespace tamo
