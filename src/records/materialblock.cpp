#include "records/materialblock.h"

namespace tamo {

bool IsRatioTag(const QString& tag) {
  return tag == QLatin1String(kUpo) || tag == QLatin1String(kOpu);
}

bool IsLaborTag(const QString& tag) {
  return tag == QLatin1String(kUpm) || tag == QLatin1String(kMpu);
}

QString RowAt(const QStringList& rows, qsizetype at) {
  return at >= 0 && at < rows.size() ? rows[at] : QString();
}

MaterialBlock MaterialBlock::At(const QStringList& system, qsizetype row) {
  if (row < 0) return {};
  return {RowAt(system, row),     RowAt(system, row + 1), RowAt(system, row + 2),
          RowAt(system, row + 3), RowAt(system, row + 4), RowAt(system, row + 5),
          RowAt(system, row + 6), RowAt(system, row + 7), RowAt(system, row + 8)};
}

QStringList MaterialBlock::Rows() const {
  return {material, orderUnits, price,    upo,       upoTag,    mnhrPO,
          mnhrTag,  waste,      wageRate, QString(), QString(), QString()};
}

QStringList MaterialNames(const QStringList& system) {
  QStringList names;
  for (qsizetype row = 0; row < system.size(); row += kBlockRows) names += system[row];
  return names;
}

}  // namespace tamo
