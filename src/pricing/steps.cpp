#include "pricing/steps.h"

#include "common/chain.h"
#include "common/failure.h"
#include "common/paths.h"

namespace tamo {

void RequireFileName(const QString& name) {
  const QString refusal = NameRefusal(name);
  if (!refusal.isEmpty()) throw RunTimeFailure(kInvalidArgument, refusal);
}

bool TellIfUnusable(Desk& desk, const QString& name) {
  const QString refusal = NameRefusal(name);
  if (!refusal.isEmpty()) desk.GetMessages().Tell(refusal);
  return !refusal.isEmpty();
}

void FocusByCommand(Desk& desk, Control& control) {
  desk.Focus(control);
  if (!control.HasFocus()) desk.Focus(control);
}

void ToggleDropList(OrderedList& list, const TextField& field) {
  list.SetShown(field.HasFocus() && !list.Shown());
}

void OnPick(TextField& field, OrderedList& list, std::function<void(const QString&)> picked) {
  DropFrom(field, list);
  list.onClick = [&list, picked = std::move(picked)] {
    if (list.Index() < 0) return;
    const QString row = list.Selected();
    list.Hide();
    picked(row);
  };
}

}  // namespace tamo
