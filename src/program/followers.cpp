#include "program/followers.h"

namespace tamo {

void RefreshReport(ReportsForm& reports) {
  reports.GetDesk().Dispatch([&reports] { reports.Refresh(); });
}

}  // namespace tamo
