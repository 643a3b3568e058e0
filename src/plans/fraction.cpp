#include "plans/fraction.h"

#include <QStringList>

namespace tamo {

namespace {

// Digits with at most one point, no sign, no exponent.
bool PlainNumber(const QString& text, double& value) {
  int points = 0;
  int digits = 0;
  for (const QChar c : text) {
    if (c >= QLatin1Char('0') && c <= QLatin1Char('9')) {
      ++digits;
    } else if (c == QLatin1Char('.')) {
      ++points;
    } else {
      return false;
    }
  }
  if (digits == 0 || digits > 15 || points > 1) return false;
  bool ok = false;
  value = text.toDouble(&ok);
  return ok;
}

bool PlainFraction(const QString& text, double& value) {
  const QStringList parts = text.split(QLatin1Char('/'));
  double over = 0;
  double under = 0;
  if (parts.size() != 2) return false;
  if (!PlainNumber(parts[0].trimmed(), over)) return false;
  if (!PlainNumber(parts[1].trimmed(), under)) return false;
  if (under == 0) return false;
  value = over / under;
  return true;
}

bool Evaluate(const QString& text, double& value) {
  if (PlainNumber(text, value) || PlainFraction(text, value)) return true;
  const qsizetype blank = text.indexOf(QLatin1Char(' '));
  if (blank < 0) return false;
  double whole = 0;
  if (!PlainNumber(text.left(blank), whole)) return false;
  if (!PlainFraction(text.mid(blank + 1).trimmed(), value)) return false;
  value += whole;
  return true;
}

}  // namespace

double FractionValue(const QString& text, bool* ok) {
  double value = 0;
  const bool good = Evaluate(text.trimmed(), value);
  if (ok) *ok = good;
  return good ? value : 0;
}

}  // namespace tamo
