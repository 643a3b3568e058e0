#include "reports/comparetable.h"

#include "common/numbers.h"
#include "reports/comparelines.h"

namespace tamo {
namespace {

double Dollars(qint64 cents) {
  return static_cast<double>(cents) / 100;
}

TableCell DollarsIf(bool there, qint64 cents) {
  return there ? TableCell(Dollars(cents)) : TableCell();
}

TableCell QuantityOf(const SystemFigures* system) {
  return system != nullptr ? TableCell(system->quantity) : TableCell();
}

TableCell AmountOf(const SystemFigures* system) {
  return system != nullptr ? TableCell(Dollars(CentsOf(system->amount))) : TableCell();
}

}  // namespace

CompareTable::CompareTable(TableSink& sink) : sink_(sink) {
  sink_.Begin({{QStringLiteral("What"), ColumnKind::Text, 14},
               {QStringLiteral("Name"), ColumnKind::Text},
               {QStringLiteral("Change"), ColumnKind::Text, 20},
               {QStringLiteral("Unit"), ColumnKind::Text, 8},
               {QStringLiteral("Quantity then"), ColumnKind::Number},
               {QStringLiteral("Quantity now"), ColumnKind::Number},
               {QStringLiteral("Amount then"), ColumnKind::Money},
               {QStringLiteral("Amount now"), ColumnKind::Money},
               {QStringLiteral("Difference"), ColumnKind::Money},
               {QStringLiteral("By quantity"), ColumnKind::Money},
               {QStringLiteral("By price"), ColumnKind::Money},
               {QStringLiteral("Lines"), ColumnKind::Number}});
}

void CompareTable::System(const SystemChange& change) {
  const QString kind = KindText(change.kind);
  const QString& unit = change.now != nullptr ? change.now->units : change.then->units;
  const bool both = change.kind == SystemChange::Kind::Both;
  sink_.Add({u"System", change.Name(), kind, unit, QuantityOf(change.then), QuantityOf(change.now),
             AmountOf(change.then), AmountOf(change.now), Dollars(change.difference),
             DollarsIf(both, change.byQuantity), DollarsIf(both, change.byPrice)});
}

void CompareTable::Figure(QStringView kind, const FigureChange& change, RowWeight weight) {
  sink_.Add({kind,
             change.name,
             {},
             {},
             {},
             {},
             DollarsIf(change.inThen, change.then),
             DollarsIf(change.inNow, change.now),
             Dollars(change.Difference())},
            weight);
}

void CompareTable::Figures(const BidChanges& changes) {
  double same = 0;
  for (const SystemChange& change : changes.systems) {
    if (change.kind == SystemChange::Kind::Same) {
      same += Dollars(CentsOf(change.now->amount));
    } else {
      System(change);
    }
  }
  if (same != 0) sink_.Add({u"Systems", u"as before", {}, {}, {}, {}, same, same, 0.0});
  for (const FigureChange& item : changes.items) Figure(u"Item", item);
  Figure(u"Markups", changes.systemMarkups);
  Figure(u"Markups", changes.itemMarkups);
  Figure(u"Adjustment", changes.adjustment);
  if (changes.remainder != 0)
    sink_.Add({u"Rounding", u"of the total", {}, {}, {}, {}, {}, {}, Dollars(changes.remainder)});
  Figure(u"Total", changes.total, RowWeight::Total);
}

void CompareTable::Manhours(double then, double now) {
  sink_.Add({u"Manhours", {}, {}, u"hours", Raised(then), Raised(now)});
}

void CompareTable::Sheets(QStringView kind, const std::vector<SheetChange>& sheets) {
  for (const SheetChange& sheet : sheets) {
    const QStringView change = sheet.kind == SheetChange::Kind::Added     ? u"added"
                               : sheet.kind == SheetChange::Kind::Removed ? u"removed"
                                                                          : u"changed";
    sink_.Add({kind,
               sheet.name,
               change,
               {},
               {},
               {},
               {},
               {},
               {},
               {},
               {},
               static_cast<double>(sheet.lines)});
  }
}

}  // namespace tamo
