#include "pricing/materialfigures.h"

#include <cmath>

#include "common/numbers.h"
#include "records/materialblock.h"

namespace tamo {
namespace {

// Three figures that count; more say nothing at a glance.
QString ShortQuantity(double quantity) {
  const int whole = quantity >= 1 ? static_cast<int>(std::log10(quantity)) + 1 : 0;
  QString text = QString::number(quantity, 'f', std::max(0, 3 - whole));
  if (quantity > 0 && quantity < 0.001) text = QStringLiteral("< .001");
  return text;
}

// By how much the number in `ratio` goes into one takeoff unit; 0 when it says nothing.
double Share(const QString& ratio, const QString& tag, const char* divides, const char* times) {
  const double number = Value(ratio);
  if (tag == QLatin1String(divides)) return number == 0 ? 0 : 1 / number;
  return tag == QLatin1String(times) ? number : 0;
}

}  // namespace

MaterialFigures FiguresOf(const QStringList& system, int at) {
  const MaterialBlock block = MaterialBlock::At(system, static_cast<qsizetype>(at) * kBlockRows);
  MaterialFigures figures;
  if (block.material.isEmpty()) return figures;
  const double quantity = Share(block.upo, block.upoTag, kUpo, kOpu);
  const double hours = Share(block.mnhrPO, block.mnhrTag, kUpm, kMpu);
  if (quantity > 0) {
    figures.quantity = ShortQuantity(quantity) + QLatin1Char(' ') + block.orderUnits;
    figures.cost = QString::number(Value(block.price) * quantity, 'f', 2);
  }
  if (hours > 0) figures.labor = QString::number(Value(block.wageRate) * hours, 'f', 2);
  return figures;
}

}  // namespace tamo
