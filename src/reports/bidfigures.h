#pragma once

#include <QString>
#include <vector>

#include "records/markupsfile.h"
#include "reports/reportsource.h"
#include "reports/rollup.h"
#include "reports/takeoffwalk.h"

namespace tamo {

// One system of a bid in figures: what its row of the recap is made of. Dollars are whole.
struct SystemFigures {
  QString name;
  QString units;
  QString quantityText;
  double quantity = 0;
  // What it is priced with: a unit price, or, when that is 0, its materials, and what the materials
  // before them left standing.
  double unitPrice = 0;
  QString unitPriceText;
  std::vector<PricedBlock> blocks;
  StandingFigures standing;

  double amount = 0;    // labor and material, or quantity times unit price; before markups
  double markups = 0;   // on labor and material
  double manhours = 0;  // none for a unit price

  // What `other` of it would cost before markups.
  double AmountOf(double other) const;
  // Whether another quantity alone can make another amount.
  bool PricedAs(const SystemFigures& other) const;
};

struct ItemFigures {
  QString name;
  double price = 0;
  double markup = 0;
};

// A bid in figures; `total` is the one that the recap shows.
struct BidFigures {
  std::vector<SystemFigures> systems;  // in the order of the recap, without those of no quantity
  std::vector<ItemFigures> items;
  double adjustment = 0;
  double manhours = 0;
  double total = 0;
};

// `also` sees every line of the takeoff. Fails where the recap fails.
BidFigures FiguresOfBid(const ReportSource& source, const Markups& markups, TakeoffVisitor* also);

}  // namespace tamo
