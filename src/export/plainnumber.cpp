#include "common/numbers.h"
#include "export/tablefile.h"

namespace tamo {

QByteArray PlainNumber(double number) {
  QByteArray text = NumberText(number).toLatin1();
  const qsizetype sign = text.startsWith('-') ? 1 : 0;
  if (text.at(sign) == '.') text.insert(sign, '0');
  return text;
}

}  // namespace tamo
