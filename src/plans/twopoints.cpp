#include "plans/twopoints.h"

namespace tamo {

void TwoPoints::Ask() {
  asked_ = 0;
  problem_.clear();
}

void TwoPoints::Leave() {
  asked_ = -1;
}

std::optional<SheetFit> TwoPoints::Take(PagePoint at) {
  constexpr int kLast = 3;
  if (!Asked()) return std::nullopt;
  at_[asked_] = at;
  if (asked_ < kLast) {
    ++asked_;
    return std::nullopt;
  }
  const std::optional<SheetFit> fit = FitByPoints(at_[1], at_[3], at_[0], at_[2]);
  if (!fit) {
    problem_ = QStringLiteral("Two of the points are the same place. ");
    asked_ = 0;
  }
  return fit;
}

QString TwoPoints::Words() const {
  static const char* const asks[] = {
      "Point 1 of 2: press a place on the new sheet that both have, as a corner of the frame.",
      "Point 1 of 2: this is the old sheet; press the same place on it.",
      "Point 2 of 2: the new sheet again; press a second place, far from the first.",
      "Point 2 of 2: the old sheet; press that second place."};
  if (!Asked()) return {};
  return problem_ + QLatin1String(asks[asked_]) +
         QStringLiteral(" Arrows move the cross hair, Space presses, Escape leaves it.");
}

}  // namespace tamo
