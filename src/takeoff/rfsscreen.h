#pragma once

#include "takeoff/measuredvalue.h"
#include "takeoff/takeoffform.h"

namespace tamo {

// Where the estimator is in the room schedule. Indices are -1 for none.
struct RoomPlace {
  int room = -1;       // index in RoomsList of the room in work
  int line = -1;       // the last selected line, kept across LoadRoom
  int roomsTop = 0;    // the first visible row of RoomsList, as last scrolled
  double height = 0;   // the height number that a picked room comes up with
  bool quiet = false;  // the next selection of a line does nothing but clear this
};

// What stands on the window of the room schedule: its controls, its texts, and where the estimator
// is.
class RFSScreen : public TakeoffForm {
 public:
  Frame RFSFrame{*this, "RFSFrame"};

  Label RoomLabel{*this, "RoomLabel", "Room:"};
  TextField Room{*this, "Room"};  // no limit: a file name
  Label RoomPrompt{*this, "RoomPrompt", "Leave blank and press Enter to finish"};
  TextField Description{*this, "Description", 20};  // the system
  TextField Area{*this, "Area", 10};                // the finish area
  TextField How{*this, "How", 11};  // the room's height; a height or width while taking off
  Label HowPrompt{*this, "HowPrompt"};
  TextField Length{*this, "Length", 11};
  OrderedList RoomList{*this, "RoomList"};  // the lines of the room

  OrderedList RoomsList{*this, "RoomsList"};        // drops from Room
  OrderedList AreaList{*this, "AreaList"};          // finish areas, most recent first
  OrderedList CopyRoomList{*this, "CopyRoomList"};  // what Copy Room took; never displayed

  MeasuredValue measured{*this};

  MenuEntry AutoRoom{*this, "AutoRoom", "&AutoRoom is OFF"};
  MenuEntry CopyRoom{*this, "CopyRoom", "&Copy Room"};
  MenuEntry PasteRoom{*this, "PasteRoom", "&Paste Room"};
  MenuEntry OST1{*this, "OST1", "&DSW"};
  MenuEntry Exit{*this, "Exit", "E&xit"};
  MenuEntry ShowMarks{*this, "ShowMarks", "&Marks (F7)"};
  MenuEntry RmsPopup{*this, "RmsPopup", {}, nullptr, true};
  MenuEntry RmsDelete{*this, "RmsDelete", "Delete Room", &RmsPopup};
  MenuEntry RmsCancel{*this, "RmsCancel", "Cancel", &RmsPopup};
  MenuEntry RmList{*this, "RmList", {}, nullptr, true};
  MenuEntry RmListDelete{*this, "RmListDelete", "Delete Description", &RmList};
  MenuEntry RmListInsert{*this, "RmListInsert", "Insert Description", &RmList};
  MenuEntry RmListCancel{*this, "RmListCancel", "Cancel", &RmList};

  QString Flag;         // "Enter" or "Estimate"
  QString CopyHeight;   // the room's height as last entered or loaded
  QString CopyHeight1;  // the height that Copy Room took
  RoomPlace place;

  bool Entering() const { return Flag == QLatin1String("Enter"); }
  void UpdateStatus();
  // What a blank Enter does next stands under each field, and differs by mode and unit.
  void UpdatePrompts();

 protected:
  RFSScreen(const Kit& kit, PlanTools& plan, MissingSystemPricing& pricing,
            TakeoffReportRefresh& reports, TakeoffExits& exits, TakingBack& steps);
};

}  // namespace tamo
