#include "pricing/systemblocks.h"

namespace tamo {

namespace {

constexpr int kMeantRows = kBlockRows - 3;

}  // namespace

void SystemBlocks::Take(const QStringList& rows) {
  rows_.SetRows(rows);
  names_.SetRows(MaterialNames(rows));
}

int SystemBlocks::Count() const {
  return (rows_.Count() + kBlockRows - 1) / kBlockRows;
}

MaterialBlock SystemBlocks::At(int place) const {
  return MaterialBlock::At(rows_.Rows(), place * kBlockRows);
}

void SystemBlocks::FillUpTo(int rows) {
  while (rows_.Count() < rows) rows_.Add(QString());
}

void SystemBlocks::Put(int place, const MaterialBlock& block) {
  const bool isNew = place >= Count();
  FillUpTo((place + 1) * kBlockRows);
  const QStringList rows = block.Rows();
  for (int i = 0; i < kMeantRows; ++i) rows_.SetRow(place * kBlockRows + i, rows[i]);
  if (isNew) {
    names_.Insert(place, block.material);
  } else {
    names_.SetRow(place, block.material);
  }
}

void SystemBlocks::SetTag(int place, int tagRow, const QString& tag) {
  FillUpTo((place + 1) * kBlockRows);
  rows_.SetRow(place * kBlockRows + tagRow, tag);
}

void SystemBlocks::InsertPlace(int place) {
  FillUpTo(place * kBlockRows);
  for (int i = 0; i < kBlockRows; ++i) rows_.Insert(place * kBlockRows, QString());
  names_.Insert(place, QString());
  names_.SetIndex(place);
}

void SystemBlocks::Delete(int place) {
  for (int i = 0; i < kBlockRows && place * kBlockRows < rows_.Count(); ++i)
    rows_.Remove(place * kBlockRows);
  names_.Remove(place);
}

bool SystemBlocks::SelectNext() {
  const int row = names_.Index();
  const int last = names_.Count() - 1;
  const bool waiting = last >= 0 && names_.Row(last).isEmpty();
  const bool follows = row >= 0 && row < last;
  if (!waiting && (!follows || row == last - 1)) names_.Add(QString());
  names_.SetIndex(follows ? row + 1 : names_.Count() - 1);
  return follows;
}

void SystemBlocks::EmptySpareRows() {
  FillUpTo(Count() * kBlockRows);
  for (int row = 0; row < rows_.Count(); ++row) {
    const bool spare = row % kBlockRows >= kMeantRows;
    if (spare && Holds(row / kBlockRows) && !rows_.Row(row).isEmpty()) rows_.SetRow(row, QString());
  }
}

}  // namespace tamo
