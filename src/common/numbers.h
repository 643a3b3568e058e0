#pragma once

#include <QString>
#include <QStringView>
#include <cmath>

namespace tamo {

// The number that a text begins with: leading blanks are skipped, then a sign (plus or minus),
// digits and one point are read as far as they go. No exponent, no thousands comma, no hexadecimal:
// "1e3" is 1, "1,500.0" is 1. A text with no number is 0. A number beyond what a double holds
// raises a RunTimeFailure (kOverflow).
double Value(QStringView text);

// The same, but a comma that stands between a digit and exactly three digits is skipped, so that a
// measured "1,500.0" counts as 1500. Only the takeoff's number fields read their text this way.
double GroupedValue(QStringView text);

// The shortest plain decimal text of at most 15 significant digits: no exponent, no zero before the
// point (.5, -.5), no zeros at the end, zeros after the 15 digits of a larger number. Infinity and
// not-a-number raise a RunTimeFailure (kOverflow): they are never printed.
QString NumberText(double number);

// NumberText with one blank before a number that is not negative: the place of its sign.
QString SignedNumberText(double number);

// `number` after a trip through NumberText: cut to 15 significant digits.
double CutTo15Digits(double number);

// The largest whole number that is not above `number`; also below zero. As std::floor, which calls
// into a library on the processors that the program is built for: BM_Truncated beside BM_Floor.
inline double Truncated(double number) {
  if (!(std::abs(number) < 1e15)) return std::floor(number);
  const auto whole = static_cast<double>(static_cast<qint64>(number));
  return whole > number ? whole - 1 : whole;
}
// Dollars.
inline double Rounded(double number) {
  return Truncated(number + 0.5);
}
// What must be ordered whole.
inline double Raised(double number) {
  return Truncated(number + 0.9);
}

// dividend / divisor; a divisor of 0 raises a RunTimeFailure (kDivisionByZero) with `what`, a plain
// sentence that names the system, the material or the line and what to do.
double Divided(double dividend, double divisor, const QString& what);

}  // namespace tamo
