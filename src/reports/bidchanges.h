#pragma once

#include <QString>
#include <vector>

#include "reports/bidfigures.h"

namespace tamo {

// Money in whole cents, so that differences add up to the cent. Raises a RunTimeFailure for more
// than any bid.
qint64 CentsOf(double dollars);

// One system in both bids, or in one of them.
struct SystemChange {
  enum class Kind { Same, Quantity, Price, Both, New, Gone, Other };
  Kind kind = Kind::Same;
  const SystemFigures* then = nullptr;  // null when it is new
  const SystemFigures* now = nullptr;   // null when it is gone
  qint64 difference = 0;                // cents, before markups, as all below
  // Of a system with another price and another quantity: what the other quantity would cost at the
  // old price, and the rest.
  qint64 byQuantity = 0;
  qint64 byPrice = 0;

  const QString& Name() const { return now != nullptr ? now->name : then->name; }
};

// A figure of both bids in cents.
struct FigureChange {
  QString name;
  qint64 then = 0;
  qint64 now = 0;
  bool inThen = true;
  bool inNow = true;
  qint64 Difference() const { return now - then; }
};

// What lies between two bids. The differences of systems, items, both markups and the adjustment
// and the remainder sum exactly to that of the total.
struct BidChanges {
  std::vector<SystemChange> systems;  // in the order of the bid as it is now, then those gone
  std::vector<FigureChange> items;
  FigureChange systemMarkups;
  FigureChange itemMarkups;
  FigureChange adjustment;
  FigureChange total;
  qint64 remainder = 0;  // of fractions of a cent
};

// `then` and `now` outlive the result.
BidChanges ChangesBetween(const BidFigures& then, const BidFigures& now);

}  // namespace tamo
