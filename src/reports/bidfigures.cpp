#include "reports/bidfigures.h"

#include <algorithm>

#include "common/numbers.h"
#include "records/itemline.h"
#include "reports/merge.h"
#include "reports/systemshelf.h"

namespace tamo {
namespace {

bool SamePrice(const PricedBlock& a, const PricedBlock& b) {
  return a.price == b.price && a.ratio == b.ratio && a.orderTag == b.orderTag &&
         a.manhourRatio == b.manhourRatio && a.laborTag == b.laborTag && a.waste == b.waste &&
         a.wage == b.wage;
}

// Each system is priced as its row of the recap is, one after the other.
class Pricer {
 public:
  Pricer(const ReportSource& source, const Markups& markups) : shelf_(source), markups_(markups) {}

  SystemsAhead& Systems() { return shelf_.Ahead(); }

  SystemFigures Price(const MergedRow& row) {
    shelf_.Load(row.name);
    SystemFigures system;
    system.name = row.name;
    system.units = row.units;
    system.quantityText = row.quantity;
    system.quantity = row.value;
    system.unitPrice = shelf_.UnitPrice();
    system.standing = standing_;
    if (system.unitPrice != 0) {
      system.unitPriceText = shelf_.UnitPriceText();
      system.amount = UnitPricedAmount(system.unitPrice, row.value, row.name);
      return system;
    }
    system.blocks = shelf_.Blocks();
    const LineRollUp line = RollUpLine(system.blocks, row.value, row.name, markups_, standing_);
    system.amount = line.rawLabor + line.rawMaterial;
    system.markups = line.total - system.amount;
    system.manhours = line.manhours;
    system.unitPriceText = UnitPriceText(system.amount / row.value);
    return system;
  }

 private:
  SystemShelf shelf_;
  MarkupFactors markups_;
  StandingFigures standing_;
};

void AddItems(const ReportSource& source, const Markups& texts, BidFigures& bid) {
  const MarkupFactors markups(texts);
  for (const QString& item : CountedItems(source)) {
    const double price = ItemPrice(item);
    const double markup = markups.BottomLineSum() * price;
    bid.items.push_back({ItemLine(item).SearchName(), price, markup});
    bid.total = bid.total + price;
    bid.total = bid.total + markup;
  }
}

}  // namespace

double SystemFigures::AmountOf(double other) const {
  if (unitPrice != 0) return UnitPricedAmount(unitPrice, other, name);
  StandingFigures left = standing;
  const LineRollUp line = RollUpLine(blocks, other, name, MarkupFactors(Markups()), left);
  return line.rawLabor + line.rawMaterial;
}

bool SystemFigures::PricedAs(const SystemFigures& other) const {
  return unitPrice == other.unitPrice &&
         std::equal(blocks.begin(), blocks.end(), other.blocks.begin(), other.blocks.end(),
                    SamePrice);
}

BidFigures FiguresOfBid(const ReportSource& source, const Markups& markups, TakeoffVisitor* also) {
  BidFigures bid;
  Pricer pricer(source, markups);
  ForEachRow(source, Calculate(source, &pricer.Systems(), also), [&](const MergedRow& row) {
    if (row.value == 0) return;
    bid.systems.push_back(pricer.Price(row));
    const SystemFigures& system = bid.systems.back();
    bid.total += system.amount + system.markups;
    bid.manhours += system.manhours;
  });
  bid.total = Rounded(bid.total);
  AddItems(source, markups, bid);
  QString adjustment;
  ReadCountedAdjustment(source, adjustment);
  bid.adjustment = Value(adjustment);
  // The recap shows it as number text, which holds 15 digits.
  bid.total = CutTo15Digits(bid.total + bid.adjustment);
  return bid;
}

}  // namespace tamo
