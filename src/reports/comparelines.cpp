#include "reports/comparelines.h"

#include <algorithm>
#include <cstdlib>

#include "common/columns.h"
#include "common/numbers.h"
#include "reports/compare.h"

namespace tamo {
namespace {

constexpr size_t kMovers = 8;

// Where the columns end.
constexpr int kNameWidth = 33;
constexpr int kThenWidth = 14;
constexpr int kNowWidth = 14;
constexpr int kDifferenceWidth = 15;

const QString kTwo = QStringLiteral("  ");

struct Mover {
  qint64 difference;
  QString line;
};

QString Counted(int count, const char* one, const char* many) {
  return QString::number(count) + QLatin1Char(' ') + QLatin1String(count == 1 ? one : many);
}

QString Underlined(const QString& title) {
  return kTwo + QString(title.size(), QLatin1Char('-'));
}

std::vector<Mover> Movers(const BidChanges& changes) {
  std::vector<Mover> movers;
  for (const SystemChange& system : changes.systems)
    movers.push_back(
        {system.difference, GrownRight(system.Name(), kNameWidth) + kTwo + KindText(system.kind)});
  for (const FigureChange& item : changes.items)
    movers.push_back(
        {item.Difference(), GrownRight(item.name, kNameWidth) + QStringLiteral("  item")});
  for (const FigureChange* figure :
       {&changes.systemMarkups, &changes.itemMarkups, &changes.adjustment})
    movers.push_back({figure->Difference(), figure->name});
  std::erase_if(movers, [](const Mover& mover) { return mover.difference == 0; });
  std::stable_sort(movers.begin(), movers.end(), [](const Mover& a, const Mover& b) {
    return std::abs(a.difference) > std::abs(b.difference);
  });
  return movers;
}

}  // namespace

QString KindText(SystemChange::Kind kind) {
  using Kind = SystemChange::Kind;
  switch (kind) {
    case Kind::Same:
      return {};
    case Kind::Quantity:
      return QStringLiteral("quantity");
    case Kind::Price:
      return QStringLiteral("price");
    case Kind::Both:
      return QStringLiteral("price and quantity");
    case Kind::New:
      return QStringLiteral("new");
    case Kind::Gone:
      return QStringLiteral("gone");
    case Kind::Other:
      return QStringLiteral("what the system before it left standing");
  }
  return {};
}

QString CentsText(qint64 cents) {
  const QString digits = QString::number(std::abs(cents)).rightJustified(3, QLatin1Char('0'));
  return (cents < 0 ? QStringLiteral("-") : QString()) + digits.chopped(2) + QLatin1Char('.') +
         digits.right(2);
}

QString SignedCentsText(qint64 cents) {
  return (cents > 0 ? QStringLiteral("+") : QString()) + CentsText(cents);
}

void CompareLines::Head(const QString& project, const QString& then, const QString& now) {
  lines_ += QLatin1String(kCompareTitle);
  lines_ += QString();
  lines_ += kTwo + project;
  lines_ += QStringLiteral("  Then:  ") + then;
  lines_ += QStringLiteral("  Now:   ") + now;
  lines_ += QString();
}

void CompareLines::Total(const FigureChange& total) {
  lines_ += GrownRight(kTwo, kNameWidth) + GrownLeft(QStringLiteral("Then"), kThenWidth) +
            GrownLeft(QStringLiteral("Now"), kNowWidth) +
            GrownLeft(QStringLiteral("Difference"), kDifferenceWidth);
  Figure(total);
  lines_ += QString();
}

void CompareLines::MovedMost(const BidChanges& changes) {
  const std::vector<Mover> movers = Movers(changes);
  if (movers.empty()) {
    lines_ += QStringLiteral("  Nothing in these two moves the total.");
    lines_ += QString();
    return;
  }
  const QString title = QStringLiteral("What moved the total most");
  lines_ += kTwo + title;
  lines_ += Underlined(title);
  for (size_t i = 0; i < std::min(kMovers, movers.size()); ++i)
    lines_ +=
        GrownLeft(SignedCentsText(movers[i].difference), kDifferenceWidth) + kTwo + movers[i].line;
  lines_ += QString();
}

void CompareLines::Systems(const std::vector<SystemChange>& systems) {
  const QString title = QStringLiteral("Systems: labor and material, before markups");
  lines_ += kTwo + title;
  lines_ += Underlined(title);
  lines_ += GrownLeft(QStringLiteral("Quantity"), 27) +
            GrownLeft(QStringLiteral("Unit Price"), 20) + GrownLeft(QStringLiteral("Amount"), 14) +
            GrownLeft(QStringLiteral("Difference"), kDifferenceWidth);
  int same = 0;
  qint64 sum = 0;
  for (const SystemChange& change : systems) {
    if (change.kind == SystemChange::Kind::Same) {
      ++same;
      sum += CentsOf(change.now->amount);
    } else {
      System(change);
    }
  }
  if (same > 0)
    lines_ += kTwo + Counted(same, "system is", "systems are") +
              QStringLiteral(" as before, with an amount of ") + CentsText(sum);
  lines_ += QString();
}

QString CompareLines::SystemSide(const char* label, const SystemFigures* system) {
  const QString head = QStringLiteral("    ") + GrownRight(QLatin1String(label), 6);
  if (system == nullptr) return head + GrownLeft(QStringLiteral("none"), 17);
  return head + GrownLeft(system->quantityText, 17) + QLatin1Char(' ') +
         GrownRight(system->units, 6) + GrownLeft(system->unitPriceText, 13) +
         GrownLeft(CentsText(CentsOf(system->amount)), 14);
}

void CompareLines::System(const SystemChange& change) {
  lines_ += kTwo + GrownRight(change.Name(), kNameWidth) + kTwo + KindText(change.kind);
  lines_ += SystemSide("then", change.then);
  lines_ += GrownRight(SystemSide("now", change.now), 61) +
            GrownLeft(SignedCentsText(change.difference), kDifferenceWidth);
  if (change.kind == SystemChange::Kind::Both)
    lines_ += QStringLiteral("    %1 by quantity, %2 by price")
                  .arg(SignedCentsText(change.byQuantity), SignedCentsText(change.byPrice));
}

void CompareLines::Figures(const QString& title, const std::vector<FigureChange>& figures) {
  if (figures.empty()) return;
  lines_ += kTwo + title;
  lines_ += Underlined(title);
  for (const FigureChange& figure : figures) Figure(figure);
  lines_ += QString();
}

void CompareLines::Figure(const FigureChange& figure) {
  const QString none = QStringLiteral("none");
  lines_ += GrownRight(kTwo + figure.name, kNameWidth) +
            GrownLeft(figure.inThen ? CentsText(figure.then) : none, kThenWidth) +
            GrownLeft(figure.inNow ? CentsText(figure.now) : none, kNowWidth) +
            GrownLeft(SignedCentsText(figure.Difference()), kDifferenceWidth);
}

void CompareLines::Manhours(double then, double now) {
  const double before = Raised(then);
  const double after = Raised(now);
  const QString sign = after > before ? QStringLiteral("+") : QString();
  lines_ += GrownRight(QStringLiteral("  Manhours"), kNameWidth) +
            GrownLeft(NumberText(before), kThenWidth) + GrownLeft(NumberText(after), kNowWidth) +
            GrownLeft(sign + NumberText(after - before), kDifferenceWidth);
  lines_ += QString();
}

void CompareLines::Sum(const BidChanges& changes) {
  if (changes.remainder == 0) {
    lines_ += QStringLiteral("  These differences add up to that of the total: %1.")
                  .arg(SignedCentsText(changes.total.Difference()));
  } else {
    lines_ += QStringLiteral("  These differences add up to %1; %2 more is rounding of the total.")
                  .arg(SignedCentsText(changes.total.Difference() - changes.remainder),
                       SignedCentsText(changes.remainder));
  }
  lines_ += QString();
}

void CompareLines::Sheets(const QString& what, const std::vector<SheetChange>& sheets) {
  using Kind = SheetChange::Kind;
  const auto count = [&](Kind kind) {
    return static_cast<int>(std::count_if(sheets.begin(), sheets.end(),
                                          [kind](const SheetChange& s) { return s.kind == kind; }));
  };
  const QString title = QStringLiteral("%1: %2 added, %3 removed, %4 changed")
                            .arg(what)
                            .arg(count(Kind::Added))
                            .arg(count(Kind::Removed))
                            .arg(count(Kind::Changed));
  lines_ += kTwo + title;
  if (!sheets.empty()) lines_ += Underlined(title);
  for (const SheetChange& sheet : sheets) {
    const char* kind = sheet.kind == Kind::Added     ? "added"
                       : sheet.kind == Kind::Removed ? "removed"
                                                     : "changed";
    lines_ += QStringLiteral("    ") + GrownRight(QLatin1String(kind), 9) +
              GrownRight(sheet.name, kNameWidth) + kTwo + Counted(sheet.lines, "line", "lines");
  }
  lines_ += QString();
}

}  // namespace tamo
