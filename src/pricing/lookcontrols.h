#pragma once

#include <memory>
#include <vector>

#include "pricing/controlgroup.h"

namespace tamo {

// A system's notes and its line colour.
struct LookControls : ControlGroup {
  // The two buttons stand in the frame of the system.
  LookControls(Form& owner, Frame& systemFrame);

  Button Command1{form, "Command1", "Notes"};
  Button Command2{form, "Command2", "Color"};
  TextField PricingNotes{form, "PricingNotes"};

  // The palette: fifteen swatches by their names, one for no colour, and the background's number.
  Frame ColorFrame{form, "ColorFrame"};
  std::vector<std::unique_ptr<Swatch>> Palette;
  Swatch iNoColor{form, "iNoColor", "No Color"};
  Label Label20{form, "Label20", "Background"};
};

}  // namespace tamo
