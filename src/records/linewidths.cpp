#include "records/linewidths.h"

#include "common/failure.h"

namespace tamo {

const QString& Fitting(const QString& text, qsizetype width, const QString& what,
                       const QString& where) {
  if (text.size() <= width) return text;
  const QString owner = where.isEmpty() ? QString() : QStringLiteral(" of \"%1\"").arg(where);
  throw RunTimeFailure(
      kInvalidArgument,
      QStringLiteral("The %1 \"%2\"%3 is %4 characters long, and a line has room for %5. Nothing "
                     "was stored; correct the entry.")
          .arg(what, text.left(60), owner)
          .arg(text.size())
          .arg(width));
}

}  // namespace tamo
