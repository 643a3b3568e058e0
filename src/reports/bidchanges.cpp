#include "reports/bidchanges.h"

#include <QHash>
#include <cmath>

#include "common/failure.h"

namespace tamo {
namespace {

using Kind = SystemChange::Kind;

constexpr double kMostDollars = 1e15;

SystemChange Changed(const SystemFigures& then, const SystemFigures& now) {
  SystemChange change;
  change.then = &then;
  change.now = &now;
  change.difference = CentsOf(now.amount) - CentsOf(then.amount);
  const bool quantity = then.quantity != now.quantity;
  const bool price = !then.PricedAs(now);
  if (quantity && price) {
    change.kind = Kind::Both;
    change.byQuantity = CentsOf(then.AmountOf(now.quantity)) - CentsOf(then.amount);
    change.byPrice = change.difference - change.byQuantity;
  } else if (quantity || price) {
    change.kind = quantity ? Kind::Quantity : Kind::Price;
  } else if (change.difference != 0) {
    change.kind = Kind::Other;
  }
  return change;
}

std::vector<SystemChange> SystemChanges(const BidFigures& then, const BidFigures& now) {
  QHash<QString, const SystemFigures*> before;
  for (const SystemFigures& system : then.systems) before.insert(system.name, &system);
  std::vector<SystemChange> changes;
  for (const SystemFigures& system : now.systems) {
    if (const SystemFigures* former = before.take(system.name)) {
      changes.push_back(Changed(*former, system));
    } else {
      changes.push_back({Kind::New, nullptr, &system, CentsOf(system.amount)});
    }
  }
  for (const SystemFigures& system : then.systems) {
    if (before.contains(system.name))
      changes.push_back({Kind::Gone, &system, nullptr, -CentsOf(system.amount)});
  }
  return changes;
}

// Of several items of one name the first goes with the first.
std::vector<FigureChange> ItemChanges(const BidFigures& then, const BidFigures& now) {
  std::vector<FigureChange> changes;
  std::vector<bool> taken(then.items.size(), false);
  for (const ItemFigures& item : now.items) {
    FigureChange change{item.name, 0, CentsOf(item.price), false, true};
    for (size_t i = 0; i < taken.size(); ++i) {
      if (taken[i] || then.items[i].name != item.name) continue;
      taken[i] = change.inThen = true;
      change.then = CentsOf(then.items[i].price);
      break;
    }
    changes.push_back(change);
  }
  for (size_t i = 0; i < taken.size(); ++i) {
    if (!taken[i])
      changes.push_back({then.items[i].name, CentsOf(then.items[i].price), 0, true, false});
  }
  return changes;
}

double SystemMarkups(const BidFigures& bid) {
  double sum = 0;
  for (const SystemFigures& system : bid.systems) sum += system.markups;
  return sum;
}

double ItemMarkups(const BidFigures& bid) {
  double sum = 0;
  for (const ItemFigures& item : bid.items) sum += item.markup;
  return sum;
}

FigureChange Figure(const char* name, double then, double now) {
  return {QLatin1String(name), CentsOf(then), CentsOf(now)};
}

}  // namespace

qint64 CentsOf(double dollars) {
  if (!(std::abs(dollars) < kMostDollars)) {
    throw RunTimeFailure(
        kOverflow,
        QStringLiteral("The two bids can't be compared: one of them has figures larger than any "
                       "bid. Look for a quantity or price that was mistyped."));
  }
  return std::llround(dollars * 100);
}

BidChanges ChangesBetween(const BidFigures& then, const BidFigures& now) {
  BidChanges changes;
  changes.systems = SystemChanges(then, now);
  changes.items = ItemChanges(then, now);
  changes.systemMarkups =
      Figure("Markups on labor and material", SystemMarkups(then), SystemMarkups(now));
  changes.itemMarkups = Figure("Markups on items", ItemMarkups(then), ItemMarkups(now));
  changes.adjustment = Figure("Adjustment", then.adjustment, now.adjustment);
  changes.total = Figure("Total", then.total, now.total);
  changes.remainder = changes.total.Difference() - changes.systemMarkups.Difference() -
                      changes.itemMarkups.Difference() - changes.adjustment.Difference();
  for (const SystemChange& system : changes.systems) changes.remainder -= system.difference;
  for (const FigureChange& item : changes.items) changes.remainder -= item.Difference();
  return changes;
}

}  // namespace tamo
