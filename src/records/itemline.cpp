#include "records/itemline.h"

#include "common/columns.h"
#include "common/failure.h"
#include "common/numbers.h"

namespace tamo {

ItemLine ItemLine::Of(const QString& name, const QString& price) {
  constexpr int kWidth = 30;
  if (name.size() + price.size() > kWidth) {
    throw RunTimeFailure(
        kInvalidArgument,
        QStringLiteral("\"%1\" and its price %2 are together %3 characters long, and an item has "
                       "room for %4. Nothing was stored; shorten the name or correct the price.")
            .arg(name.left(60), price.left(60))
            .arg(name.size() + price.size())
            .arg(kWidth));
  }
  return ItemLine(name + PaddedLeft(price, kWidth - name.size()));
}

QString ItemLine::Name() const {
  return TrimmedBlanks(Columns(text_, 1, 19));
}
QString ItemLine::Price() const {
  return TrimmedBlanks(From(text_, 20));
}
QString ItemLine::SearchName() const {
  return TrimmedBlanks(Columns(text_, 1, 20));
}

double ItemPrice(const QString& item) {
  return Value(QStringView(item).last(qMin<qsizetype>(12, item.size())));
}

}  // namespace tamo
