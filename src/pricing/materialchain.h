#pragma once

#include "pricing/pricingparts.h"

namespace tamo {

// The chain of a material, from its name to its wage rate, and the list of the system's materials.
// Enter in the wage rate finishes a material; Enter in the empty name finishes the system.
class MaterialChain {
 public:
  // `form` is where pop-ups open; `ordinals` are "First", "Second" ..., `clearFields` empties all
  // fields of the form.
  MaterialChain(const Kit& kit, Form& form, const PricingParts& parts, OrderedList& ordinals,
                std::function<void()> clearFields);

  // With the focus in Material a system without materials has an empty row ready.
  void KeepRowReady();

 private:
  void BindName();
  void BindOrder();
  void BindLabor();
  void BindList();

  void MaterialGotFocus();
  void MaterialLostFocus();
  void ShowHover();
  void EnterMaterial();
  void FinishSystem();
  void ChooseMaterial(const QString& name);
  void RememberName();
  void EnterOrderUnits();
  void EnterPrice();
  void FinishMaterial();
  void StepOn();
  void SelectMaterial();
  void DeleteMaterial();

  const Kit kit_;
  Form& form_;
  const PricingParts p_;
  OrderedList& ordinals_;
  const std::function<void()> clearFields_;
};

}  // namespace tamo
