#pragma once

#include "pricing/controlgroup.h"

namespace tamo {

// Import and export of a system. The frame is in its short form while File1 is hidden.
struct ExchangeControls : ControlGroup {
  explicit ExchangeControls(Form& owner);

  Frame IEFrame{form, "IEFrame"};
  Label IELabel{form, "IELabel"};
  FileBrowser Drive1{form, "Drive1", FileBrowser::Kind::Drive};
  FileBrowser Dir1{form, "Dir1", FileBrowser::Kind::Folder};
  FileBrowser File1{form, "File1", FileBrowser::Kind::File, "*.sys"};
  OrderedList CopySys{form, "CopySys"};  // the copied blocks; never shown
};

}  // namespace tamo
