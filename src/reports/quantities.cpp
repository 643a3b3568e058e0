#include "reports/quantities.h"

#include "common/columns.h"
#include "reports/merge.h"

namespace tamo {

Report Quantities(const ReportSource& source) {
  Report report;
  report.lines = {QStringLiteral("Quantities"), QString()};
  if (source.table != nullptr)
    source.table->Begin({{QStringLiteral("System"), ColumnKind::Text},
                         {QStringLiteral("Quantity"), ColumnKind::Number},
                         {QStringLiteral("Unit"), ColumnKind::Text, 8}});
  for (const MergedRow& row : Calculate(source)) {
    report.lines += row.name + GrownBlanks(32 - row.name.size() - row.quantity.size()) +
                    row.quantity + QLatin1Char(' ') + row.units;
    if (source.table != nullptr) source.table->Add({row.name, row.value, row.units});
  }
  return report;
}

}  // namespace tamo
