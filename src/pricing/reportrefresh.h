#pragma once

namespace tamo {

// What the price library asks of the reports.
class ReportRefresh {
 public:
  virtual ~ReportRefresh() = default;
  virtual void PrintReport() = 0;              // an open report follows a saved price, when set to
  virtual void DisableProjectFileEntry() = 0;  // MakeProjectFile of the reports can't be chosen
};

}  // namespace tamo
