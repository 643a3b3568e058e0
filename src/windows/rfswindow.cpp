#include "windows/formlayouts.h"
#include "windows/takeofflayout.h"

// The room finish schedule: the chain of fields above, the room's lines below.

namespace tamo {

void LayOutRFSForm(Builder& b) {
  QWidget* frame = b.Group("RFSFrame");
  auto* column = ColumnIn(frame);
  column->addLayout(TakeoffFields(b, {{"RoomLabel", "Room", 30, "RoomPrompt"},
                                      {"HOWLabel", "How", 12, "HowPrompt"},
                                      {"DescriptionLabel", "Description", 30, "DescriptionPrompt"},
                                      {"AreaLabel", "Area", 12, ""},
                                      {"UnitsLabel", "Units", 8, ""},
                                      {"LengthLabel", "Length", 12, "LengthPrompt"}}));
  column->addWidget(
      TakeoffLines(b, "RoomList", QStringLiteral("Lines of the room"),
                   QStringLiteral("System Name          Area             Quantity Units")),
      1);
  b.DropList("RoomsList", "Room");
  b.DropList("DescriptionsList", "Description");
  b.DropList("AreaList", "Area");
  b.DropList("Lengths", "Length");
  column->addWidget(Tally(b, "Lengths"));
  column->addWidget(MeasureWaits(b));
  b.Window().Body().addWidget(frame, 1);
  TakeoffStatus(b);
  b.Window().firstSize = {860, 640};
}

}  // namespace tamo
