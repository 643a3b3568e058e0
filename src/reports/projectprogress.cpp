#include "reports/projectprogress.h"

#include <QStringView>
#include <cmath>

#include "common/numbers.h"

namespace tamo {
namespace {

QString Dollars(double figure) {
  return NumberText(figure) + QStringLiteral(".00");
}

// `part` of `whole` in per cent, cut to `decimals`; "0.00" for none of it, and for a part of
// nothing.
QString Percentage(double part, double whole, int decimals) {
  const double percentage = part * 100 / whole;
  if (whole == 0 || percentage == 0 || !std::isfinite(percentage)) return QStringLiteral("0.00");
  QString text = NumberText(Truncated(percentage * std::pow(10, decimals)));
  while (text.size() < decimals) text.prepend(QLatin1Char('0'));
  text.insert(text.size() - decimals, QLatin1Char('.'));
  return Value(text) == 0 ? QStringLiteral("0.00") : text;
}

}  // namespace

void ProjectProgress::Begin(double total, double labor, double material) {
  ttText = Dollars(total);
  tlText = Dollars(labor);
  tmText = Dollars(material);
  tcText = lcText = mcText = QStringLiteral("0.00");
  completed = 0;
}

void ProjectProgress::Tick(const QString& line, bool ticked) {
  double value = Value(QStringView(line).last(qMin<qsizetype>(11, line.size())));
  if (!ticked) value = -value;
  completed += value;
  tcText = Dollars(completed);
  pcText = Percentage(completed, Value(ttText), ticked ? 2 : 3);
  if (line.startsWith(QLatin1String("     Labor"))) {
    const double labor = Value(lcText) + value;
    lcText = Dollars(labor);
    lpText = Percentage(labor, Value(tlText), 2);
  } else {
    const double material = Value(mcText) + value;
    mcText = Dollars(material);
    mpText = Percentage(material, Value(tmText), 2);
  }
}

}  // namespace tamo
