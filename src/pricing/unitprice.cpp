#include "pricing/unitprice.h"

#include <cmath>
#include <initializer_list>

#include "common/numbers.h"
#include "records/materialblock.h"

namespace tamo {
namespace {

// The adjustment of a base: added and left in, each step cut.
double Adjusted(double number) {
  number = CutTo15Digits(number + 0.0005);
  number = CutTo15Digits(number * 1000);
  return CutTo15Digits(number / 1000);
}

// `running` with each factor of `base` added in turn.
double Loaded(double running, double base, std::initializer_list<double> factors) {
  for (const double factor : factors) running = CutTo15Digits(running + factor * base);
  return running;
}

class Sum {
 public:
  explicit Sum(const Markups& m)
      : moh_(Value(m.MOH)),
        mtx_(Value(m.MTX)),
        mmu_(Value(m.MMU)),
        loh_(Value(m.LOH)),
        ltx_(Value(m.LTX)),
        lmu_(Value(m.LMU)),
        mioh_(Value(m.MIOH)),
        mitx_(Value(m.MITX)),
        mimu_(Value(m.MIMU)) {}

  void Add(const MaterialBlock& block) {
    if (block.upoTag == QLatin1String(kUpo))
      running_ = CutTo15Digits(Value(block.price) / Value(block.upo));
    if (block.upoTag == QLatin1String(kOpu))
      running_ = CutTo15Digits(Value(block.price) * Value(block.upo));
    const double base = Adjusted(running_);
    const double material =
        Loaded(base, base, {Value(block.waste) / 100, moh_, mtx_, mmu_, mioh_, mitx_, mimu_});
    running_ = material;
    if (block.mnhrTag == QLatin1String(kUpm))
      running_ = CutTo15Digits(Value(block.wageRate) / Value(block.mnhrPO));
    if (block.mnhrTag == QLatin1String(kMpu))
      running_ = CutTo15Digits(Value(block.wageRate) * Value(block.mnhrPO));
    const double labor = Adjusted(running_);
    running_ = Loaded(labor, labor, {loh_, ltx_, lmu_, mioh_, mitx_, mimu_});
    total_ = total_ + material + running_;
  }

  double Total() const { return total_; }

 private:
  double moh_, mtx_, mmu_, loh_, ltx_, lmu_, mioh_, mitx_, mimu_;
  double running_ = 0;
  double total_ = 0;
};

}  // namespace

EstimatedPrice EstimateUnitPrice(const QStringList& system, const Markups& markups) {
  EstimatedPrice price;
  price.text = QStringLiteral("0");
  Sum sum(markups);
  for (qsizetype row = 0; row < system.size(); row += kBlockRows) {
    const MaterialBlock block = MaterialBlock::At(system, row);
    const bool noRatio = block.upoTag == QLatin1String(kUpo) && Value(block.upo) == 0;
    const bool noLabor = block.mnhrTag == QLatin1String(kUpm) && Value(block.mnhrPO) == 0;
    if (noRatio || noLabor) {
      price.stoppedAt = static_cast<int>(row / kBlockRows);
      price.labor = !noRatio;
      return price;
    }
    sum.Add(block);
    price.text = NumberText(sum.Total());
  }
  return price;
}

QString PriceFormat::MakeMoney(const QString& text) {
  const double value = Value(text);
  if (value == 0) return QStringLiteral("0.00");
  QString cents = NumberText(std::floor(value * 100 + 0.005));
  while (cents.size() < 2) cents.prepend(QLatin1Char('0'));
  return cents.chopped(2) + QLatin1Char('.') + cents.right(2);
}

double ActualProfit(const Markups& markups) {
  return Divided(Value(markups.MOH + markups.MTX + markups.MMU), Value(markups.MMU),
                 QStringLiteral("The profit can't be made: the material markup is 0. Enter a "
                                "material markup."));
}

}  // namespace tamo
