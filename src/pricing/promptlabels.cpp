#include "pricing/promptlabels.h"

namespace tamo {

PromptNames PromptLabels::Names() const {
  return {system_.Units.Text(), material_.OrderUnits.Text(), system_.Description.Text(),
          material_.Material.Text()};
}

Prompts PromptLabels::Now() const {
  return {material_.LabelPrice.Caption(), material_.LabelUPO.Caption(), material_.Label5.Caption(),
          material_.LabelMnhr.Caption(),  material_.Label8.Caption(),   material_.UPO.Hover(),
          material_.MnhrPO.Hover()};
}

void PromptLabels::Put(const Prompts& prompts) {
  material_.LabelPrice.SetCaption(prompts.labelPrice);
  material_.LabelUPO.SetCaption(prompts.labelUPO);
  material_.Label5.SetCaption(prompts.label5);
  material_.LabelMnhr.SetCaption(prompts.labelMnhr);
  material_.Label8.SetCaption(prompts.label8);
  material_.UPO.SetHover(prompts.hoverUPO);
  material_.MnhrPO.SetHover(prompts.hoverMnhrPO);
}

void PromptLabels::Change(void (Prompts::*change)(const PromptNames&)) {
  Prompts prompts = Now();
  (prompts.*change)(Names());
  Put(prompts);
}

void PromptLabels::SetUpoUpm(const Directions& directions) {
  Prompts prompts = Now();
  prompts.SetUpoUpm(Names(), directions.Ratio(), directions.Labor());
  Put(prompts);
}

}  // namespace tamo
