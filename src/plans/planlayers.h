#pragma once

#include <map>
#include <vector>

#include "common/kit.h"
#include "plans/ostcontrols.h"
#include "plans/pdfdraw.h"
#include "plans/sheetbook.h"

namespace tamo {

// The layers of the plan as a list with a box each. Layers of one name, as the sheets of a set
// bring them, are switched together. What is switched stays so as long as the plan is open; the
// plan's file is never changed by it.
class PlanLayers {
 public:
  PlanLayers(const Kit& kit, OstControls& form, PdfDraw& viewer, SheetBook& book);

  void Toggle();
  void BookNews();
  std::function<void(const QString& words)> say;

 private:
  void Close();
  void Fill();
  void Switch(int row);
  void ShowAll();
  QString Words() const;

  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
  SheetBook& book_;
  std::vector<std::vector<size_t>> rows_;  // the layers of each row
};

}  // namespace tamo
