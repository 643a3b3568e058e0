#pragma once

#include "pricing/opensystem.h"
#include "pricing/reportrefresh.h"

namespace tamo {

// The line colour of the open system, and its notes.
class SystemLook {
 public:
  // All of it outlives this. `afterColour` is where the hands go once a colour is chosen.
  SystemLook(const Kit& kit, SystemControls& system, LookControls& look, OpenSystem& open,
             ReportRefresh& refresh, QString& lineColor, Control& afterColour);

  void PaintPalette();
  // What was typed into the notes is on the disk when the system is left with the box open.
  void KeepNotes();

 private:
  void BindColour();
  void BindNotes();
  void ChooseColour(const QString& code);
  void ChooseBackgroundNumber();
  void EndSystem();  // on to the materials, when they are shown
  void ToggleNotes();

  const Kit kit_;
  SystemControls& system_;
  LookControls& look_;
  OpenSystem& open_;
  ReportRefresh& refresh_;
  QString& lineColor_;
  Control& afterColour_;
  QString savedNotes_;  // as they came into the box
};

}  // namespace tamo
