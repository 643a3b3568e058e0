// What is picked from the lists of the schedule: rooms, systems, finish areas.

#include "common/chain.h"
#include "common/numbers.h"
#include "takeoff/rfsform.h"
#include "takeoff/unitcodes.h"

namespace tamo {

void RFSForm::BindLists() {
  RoomsList.onSelect = [this] { RoomSelected(); };
  RoomsList.onUserScroll = [this] { place.roomsTop = RoomsList.Top(); };
  DescriptionsList.onSelect = [this] { DescriptionSelected(); };
  AreaList.onSelect = [this] { FinishAreaSelected(); };
}

void RFSForm::RoomSelected() {
  if (RoomsList.Index() < 0) return;
  place.roomsTop = RoomsList.Top();
  place.room = RoomsList.Index();
  Room.SetText(RoomsList.Selected());
  RoomsList.Hide();
  const bool entering = Entering();
  place.height = entering ? 0 : GroupedValue(How.Text());
  record_.LoadRoom();
  // Taking off, the height in use goes on over the one just loaded (held by a test).
  How.SetText(NumberText(place.height));
  if (place.line >= RoomList.Count()) place.line = 0;
  if (place.line >= 0 && place.line < RoomList.Count() && RoomList.Index() < 0)
    RoomList.SetIndex(place.line);
  if (entering) {
    GetDesk().Focus(Description);
    return;
  }
  LoadSystem();
  const bool needsHeight =
      GroupedValue(How.Text()) == 0 && Units.Text().toUpper() != QLatin1String("LF");
  GetDesk().Focus(needsHeight ? How : Length);
}

void RFSForm::DescriptionSelected() {
  if (DescriptionsList.Index() < 0) return;
  PickToTop(DescriptionsList, Description);
  DescriptionsList.Hide();
  SaveDescriptions();
  TakeSystem();
}

void RFSForm::FinishAreaSelected() {
  if (AreaList.Index() < 0) return;
  record_.RequireStorable();
  BeginLine();
  PickToTop(AreaList, Area);
  record_.SaveAreas();
  AreaList.Hide();
  StoreLine();
}

}  // namespace tamo
