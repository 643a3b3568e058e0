#include "windows/formlayouts.h"

// One amount.

namespace tamo {

void LayOutAdjustmentForm(Builder& b) {
  QVBoxLayout& body = b.Window().Body();
  FieldColumn fields(body);
  fields.Add(b.Caption("AdjustmentLabel"), b.Field("Adjustment", 14),
             FixedPrompt(QStringLiteral(
                 "A whole amount; a minus lowers the bid. Press Enter to save and finish.")));
  body.addStretch(1);
  b.Window().firstSize = {480, 128};
}

}  // namespace tamo
