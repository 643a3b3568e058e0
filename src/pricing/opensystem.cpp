#include "pricing/opensystem.h"

#include "common/failure.h"
#include "common/numbers.h"
#include "pricing/palette.h"
#include "pricing/steps.h"

namespace tamo {

OpenSystem::OpenSystem(const Kit& kit, SystemControls& system, LookControls& look,
                       SystemBlocks& blocks, MaterialInWork& material, LaborPrice& price,
                       QString& lineColor)
    : store(kit),
      system_(system),
      look_(look),
      blocks_(blocks),
      material_(material),
      price_(price),
      lineColor_(lineColor) {}

SystemFile OpenSystem::AsFile() const {
  return {system_.Description.Text(), system_.Units.Text(), system_.UnitPrice.Text(), lineColor_,
          look_.PricingNotes.Text(),  blocks_.Rows()};
}

void OpenSystem::Take(const SystemFile& file) {
  Empty();
  TakeName();  // a file that gives another name is no other system's file
  if (!file.description.isEmpty()) system_.Description.SetText(file.description);
  system_.Units.SetText(file.units);
  system_.UnitPrice.SetText(file.unitPrice);
  lineColor_ = file.lineColor;
  PaintLine();
  look_.PricingNotes.SetText(file.notes);
  blocks_.Take(file.blocks);
  // What is asked for its first material is asked in its own unit.
  if (blocks_.Empty()) material_.prompts.Change(&Prompts::AfterUnits);
  system_.FramePricing.Show();
  if (Value(file.unitPrice) == 0) {
    price_.Show();
  } else {
    price_.HideAmount();
  }
  price_.ShowAsFarAsItGoes();
}

void OpenSystem::Empty() {
  system_.Units.Clear();
  system_.UnitPrice.Clear();
  material_.ClearSomeStuff();
  lineColor_.clear();
  PaintLine();
  look_.PricingNotes.Clear();
  blocks_.Clear();
  name_.clear();
}

void OpenSystem::PaintLine() {
  system_.Line1.SetColour(ShownColour(lineColor_));
}

void OpenSystem::RequireOwnName() {
  const QString& name = system_.Description.Text();
  if (name.isEmpty() || name.compare(name_, Qt::CaseInsensitive) == 0 || !store.Has(name)) return;
  throw RunTimeFailure(
      kInvalidArgument,
      QStringLiteral("\"%1\" is another system of the library, and what stands below its name is "
                     "not its own. Nothing was saved. Press Enter in System Name to open it, or "
                     "enter a name that is new.")
          .arg(name));
}

void OpenSystem::Write() {
  if (system_.Description.Empty()) return;
  RequireFileName(system_.Description.Text());
  RequireOwnName();
  TakeName();
  blocks_.EmptySpareRows();
  if (!store.Write(AsFile())) ShowTheirs();
  price_.ShowAsFarAsItGoes();
}

// What was entered here is given up, and so is what was to come after it in the chain.
void OpenSystem::ShowTheirs() {
  SystemFile theirs;
  if (store.Read(system_.Description.Text(), theirs)) Take(theirs);
  throw RunTimeFailure(kTheirsTaken,
                       QStringLiteral("The system stands here now as the other program saved it."));
}

void OpenSystem::SaveSystem() {
  if (system_.Description.Empty()) return;
  Write();
  price_.MakeEUP();
}

}  // namespace tamo
