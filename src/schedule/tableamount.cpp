#include "schedule/tableamount.h"

#include <algorithm>

namespace tamo {
namespace {

constexpr std::ptrdiff_t kFewCells = 4;  // with text: fewer make a row poor

struct Amount {
  size_t tables = 0;
  size_t columns = 0;  // with a head
  size_t rows = 0;
  size_t poor = 0;
  qsizetype letters = 0;
};

void TakeRow(const ScheduleRow& row, Amount& amount) {
  const auto filled = std::count_if(row.cells.begin(), row.cells.end(),
                                    [](const ScheduleCell& cell) { return !cell.text.isEmpty(); });
  ++(filled < kFewCells ? amount.poor : amount.rows);
  for (const ScheduleCell& cell : row.cells) amount.letters += cell.text.size();
}

Amount AmountOf(const std::vector<ScheduleTable>& tables) {
  Amount amount;
  amount.tables = tables.size();
  for (const ScheduleTable& table : tables) {
    for (const ScheduleColumn& column : table.columns) {
      amount.columns += column.head.isEmpty() ? 0 : 1;
    }
    for (const ScheduleRow& row : table.rows) TakeRow(row, amount);
  }
  return amount;
}

}  // namespace

bool HoldsMore(const std::vector<ScheduleTable>& larger,
               const std::vector<ScheduleTable>& smaller) {
  const Amount more = AmountOf(larger);
  const Amount less = AmountOf(smaller);
  if (more.tables != less.tables || more.columns != less.columns || more.poor > less.poor) {
    return false;
  }
  return more.rows > less.rows || (more.rows == less.rows && more.letters > less.letters);
}

}  // namespace tamo
