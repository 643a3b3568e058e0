#pragma once

namespace tamo {

// What the reports need of the two shells.
class ReportsShell {
 public:
  virtual ~ReportsShell() = default;
  virtual void ShowMainForm() = 0;
  virtual void HideMainForm() = 0;
  virtual void ShowReports() = 0;  // the form of the reports, in front, owned by the plans' form
};

}  // namespace tamo
