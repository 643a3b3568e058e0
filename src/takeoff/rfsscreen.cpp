#include "takeoff/rfsscreen.h"

#include "common/chain.h"
#include "takeoff/unitcodes.h"

namespace tamo {
namespace {

constexpr QLatin1String kForRoom("Leave blank and press Enter for new Room");
constexpr QLatin1String kForDescription("Leave blank and press Enter for new Description");
constexpr QLatin1String kForHeight("Leave blank and press Enter for new Height");

}  // namespace

RFSScreen::RFSScreen(const Kit& kit, PlanTools& plan, MissingSystemPricing& pricing,
                     TakeoffReportRefresh& reports, TakeoffExits& exits, TakingBack& steps)
    : TakeoffForm(kit, plan, pricing, reports, exits, steps, "RFSForm") {
  SetCaption(QStringLiteral("Room Finish Schedule"));
  for (Control* control : Controls()) {
    if (control != &RFSFrame && control != &StatusText) control->PutInto(RFSFrame);
  }
  AddText(QStringLiteral("Flag"), &Flag);
  AddText(QStringLiteral("CopyHeight"), &CopyHeight);
  AddText(QStringLiteral("CopyHeight1"), &CopyHeight1);
  DropFrom(Room, RoomsList);
  DropFrom(Description, DescriptionsList);
  DropFrom(Area, AreaList);
  DropFrom(Length, Lengths);
  KeepUnseen(CopyRoomList);
}

void RFSScreen::UpdateStatus() {
  const bool known = place.room < RoomsList.Count() && !Room.Empty();
  ShowStatus(QStringLiteral("Room"), known ? place.room : -1, RoomsList.Count(), RoomList);
}

void RFSScreen::UpdatePrompts() {
  DescriptionPrompt.SetCaption(Entering() ? kForHeight : kForRoom);
  HowPrompt.SetCaption(Entering() ? kForRoom : kForDescription);
  LengthPrompt.SetCaption(IsLinearOrCount(Units.Text()) ? kForDescription : kForHeight);
}

}  // namespace tamo
