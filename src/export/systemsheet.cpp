#include "export/systemsheet.h"

#include "common/failure.h"
#include "common/numbers.h"
#include "export/systemcolumns.h"
#include "records/namelists.h"

namespace tamo {
namespace {

TableCell NumberCell(const QString& text) {
  return text.isEmpty() ? TableCell() : TableCell(Value(text));
}

void WriteRow(const SystemFile& system, const MaterialBlock* block, TableSink& table) {
  const bool none = block == nullptr;
  const QString ratio = none ? QString() : ReadingOf(block->upoTag);
  const QString labor = none ? QString() : ReadingOf(block->mnhrTag);
  const double price = Value(system.unitPrice);
  table.Add({system.description, system.units, price == 0 ? TableCell() : TableCell(price),
             system.lineColor, none ? TableCell() : TableCell(block->material),
             none ? TableCell() : TableCell(block->orderUnits),
             none ? TableCell() : NumberCell(block->price),
             none ? TableCell() : NumberCell(block->upo), ratio,
             none ? TableCell() : NumberCell(block->mnhrPO), labor,
             none ? TableCell() : NumberCell(block->waste),
             none ? TableCell() : NumberCell(block->wageRate)});
}

}  // namespace

QStringList WriteSystemSheet(Files& files, const DataFolder& data, TableSink& table) {
  table.Begin(SystemColumns());
  QStringList names;
  QStringList problems;
  const int listed = ReadNames(files, data, NameList::Systems, names);
  if (listed != kNoError && !IsMissing(listed))
    problems +=
        QStringLiteral("The list of systems can't be read: %1.").arg(ReadReasonText(listed));
  for (const QString& name : names) {
    SystemFile system;
    const int error = ReadSystemFile(files, data.SystemFile(name), system);
    if (error != kNoError) {
      problems += QStringLiteral("The system \"%1\" is not in this sheet: %2.")
                      .arg(name, IsMissing(error) ? QStringLiteral("it has no file")
                                                  : ReadReasonText(error));
      continue;
    }
    const QStringList blocks = StoredBlocks(system.blocks);
    if (blocks.isEmpty()) WriteRow(system, nullptr, table);
    for (qsizetype row = 0; row < blocks.size(); row += kBlockRows) {
      const MaterialBlock block = MaterialBlock::At(blocks, row);
      WriteRow(system, &block, table);
    }
  }
  return problems;
}

void StoreSystemSheet(const SystemSheet& sheet, Files& files, const DataFolder& data) {
  for (const SystemFile& system : sheet.systems)
    files.SaveText(data.SystemFile(system.description), SystemFileText(system));
  if (sheet.newNames.isEmpty()) return;
  QStringList names;
  const int error = ReadNames(files, data, NameList::Systems, names);
  if (error != kNoError && !IsMissing(error)) return;
  const QStringList before = names;
  // One whose file was lost is new, and yet in the list.
  for (const QString& name : sheet.newNames) {
    if (!names.contains(name, Qt::CaseInsensitive)) names += name;
  }
  WriteNames(files, data, NameList::Systems, names, before);
}

}  // namespace tamo
