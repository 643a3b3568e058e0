#include "plans/planrecord.h"

namespace tamo {

bool PlanRecord::Loading() const {
  return shared_.LoadingJobNFO != QLatin1String("False");
}

void PlanRecord::SaveUnlessLoading() {
  if (!Loading()) Save();
}

void PlanRecord::SaveAfterScroll() {
  if (Loading()) return;
  Save();
  shared_.LoadingJobNFO = QStringLiteral("False");
}

void PlanRecord::SaveSuppressed() {
  if (Loading()) return;
  shared_.LoadingJobNFO = QStringLiteral("True");
  Save();
  shared_.LoadingJobNFO = QStringLiteral("False");
}

}  // namespace tamo
