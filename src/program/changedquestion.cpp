#include "program/changedquestion.h"

#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "pricing/unitprice.h"
#include "records/materialfile.h"
#include "records/systemfile.h"

namespace tamo {
namespace {

QString SystemPrice(const QString& text, const Markups& markups) {
  const SystemFile system = ReadSystemFile(text);
  QString price = system.unitPrice;
  try {
    if (Value(price) == 0)
      price = PriceFormat::MakeMoney(EstimateUnitPrice(system.blocks, markups).text);
  } catch (const RunTimeFailure&) {
    return QStringLiteral("a price that can't be calculated");
  }
  return QStringLiteral("%1 per %2").arg(price, system.units);
}

QString MaterialPrice(const QString& text) {
  const MaterialBlock block = ReadMaterialFile(text).block;
  return QStringLiteral("%1 per %2").arg(block.price, block.orderUnits);
}

QString WithoutEnding(const QString& path) {
  const QString name = FileNameOf(path);
  return name.left(name.lastIndexOf(QLatin1Char('.')));
}

QString PriceQuestion(const QString& what, const QString& mine, const QString& theirs) {
  return QStringLiteral(
             "%1 was changed by another program since it was read here.\n\nYour price: %2\nThe "
             "other price: %3\n\nYes keeps yours, No takes the other.")
      .arg(what, mine, theirs);
}

}  // namespace

QString ChangedQuestion(const ChangedFile& file, const Markups& markups) {
  const QString name = WithoutEnding(file.path);
  if (file.path.endsWith(QLatin1String(".sys"), Qt::CaseInsensitive))
    return PriceQuestion(QStringLiteral("The system \"%1\"").arg(name),
                         SystemPrice(file.mine, markups), SystemPrice(file.theirs, markups));
  if (file.path.endsWith(QLatin1String(".mat"), Qt::CaseInsensitive))
    return PriceQuestion(QStringLiteral("The material \"%1\"").arg(name), MaterialPrice(file.mine),
                         MaterialPrice(file.theirs));
  return QStringLiteral(
             "The file %1 was changed by another program since it was read here.\n\nYes keeps "
             "what you entered, No keeps what stands in the file.")
      .arg(file.path);
}

}  // namespace tamo
