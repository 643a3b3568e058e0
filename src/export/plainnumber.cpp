#include <cmath>

#include "common/numbers.h"
#include "export/tablefile.h"

namespace tamo {

QByteArray PlainNumber(double number) {
  // Most figures are whole.
  if (std::abs(number) < 1e15 && number == std::trunc(number))
    return QByteArray::number(static_cast<qint64>(number));
  QByteArray text = NumberText(number).toLatin1();
  const qsizetype sign = text.startsWith('-') ? 1 : 0;
  if (text.at(sign) == '.') text.insert(sign, '0');
  return text;
}

}  // namespace tamo
