#include "pricing/markupcontrols.h"

namespace tamo {

MarkupControls::MarkupControls(Form& owner) : ControlGroup(owner) {
  PutAllInto(MarkupsFrame,
             {&LabelMOH, &LabelMTX, &LabelMMU, &LabelLOH, &LabelLTX, &LabelLMU, &LabelBLOH,
              &LabelBLTX, &LabelBLMU, &LabelMIOH, &LabelMITX, &LabelMIMU, &ExitMarkups});
  for (TextField* field : MarkupRing) field->PutInto(MarkupsFrame);
  MarkupsFrame.Hide();
}

Markups MarkupControls::MarkupTexts() const {
  Markups markups;
  const auto texts = markups.InFileOrder();
  for (size_t i = 0; i < texts.size(); ++i) *texts[i] = MarkupRing[i]->Text();
  return markups;
}

void MarkupControls::PutMarkupTexts(Markups markups) {
  const auto texts = markups.InFileOrder();
  for (size_t i = 0; i < texts.size(); ++i) MarkupRing[i]->SetText(*texts[i]);
}

}  // namespace tamo
