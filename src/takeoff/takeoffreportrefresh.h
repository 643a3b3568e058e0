#pragma once

namespace tamo {

// The open report follows what is entered in the takeoff.
class TakeoffReportRefresh {
 public:
  virtual ~TakeoffReportRefresh() = default;
  // Runs the open report again when AutoCheck is on and Reports is visible; prints nothing.
  virtual void PrintReport() = 0;
};

}  // namespace tamo
