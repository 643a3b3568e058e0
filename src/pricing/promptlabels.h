#pragma once

#include "pricing/directions.h"
#include "pricing/materialcontrols.h"
#include "pricing/prompts.h"
#include "pricing/systemcontrols.h"

namespace tamo {

// The prompts as the form shows them, made of the names in its fields.
class PromptLabels {
 public:
  PromptLabels(SystemControls& system, MaterialControls& material)
      : system_(system), material_(material) {}

  PromptNames Names() const;
  Prompts Now() const;
  void Put(const Prompts& prompts);

  // One change of the wording: Change(&Prompts::AfterUnits).
  void Change(void (Prompts::*change)(const PromptNames&));
  // The wording of the directions in force.
  void SetUpoUpm(const Directions& directions);

 private:
  SystemControls& system_;
  MaterialControls& material_;
};

}  // namespace tamo
