#pragma once

#include "common/kit.h"
#include "pricing/laborprice.h"
#include "pricing/reportrefresh.h"

namespace tamo {

// The twelve markups: fields in a ring, the file rewritten at each Enter.
class MarkupChain {
 public:
  // All of it outlives this.
  MarkupChain(const Kit& kit, MarkupControls& controls, MaterialControls& materials,
              SystemControls& system, LaborPrice& price, ReportRefresh& refresh);

  int LoadMarkups();  // the error number of the last file that was tried
  void SaveMarkups();
  // The entry of the menu: shows or hides the frame.
  void ToggleFrame();

 private:
  void Store();
  void GoBack();

  const Kit kit_;
  MarkupControls& c_;
  MaterialControls& materials_;
  SystemControls& system_;
  LaborPrice& price_;
  ReportRefresh& refresh_;
};

}  // namespace tamo
