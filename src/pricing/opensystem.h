#pragma once

#include "common/kit.h"
#include "pricing/laborprice.h"
#include "pricing/lookcontrols.h"
#include "pricing/materialinwork.h"
#include "pricing/systemblocks.h"
#include "pricing/systemcontrols.h"
#include "pricing/systemstore.h"

namespace tamo {

// The system that stands on the form: what is read of it, what is written, and how it makes room
// for the next one.
//
// It is only ever written under its own name or under a new one: another system of the library is
// never written over because its name stands in the field.
class OpenSystem {
 public:
  // All of it outlives this.
  OpenSystem(const Kit& kit, SystemControls& system, LookControls& look, SystemBlocks& blocks,
             MaterialInWork& material, LaborPrice& price, QString& lineColor);

  SystemFile AsFile() const;
  // Puts a system on the form in the place of the one before; its price is shown as far as it goes.
  void Take(const SystemFile& file);
  // Nothing of the system before counts for the next one.
  void Empty();
  // The name in Description is that of the system on the form from now on.
  void TakeName() { name_ = system_.Description.Text(); }

  // Raises a RunTimeFailure when the name in Description is that of another system.
  void RequireOwnName();
  // Writes the files of the system and shows its price as far as it goes; SaveSystem also tells
  // when it goes no further. Without a name nothing is done.
  void Write();
  void SaveSystem();

  void PaintLine();  // in the system's colour

  SystemStore store;

 private:
  void ShowTheirs();

  SystemControls& system_;
  LookControls& look_;
  SystemBlocks& blocks_;
  MaterialInWork& material_;
  LaborPrice& price_;
  QString& lineColor_;
  QString name_;  // under which the system was opened or begun; "" when none is open
};

}  // namespace tamo
