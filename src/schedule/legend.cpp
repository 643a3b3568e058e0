#include "schedule/legend.h"

#include "schedule/headwords.h"

namespace tamo {
namespace {

// The column with the codes: the one whose head says so, else the first.
size_t CodeColumn(const ScheduleTable& table) {
  for (size_t i = 0; i < table.columns.size(); ++i) {
    if ((MeaningOfText(table.columns[i].head) & kCodeWord) != 0) return i;
  }
  return 0;
}

void TakeRows(const ScheduleTable& table, Legend& legend) {
  const size_t code = CodeColumn(table);
  for (const ScheduleRow& row : table.rows) {
    if (code >= row.cells.size() || row.cells[code].text.isEmpty()) continue;
    QStringList told;
    for (size_t i = 0; i < row.cells.size(); ++i) {
      if (i != code && !row.cells[i].text.isEmpty()) told.append(row.cells[i].text);
    }
    if (!told.isEmpty()) {
      legend.emplace(row.cells[code].text.toUpper(), told.join(QStringLiteral(", ")));
    }
  }
}

}  // namespace

Legend LegendOf(const std::vector<ScheduleTable>& tables) {
  Legend legend;
  for (const ScheduleTable& table : tables) {
    if (table.kind == TableKind::Legend) TakeRows(table, legend);
  }
  return legend;
}

}  // namespace tamo
