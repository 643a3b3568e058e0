#include "takeoff/rfsform.h"

#include "common/failure.h"
#include "common/numbers.h"
#include "records/namelists.h"
#include "records/roomfile.h"
#include "records/sheetnames.h"
#include "records/storable.h"
#include "takeoff/takeoffsystem.h"
#include "takeoff/unitcodes.h"

namespace tamo {
namespace {

constexpr QLatin1String kForRoom("Leave blank and press Enter for new Room");
constexpr QLatin1String kForDescription("Leave blank and press Enter for new Description");
constexpr QLatin1String kForHeight("Leave blank and press Enter for new Height");
constexpr QLatin1String kToFinish("Leave blank and press Enter to finish");

}  // namespace

RFSForm::RFSForm(const Kit& kit, PlanTools& plan, PricingDesk& pricing,
                 TakeoffReportRefresh& reports, TakeoffShell& shell)
    : Form(kit.desk, QStringLiteral("RFSForm")),
      RFSFrame(*this, QStringLiteral("RFSFrame")),
      RoomLabel(*this, QStringLiteral("RoomLabel"), QStringLiteral("Room:")),
      Room(*this, QStringLiteral("Room")),
      RoomPrompt(*this, QStringLiteral("RoomPrompt"), kToFinish),
      DescriptionLabel(*this, QStringLiteral("DescriptionLabel"), QStringLiteral("System Name:")),
      Description(*this, QStringLiteral("Description"), 20),
      DescriptionPrompt(*this, QStringLiteral("DescriptionPrompt"), kForRoom),
      AreaLabel(*this, QStringLiteral("AreaLabel"), QStringLiteral("Area:")),
      Area(*this, QStringLiteral("Area"), 10),
      UnitsLabel(*this, QStringLiteral("UnitsLabel"), QStringLiteral("TakeOff Units")),
      Units(*this, QStringLiteral("Units"), 5),
      HOWLabel(*this, QStringLiteral("HOWLabel"), QStringLiteral("Height or Width:")),
      How(*this, QStringLiteral("How"), 11),
      HowPrompt(*this, QStringLiteral("HowPrompt"), kForDescription),
      LengthLabel(*this, QStringLiteral("LengthLabel"), QStringLiteral("Length:")),
      Length(*this, QStringLiteral("Length"), 11),
      LengthPrompt(*this, QStringLiteral("LengthPrompt"), kForHeight),
      RoomList(*this, QStringLiteral("RoomList")),
      RoomsList(*this, QStringLiteral("RoomsList")),
      DescriptionsList(*this, QStringLiteral("DescriptionsList")),
      AreaList(*this, QStringLiteral("AreaList")),
      Lengths(*this, QStringLiteral("Lengths")),
      CopyRoomList(*this, QStringLiteral("CopyRoomList")),
      System(*this, QStringLiteral("System")),
      ScaleLabel(*this, QStringLiteral("ScaleLabel"), QStringLiteral("Scale ")),
      ScaleText(*this, QStringLiteral("ScaleText")),
      StatusText(*this, QStringLiteral("StatusText")),
      AutoRoom(*this, QStringLiteral("AutoRoom"), QStringLiteral("&AutoRoom is OFF")),
      CopyRoom(*this, QStringLiteral("CopyRoom"), QStringLiteral("&Copy Room")),
      PasteRoom(*this, QStringLiteral("PasteRoom"), QStringLiteral("&Paste Room")),
      OST1(*this, QStringLiteral("OST1"), QStringLiteral("&DSW")),
      Exit(*this, QStringLiteral("Exit"), QStringLiteral("E&xit")),
      RmsPopup(*this, QStringLiteral("RmsPopup"), QString(), nullptr, true),
      RmsDelete(*this, QStringLiteral("RmsDelete"), QStringLiteral("Delete Room"), &RmsPopup),
      RmsCancel(*this, QStringLiteral("RmsCancel"), QStringLiteral("Cancel"), &RmsPopup),
      RmList(*this, QStringLiteral("RmList"), QString(), nullptr, true),
      RmListDelete(*this, QStringLiteral("RmListDelete"), QStringLiteral("Delete Description"),
                   &RmList),
      RmListInsert(*this, QStringLiteral("RmListInsert"), QStringLiteral("Insert Description"),
                   &RmList),
      RmListCancel(*this, QStringLiteral("RmListCancel"), QStringLiteral("Cancel"), &RmList),
      kit_(kit),
      plan_(plan),
      pricing_(pricing),
      reports_(reports),
      shell_(shell) {
  SetCaption(QStringLiteral("Room Finish Schedule"));
  for (Control* control : Controls()) {
    if (control != &RFSFrame && control != &StatusText) control->PutInto(RFSFrame);
  }
  Units.readOnly = true;
  Units.inTabOrder = false;
  AddText(QStringLiteral("Flag"), &Flag);
  AddText(QStringLiteral("CopyHeight"), &CopyHeight);
  AddText(QStringLiteral("CopyHeight1"), &CopyHeight1);
  BindMenus();
  BindPopups();
  BindEntry();
  BindTakeoff();
  BindLists();
}

void RFSForm::BindMenus() {
  onActivate = [this] { Activated(); };
  onKeyPreview = [this](Key& key) {
    if (key.Is(Key::Name::Delete)) plan_.DeleteKey();
  };
  AutoRoom.onClick = [this] { SwitchAutoRoom(); };
  CopyRoom.onClick = [this] { CopyLines(); };
  PasteRoom.onClick = [this] { PasteLines(); };
  OST1.onClick = [this] { ShowPlan(); };
  Exit.onClick = [this] { LeaveForm(); };
}

void RFSForm::BindPopups() {
  Room.onRightClick = [this] { PopUp(RmsPopup); };
  RoomsList.onRightClick = [this] { PopUp(RmsPopup); };
  RoomList.onRightClick = [this] { PopUp(RmList); };
  RmsDelete.onClick = [this] { DeleteRoom(); };
  RmListDelete.onClick = [this] { DeleteLine(); };
  RmListInsert.onClick = [this] { InsertLine(); };
}

void RFSForm::EnterRoomFinishSchedule(Form* owner) {
  Flag = QStringLiteral("Enter");
  FollowProject();
  Show(owner);
  // AutoRoom itself is left as it was: a form left with it on shows OFF and still acts as on (held
  // by a test).
  AutoRoom.SetCaption(QStringLiteral("AutoRoom is OFF"));
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
  if (!FollowRoomName()) return;
  // Lines that belong to no room have no place in the walk.
  if (Room.Empty()) ForgetLines();
  RoomsList.Hide();
  DescriptionsList.Hide();
  LoadRooms();
  RoomsList.SetEnabled(true);
  RoomsList.SetIndex(-1);
  EstimateRFS();
}

void RFSForm::Activated() {
  if (!kit_.shared.JobID.isEmpty()) {
    Init();
    return;
  }
  shell_.ShowMainForm();
  Hide();
  shell_.ShowProjectPanel();
}

void RFSForm::Init() {
  FollowProject();
  LoadDescriptions();
  if (DescriptionsList.Empty()) {
    shell_.ShowMainForm();
    Hide();
    return;
  }
  LoadRooms();
  Show(OwnerForm());
  RFSFrame.Show();
  ScaleText.SetCaption(plan_.ScaleText());
  UpdatePrompts();
  GetDesk().Focus(Room);
}

// When another project is open than the one whose room stands here, nothing of it may be stored
// there. What Copy Room took stays.
void RFSForm::FollowProject() {
  if (lines_.OfOpenProject()) return;
  for (TextField* field : {&Room, &Description, &Area, &Units, &How, &Length}) field->Clear();
  CopyHeight.clear();
  Lengths.Clear();
  roomCursor_ = -1;
  selectedLine_ = -1;
  ForgetLines();
  lines_.FollowProject();
}

void RFSForm::ForgetLines() {
  RoomList.Clear();
  lines_.Forget();
}

void RFSForm::LeaveForm() {
  for (TextField* field : {&Room, &Area, &How, &Length}) field->Clear();
  ForgetLines();
  Hide();
  kit_.shared.DriveBy = QStringLiteral("True");
}

void RFSForm::ShowPlan() {
  shell_.ShowOST();
  Show(OwnerForm());
}

void RFSForm::LoadDescriptions() {
  QStringList names;
  const int error = ReadNamesDelimited(kit_.files, kit_.shared, NameList::Systems, names);
  DescriptionsList.SetRows(names);
  if (!names.isEmpty()) return;
  const bool missing = error == kFileNotFound && kit_.shared.DriveBy == QLatin1String("False");
  if (error == kNoError || missing) {
    kit_.desk.GetMessages().Tell(QStringLiteral("Enter pricing information first."));
    Hide();
  }
}

void RFSForm::SaveDescriptions() {
  WriteNames(kit_.files, kit_.shared, NameList::Systems, DescriptionsList.Rows());
}

void RFSForm::LoadRooms() {
  QStringList names;
  roomsError_ = ReadRoomNames(kit_.files, kit_.shared, names);
  RoomsList.SetRows(names);
  UpdateStatus();
}

void RFSForm::SaveRooms() {
  RequireReadable(roomsError_, QStringLiteral("The list of rooms"));
  WriteRoomNames(kit_.files, kit_.shared, RoomsList.Rows());
}

void RFSForm::LoadRoom() {
  RoomList.Clear();
  RoomFile file;
  const int error = ReadRoomFile(kit_.files, kit_.shared, Room.Text(), file);
  lines_.Begin(Room.Text(), error);
  if (file.hasHeight) {
    How.SetText(file.height);
    CopyHeight = file.height;
    file.lines.removeAll(QString());
    RoomList.AddAll(file.lines);
  }
  UpdateStatus();
  // Last, since a height beyond all numbers fails here and must not leave the room half loaded.
  if (file.hasHeight && Flag == QLatin1String("Enter")) heightNumber_ = GroupedValue(file.height);
}

void RFSForm::SaveRoom() {
  lines_.RequireStorable(Room.Text());
  if (How.Empty()) How.SetText(CopyHeight);
  WriteRoomFile(kit_.files, kit_.shared, Room.Text(), How.Text(), RoomList.Rows());
  reports_.PrintReport();
}

void RFSForm::LoadAreas() {
  QStringList names;
  areasError_ = ReadNames(kit_.files, kit_.shared, NameList::FinishAreas, names);
  AreaList.SetRows(names);
}

void RFSForm::SaveAreas() {
  RequireReadable(areasError_, QStringLiteral("The list of finish areas"));
  WriteNames(kit_.files, kit_.shared, NameList::FinishAreas, AreaList.Rows());
}

void RFSForm::LoadSystem() {
  int error = kNoError;
  QStringList fetched;
  const TakeoffSystem system =
      LoadTakeoffSystem(kit_.files, kit_.shared, Description.Text(), fetched, error);
  if (!fetched.isEmpty()) System.SetRows(fetched);
  Units.SetText(system.units);
  kit_.shared.LineColor = system.lineColour;
  plan_.SetPenColour(system.lineColour);
  plan_.ResetMeasure();
  ScaleText.SetCaption(plan_.ScaleText());
  UpdatePrompts();
}

void RFSForm::UpdateStatus() {
  const int rooms = RoomsList.Count();
  const int lines = RoomList.Count();
  QString room = QStringLiteral("%1 rooms").arg(rooms);
  if (roomCursor_ >= 0 && roomCursor_ < rooms && !Room.Empty())
    room = QStringLiteral("Room %1 of %2").arg(roomCursor_ + 1).arg(rooms);
  const QString line = RoomList.Index() >= 0
                           ? QStringLiteral("line %1 of %2").arg(RoomList.Index() + 1).arg(lines)
                           : QStringLiteral("%1 lines").arg(lines);
  StatusText.SetCaption(room + QStringLiteral(", ") + line);
}

// What a blank Enter does next stands under each field, and differs by mode and unit.
void RFSForm::UpdatePrompts() {
  const bool entering = Flag == QLatin1String("Enter");
  DescriptionPrompt.SetCaption(entering ? kForHeight : kForRoom);
  HowPrompt.SetCaption(entering ? kForRoom : kForDescription);
  LengthPrompt.SetCaption(IsLinearOrCount(Units.Text()) ? kForDescription : kForHeight);
}

}  // namespace tamo
