#include "windows/formlayouts.h"
#include "windows/takeofflayout.h"

// The free takeoff: an area, a system, and at once its lengths.

namespace tamo {

void LayOutEstimateForm(Builder& b) {
  QVBoxLayout& body = b.Window().Body();
  body.addLayout(TakeoffFields(b, {{"AreaLabel", "Area", 30, "AreaPrompt"},
                                   {"HOWLabel", "Hite", 12, "HitePrompt"},
                                   {"DescriptionLabel", "eDescription", 30, "DescriptionPrompt"},
                                   {"LengthLabel", "eLength", 12, "LengthPrompt"},
                                   {"UnitsLabel", "Units", 8, ""}}));
  body.addWidget(TakeoffLines(b, "AreaList", QStringLiteral("Lines of the area"),
                              QStringLiteral("System Name                Quantity Units")),
                 1);
  b.DropList("AreasList", "Area");
  b.DropList("DescriptionsList", "eDescription");
  b.DropList("Lengths", "eLength");
  body.addWidget(Tally(b, "Lengths"));
  body.addWidget(MeasureWaits(b));
  TakeoffStatus(b);
  b.Window().firstSize = {860, 600};
}

}  // namespace tamo
