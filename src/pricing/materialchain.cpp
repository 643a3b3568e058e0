#include "pricing/materialchain.h"

#include "common/chain.h"
#include "common/paths.h"
#include "pricing/steps.h"
#include "pricing/unitprice.h"

namespace tamo {

MaterialChain::MaterialChain(const Kit& kit, Form& form, const PricingParts& parts,
                             OrderedList& ordinals, std::function<void()> clearFields)
    : kit_(kit), form_(form), p_(parts), ordinals_(ordinals), clearFields_(std::move(clearFields)) {
  BindName();
  BindOrder();
  BindLabor();
  BindList();
}

void MaterialChain::BindName() {
  MaterialControls& c = p_.materials;
  OnEnter(
      c.Material, Keys::FileName, [this] { EnterMaterial(); }, [this] { FinishSystem(); });
  c.Material.onGotFocus = [this] { MaterialGotFocus(); };
  c.Material.onLostFocus = [this] { MaterialLostFocus(); };
  c.Material.onClick = [&c] { ToggleDropList(c.MaterialsList, c.Material); };
  OnPick(c.Material, c.MaterialsList, [this](const QString& row) { ChooseMaterial(row); });
}

void MaterialChain::BindOrder() {
  MaterialControls& c = p_.materials;
  OnEnter(c.OrderUnits, [this] { EnterOrderUnits(); });
  OnFocusSelectAll(c.OrderUnits, [&c] {
    c.OrderUnits.SetHover(QStringLiteral("Order units used when ordering ") + c.Material.Text() +
                          QLatin1Char('.'));
  });
  c.OrderUnits.onLostFocus = [&c] { c.oUnitsList.Hide(); };
  c.OrderUnits.onClick = [&c] {
    if (c.MaterialList.Index() < 0 && !c.MaterialList.Empty())
      c.MaterialList.SetIndex(c.MaterialList.Count() - 1);
    ToggleDropList(c.oUnitsList, c.OrderUnits);
  };
  OnPick(c.OrderUnits, c.oUnitsList, [this, &c](const QString& row) {
    c.OrderUnits.SetText(row);
    kit_.desk.Focus(c.OrderUnits);
    c.OrderUnits.SelectAll();
  });
  OnEnter(c.Price, Keys::Number, [this] { EnterPrice(); });
  OnFocusSelectAll(c.Price, [this] { p_.material.prompts.Change(&Prompts::AtPrice); });
  c.Price.onLostFocus = [this, &c] {
    if (c.UPO.Usable()) kit_.desk.Focus(c.UPO);
  };
}

void MaterialChain::BindLabor() {
  MaterialControls& c = p_.materials;
  OnEnter(c.Waste, Keys::WholeNumber, [this, &c] { kit_.desk.Focus(c.WageRate); });
  OnFocusSelectAll(c.Waste);
  OnEnter(c.WageRate, Keys::Number, [this] { FinishMaterial(); });
  OnFocusSelectAll(c.WageRate);
  c.WageRate.onLostFocus = [&c] { c.WagesList.Hide(); };
  c.WageRate.onClick = [&c] { ToggleDropList(c.WagesList, c.WageRate); };
  OnPick(c.WageRate, c.WagesList, [this, &c](const QString& row) {
    c.WageRate.SetText(row);
    kit_.desk.Focus(c.WageRate);
    c.WageRate.SelectAll();
  });
}

void MaterialChain::BindList() {
  MaterialControls& c = p_.materials;
  c.MaterialList.onSelect = [this] { SelectMaterial(); };
  c.MaterialList.onClick = [this, &c] {
    if (c.Material.Usable()) kit_.desk.Focus(c.Material);
  };
  c.MaterialList.onRightClick = [this, &c] {
    if (c.MaterialList.Index() >= 0) form_.PopUp(p_.menus.MaterialMenu);
  };
  p_.menus.MaterialDelete.onClick = [this] { DeleteMaterial(); };
  // Nothing is saved until the material is finished.
  p_.menus.MaterialInsert.onClick = [this, &c] {
    if (c.MaterialList.Index() >= 0) p_.blocks.InsertPlace(c.MaterialList.Index());
  };
}

// --- Material ---

void MaterialChain::MaterialGotFocus() {
  if (p_.system.Description.Empty()) {
    p_.system.FramePricing.Show();
    kit_.desk.Focus(p_.system.Description);
    return;
  }
  MaterialControls& c = p_.materials;
  if (c.Material.Empty() && c.OrderUnits.Empty()) {
    c.Waste.Clear();
    c.WageRate.Clear();
  }
  c.Material.SelectAll();
  p_.system.FramePricing.Show();
  p_.material.prompts.Change(&Prompts::AtMaterial);
  c.Label5.Show();
  c.Label8.Show();
  KeepRowReady();
  ShowHover();
}

void MaterialChain::KeepRowReady() {
  if (p_.materials.Material.HasFocus() && p_.blocks.Empty()) StepOn();
}

void MaterialChain::ShowHover() {
  const int row = p_.materials.MaterialList.Index();
  if (row < 0) return;
  const QString& system = p_.system.Description.Text();
  p_.materials.Material.SetHover(
      row < ordinals_.Count() ? ordinals_.Row(row) + QStringLiteral(" material used in ") + system
                              : QStringLiteral("Material #") + QString::number(row + 1) +
                                    QStringLiteral(" used in ") + system);
}

void MaterialChain::MaterialLostFocus() {
  p_.materials.MaterialsList.Hide();
  if (!p_.materials.Material.Empty()) {
    RememberName();
  } else if (p_.system.Description.Usable() && p_.materials.MaterialsList.Index() < 0) {
    kit_.desk.Focus(p_.system.Description);
  }
}

// A name that can't be a file's name is told at Enter; on leaving it is only not kept.
void MaterialChain::RememberName() {
  const QString& name = p_.materials.Material.Text();
  if (NameRefusal(name).isEmpty()) p_.vocabulary.materials.Remember(name);
}

void MaterialChain::EnterMaterial() {
  MaterialControls& c = p_.materials;
  if (TellIfUnusable(kit_.desk, c.Material.Text())) return;
  const bool known =
      p_.material.fields.AllEmpty() && p_.vocabulary.materials.MayHave(c.Material.Text());
  const bool another = p_.material.FromLibrary() && c.MaterialList.Index() >= 0 &&
                       c.MaterialList.Selected().isEmpty();
  if (known || another) p_.material.LoadMaterial();
  RememberName();
  c.MaterialsList.Hide();
  kit_.desk.Focus(c.OrderUnits);
}

void MaterialChain::FinishSystem() {
  clearFields_();
  p_.materials.MaterialsList.Hide();
  p_.open.Empty();
  p_.price.Hide();
  p_.menus.CopySystem.SetEnabled(false);
  p_.look.PricingNotes.Hide();
  kit_.desk.Focus(p_.system.Description);
  p_.look.ColorFrame.Hide();
}

void MaterialChain::ChooseMaterial(const QString& name) {
  MaterialControls& c = p_.materials;
  c.Material.SetText(name);
  if (!name.isEmpty() && !TellIfUnusable(kit_.desk, name) &&
      c.MaterialList.Index() >= c.MaterialList.Count() - 1)
    p_.material.LoadMaterial();
  // The field mostly has the focus already; what comes with it (the whole name selected, the
  // prompts) is due all the same.
  if (c.Material.HasFocus()) {
    MaterialGotFocus();
  } else {
    kit_.desk.Focus(c.Material);
  }
}

// --- OrderUnits and Price ---

void MaterialChain::EnterOrderUnits() {
  MaterialControls& c = p_.materials;
  if (c.OrderUnits.Text().trimmed().isEmpty()) return;
  PromptLabels& prompts = p_.material.prompts;
  prompts.Change(&Prompts::AppendOrderUnits);
  if (const QString reserved = ReservedTerm(prompts.Names()); !reserved.isEmpty()) {
    kit_.desk.GetMessages().Tell(reserved);
    kit_.desk.Focus(c.OrderUnits);
    return;
  }
  p_.vocabulary.orderUnits.Remember(c.OrderUnits.Text());
  c.oUnitsList.Hide();
  prompts.Change(&Prompts::CostPer);
  prompts.SetUpoUpm(p_.material.directions);
  kit_.desk.Focus(c.Price);
}

void MaterialChain::EnterPrice() {
  p_.material.fields.Respell(MaterialFields::kPrice,
                             PriceFormat::MakeMoney(p_.materials.Price.Text()));
  kit_.desk.Focus(p_.materials.UPO);
}

// --- WageRate: the material is finished ---

void MaterialChain::FinishMaterial() {
  MaterialControls& c = p_.materials;
  RequireFileName(c.Material.Text());
  if (!p_.system.Description.Empty()) RequireFileName(p_.system.Description.Text());
  p_.open.RequireOwnName();
  c.WageRate.SetText(PriceFormat::MakeMoney(c.WageRate.Text()));
  c.WagesList.Hide();
  const MaterialBlock block = p_.material.ToStore();
  p_.material.SaveMaterial(block);
  p_.vocabulary.wages.Remember(c.WageRate.Text());

  const int place = p_.blocks.Place();
  const bool isNew = place >= p_.blocks.Count();
  p_.blocks.Put(place, block);
  if (isNew) {
    p_.material.ClearSomeStuff();
    StepOn();
    p_.open.SaveSystem();
  } else {
    p_.material.Stored(block);
    p_.open.SaveSystem();
    StepOn();
  }
  kit_.desk.Focus(c.Material);
  p_.refresh.PrintReport();
}

// On to the next material: the following row comes up; behind the last one an empty row is made
// for a new one.
void MaterialChain::StepOn() {
  if (p_.blocks.SelectNext()) p_.material.ShowSystem();
}

// --- the list of the system's materials ---

void MaterialChain::SelectMaterial() {
  MaterialControls& c = p_.materials;
  const int row = c.MaterialList.Index();
  if (row < 0) return;
  if (row < ordinals_.Count()) ordinals_.SetIndex(row);
  p_.material.ComeUp();
  if (c.Material.Empty()) {
    c.Waste.Clear();
    c.WageRate.Clear();
  }
  if (c.Material.Usable()) kit_.desk.Focus(c.Material);
  // The next name typed replaces the one that came up.
  if (c.Material.HasFocus()) c.Material.SelectAll();
  p_.material.prompts.SetUpoUpm(p_.material.directions);
  ShowHover();
}

void MaterialChain::DeleteMaterial() {
  OrderedList& list = p_.materials.MaterialList;
  const int row = list.Index();
  if (row < 0) return;
  p_.open.RequireOwnName();
  p_.blocks.Delete(row);
  if (row < list.Count()) {
    list.SetIndex(row);
  } else {
    p_.material.ClearSomeStuff();
  }
  p_.open.SaveSystem();
  KeepRowReady();
  p_.refresh.PrintReport();
}

}  // namespace tamo
