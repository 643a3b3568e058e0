#include "pricing/systemchain.h"

#include "common/chain.h"
#include "common/columns.h"
#include "common/numbers.h"
#include "pricing/steps.h"
#include "pricing/unitprice.h"

namespace tamo {

SystemChain::SystemChain(const Kit& kit, Form& form, const PricingParts& parts)
    : kit_(kit), form_(form), p_(parts) {
  BindName();
  BindUnits();
}

void SystemChain::BindName() {
  SystemControls& c = p_.system;
  OnEnter(
      c.Description, Keys::FileName, [this] { EnterDescription(); }, [this] { LeaveForm(); });
  OnFocusSelectAll(c.Description, [this] {
    if (p_.system.Description.Empty()) ClearStuff();
  });
  c.Description.onLostFocus = [&c] { c.DescriptionsList.Hide(); };
  c.Description.onClick = [&c] { ToggleDropList(c.DescriptionsList, c.Description); };
  c.Description.onRightClick = [this] {
    if (!p_.system.Description.Empty()) form_.PopUp(p_.menus.SystemMenu);
  };
  OnPick(c.Description, c.DescriptionsList, [this](const QString& row) { ChooseDescription(row); });
  p_.menus.SystemDelete.onClick = [this] { DeleteSystem(); };
}

void SystemChain::BindUnits() {
  SystemControls& c = p_.system;
  OnEnter(c.Units, [this] { EnterUnits(); });
  c.Units.onKey = [&c, enter = c.Units.onKey](Key& key) {
    if (!key.IsEnter()) c.UnitsList.Hide();
    enter(key);
  };
  OnFocusSelectAll(c.Units, [&c] {
    c.Units.Show();
    if (!c.UnitsList.Empty()) c.UnitsList.Show();
  });
  c.Units.onLostFocus = [this] { LeaveUnits(); };
  c.Units.onClick = [&c] { ToggleDropList(c.UnitsList, c.Units); };
  OnPick(c.Units, c.UnitsList, [this](const QString& row) {
    p_.system.Units.SetText(row);
    kit_.desk.Focus(p_.system.UnitPrice);
  });
  OnEnter(c.UnitPrice, Keys::Number, [this] { EnterUnitPrice(); });
  OnFocusSelectAll(c.UnitPrice, [&c] { c.DescriptionsList.Hide(); });
}

// --- Description ---

void SystemChain::EnterDescription() {
  TextField& name = p_.system.Description;
  p_.system.DescriptionsList.Hide();
  const int row = p_.vocabulary.systems.Find(name.Text());
  if (row >= 0) name.SetText(p_.system.DescriptionsList.Row(row));
  if (TellIfUnusable(kit_.desk, name.Text())) return;
  if (row < 0) {
    BeginSystem();
    return;
  }
  if (!LoadSystem()) return;
  if (!p_.blocks.Empty()) {
    p_.price.MakeEUP();
    p_.materials.MaterialList.SetIndex(0);
  }
  if (Value(p_.system.UnitPrice.Text()) != 0) {
    FocusByCommand(kit_.desk, p_.system.Units);
  } else {
    p_.price.Show();
    GoToMaterial();
  }
}

void SystemChain::LeaveForm() {
  p_.system.DescriptionsList.Hide();
  ClearStuff();
  form_.Hide();
  p_.menus.CopySystem.SetEnabled(false);
  p_.menus.PasteSystem.SetEnabled(false);
  ClearStuff();
}

// Comes up as its name brings it up when it is typed.
void SystemChain::ChooseDescription(const QString& name) {
  if (name.isEmpty()) return;
  p_.system.DescriptionsList.SetIndex(-1);
  p_.system.Description.SetText(name);
  p_.system.Label3.Show();
  EnterDescription();
  if (p_.materials.LandMFrame.Shown()) p_.materials.Label19.Show();
}

// The name is in the library at once; its file follows with the price.
void SystemChain::BeginSystem() {
  p_.vocabulary.systems.Remember(p_.system.Description.Text());
  ShowNewSystem();
  p_.look.ColorFrame.Hide();
}

void SystemChain::ShowNewSystem() {
  p_.open.Empty();
  p_.open.TakeName();
  p_.price.Hide();
  p_.system.FramePricing.Show();
  FocusByCommand(kit_.desk, p_.system.Units);
}

// What comes with the focus is due also when Material had it all along.
void SystemChain::GoToMaterial() {
  TextField& material = p_.materials.Material;
  if (material.HasFocus()) {
    material.onGotFocus();
  } else {
    FocusByCommand(kit_.desk, material);
  }
}

bool SystemChain::LoadSystem() {
  const QString name = p_.system.Description.Text();
  if (TrimmedBlanks(name).isEmpty()) return false;
  SystemFile file;
  if (!p_.open.store.Read(name, file)) {
    ShowNewSystem();
    return false;
  }
  p_.open.Take(file);
  p_.menus.CopySystem.SetEnabled(true);
  if (Value(p_.system.UnitPrice.Text()) != 0) {
    kit_.desk.Focus(p_.system.UnitPrice);
  } else {
    kit_.desk.Focus(p_.materials.Material);
  }
  return true;
}

void SystemChain::ClearStuff() {
  p_.system.Description.Clear();
  p_.system.Units.Clear();
  p_.material.ClearSomeStuff();
  p_.system.UnitPrice.Clear();
  p_.materials.EUP.SetCaption(QString());
  p_.materials.EUP.Hide();
  p_.materials.Label19.Hide();
}

// --- Units and UnitPrice ---

void SystemChain::EnterUnits() {
  OrderedList& materials = p_.materials.MaterialList;
  if (materials.Index() < 0 && !materials.Empty()) materials.SetIndex(materials.Count() - 1);
  if (p_.system.Units.Empty()) {
    kit_.desk.Focus(p_.system.Units);
    return;
  }
  p_.material.prompts.Change(&Prompts::AfterUnits);
  p_.system.UnitsList.Hide();
  p_.system.Label3.Show();
  FocusByCommand(kit_.desk, p_.system.UnitPrice);
}

void SystemChain::LeaveUnits() {
  p_.system.UnitsList.Hide();
  if (!p_.system.Units.Empty()) {
    p_.material.prompts.Change(&Prompts::AfterUnits);
  } else if (p_.system.Units.Usable()) {
    kit_.desk.Focus(p_.system.Units);
  }
}

void SystemChain::EnterUnitPrice() {
  TextField& price = p_.system.UnitPrice;
  price.SetText(PriceFormat::MakeMoney(price.Text()));
  p_.open.SaveSystem();
  if (Value(price.Text()) != 0) {
    p_.look.ColorFrame.Show();
  } else {
    p_.price.Show();
    p_.menus.CopySystem.SetEnabled(true);
    p_.menus.PasteSystem.SetEnabled(!p_.exchange.CopySys.Empty());
    p_.price.MakeEUP();
    p_.materials.Label19.Show();
    kit_.desk.Focus(p_.materials.Material);
  }
  p_.refresh.PrintReport();
}

// --- deleting ---

// A project keeps its own copy: with one open the master file stays although the name leaves the
// list. A test holds it.
void SystemChain::DeleteSystem() {
  const QString name = p_.system.Description.Text();
  if (name.isEmpty()) return;
  OrderedList& list = p_.system.DescriptionsList;
  for (int row = list.Find(name); row >= 0; row = list.Find(name)) {
    list.Remove(row);
    p_.vocabulary.SaveDescriptions();
  }
  if (!TellIfUnusable(kit_.desk, name)) p_.open.store.Remove(name);
  ClearStuff();
  p_.open.Empty();
  p_.price.Hide();
  kit_.desk.Focus(p_.system.Description);
}

}  // namespace tamo
