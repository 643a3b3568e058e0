#include "plans/measuring.h"

#include <algorithm>
#include <cmath>

#include "common/columns.h"
#include "common/numbers.h"
#include "plans/mark.h"

namespace tamo {

MeasuredLine ScaledLine(double paperLength, double plan, const ScaleTexts& scale,
                        const QString& unitName, const QString& label) {
  MeasuredLine line{false, paperLength, label};
  const double feet = Value(scale.scale2);
  if (TrimmedBlanks(scale.scale1).isEmpty() || feet == 0) return line;
  line.scaled = true;
  if (plan == 0) return line;
  line.length = paperLength / (plan / feet);
  if (unitName == QLatin1String("feet"))
    line.label = QStringLiteral("feet @ %1\"=%2'").arg(scale.scale1, scale.scale2);
  if (scale.text5.contains(QLatin1String("cm")))
    line.label = QStringLiteral("feet @ %1cm:%2 feet").arg(scale.scale1, scale.scale2);
  if (unitName == QLatin1String("mm")) line.label = QStringLiteral("millimeter");
  return line;
}

MeasuredArea ScaledArea(double paperArea, double plan, const ScaleTexts& scale,
                        const QString& unitName, const QString& label) {
  const double feet = Value(scale.scale2);
  if (plan == 0 || feet == 0) return {false, paperArea, label};
  const double side = feet / plan;
  const bool inches = unitName == QLatin1String("feet");
  const QString at = inches ? QStringLiteral("sq ft @ %1\"=%2'")
                            : QStringLiteral("sq ft @ %1") + unitName + QStringLiteral(":%2 feet");
  return {true, paperArea * side * side, at.arg(scale.scale1, scale.scale2)};
}

QString CheckInWords(double measured, double known) {
  const QString length = LengthText(measured);
  if (known <= 0)
    return QStringLiteral("Measured %1. Type the dimension that the plan states to compare.")
        .arg(length);
  const double off = measured - known;
  if (std::abs(off) < kRight) return QStringLiteral("Measured %1: the scale is right.").arg(length);
  return QStringLiteral("Measured %1: %2 too %3 (%4 per cent). Check the scale.")
      .arg(length, LengthText(std::abs(off)),
           off > 0 ? QStringLiteral("long") : QStringLiteral("short"),
           LengthText(std::abs(off) / known * 100));
}

int ZoomPerCent(double step) {
  return static_cast<int>(std::clamp(Truncated((step + 3) * 10), -1e6, 1e6));
}

}  // namespace tamo
