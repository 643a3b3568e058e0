#pragma once

#include "common/kit.h"
#include "pricing/laborprice.h"
#include "pricing/reportrefresh.h"

namespace tamo {

// The twelve markups: fields in a ring, the file rewritten at each Enter.
class MarkupChain {
 public:
  // All of it outlives this. `systemFrame` is shown while a system is open.
  MarkupChain(const Kit& kit, MarkupControls& controls, MaterialControls& materials,
              Frame& systemFrame, LaborPrice& price, ReportRefresh& refresh);

  int LoadMarkups();  // the error number of the last file that was tried
  void SaveMarkups();
  // The entry of the menu: shows or hides the frame.
  void ToggleFrame();

 private:
  void Store();

  const Kit kit_;
  MarkupControls& c_;
  MaterialControls& materials_;
  Frame& systemFrame_;
  LaborPrice& price_;
  ReportRefresh& refresh_;
};

}  // namespace tamo
