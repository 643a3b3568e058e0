#pragma once

#include "pricing/pricingparts.h"

namespace tamo {

// The chain of a system: its name, its takeoff unit, its price. It goes on to the materials, or to
// the colour when a price was given.
class SystemChain {
 public:
  // `form` is where pop-ups open.
  SystemChain(const Kit& kit, Form& form, const PricingParts& parts);

  // True when the system named in Description has a file. False begins a new one, with the focus in
  // Units.
  bool LoadSystem();
  // All fields are emptied; the materials stay.
  void ClearStuff();

 private:
  void BindName();
  void BindUnits();

  void EnterDescription();
  void LeaveForm();
  void ChooseDescription(const QString& name);
  void BeginSystem();
  void ShowNewSystem();
  void GoToMaterial();
  void EnterUnits();
  void LeaveUnits();
  void EnterUnitPrice();
  void DeleteSystem();

  const Kit kit_;
  Form& form_;
  const PricingParts p_;
};

}  // namespace tamo
