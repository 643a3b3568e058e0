#include "reports/figuretext.h"

#include <algorithm>
#include <cmath>

#include "common/numbers.h"
#include "reports/rollup.h"

namespace tamo {

FigureText::FigureText(double whole, bool point) {
  if (!(std::abs(whole) < 1e15)) {
    long_ = point ? tamo::WithPoint(whole) : NumberText(whole);
    return;
  }
  quint64 rest = static_cast<quint64>(std::abs(whole));
  const auto put = [this](char16_t c) { buffer_[--from_] = c; };
  int digits = 0;
  while (rest != 0 || digits == 0) {
    put(static_cast<char16_t>(u'0' + rest % 10));
    rest /= 10;
    if (++digits == 2 && point) put(u'.');
  }
  // The sign counts as one of the two characters that stand behind the point, as in -5: ".-5".
  if (whole < 0 && point && digits == 1) {
    put(u'-');
    put(u'.');
  } else {
    if (point && digits == 1) {
      put(u'0');
      put(u'.');
    }
    if (whole < 0) put(u'-');
  }
}

FigureText FigureText::Money(double dollars) {
  if (dollars != 0 && std::abs(dollars) < 1e13 && dollars == std::floor(dollars))
    return WithPoint(dollars * 100);
  return FigureText(MakeMoney(NumberText(dollars)));
}

double FigureText::ReadWithPoint(double hundredths) {
  if (std::abs(hundredths) < 1e15 && (hundredths >= 0 || hundredths <= -10))
    return hundredths / 100;
  return Value(WithPoint(hundredths).View());
}

QStringView BlankView(qsizetype count) {
  static const QString blanks(128, QLatin1Char(' '));
  return QStringView(blanks).first(std::clamp<qsizetype>(count, 0, blanks.size()));
}

}  // namespace tamo
