#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "common/files.h"
#include "common/tablesink.h"
#include "export/sheetrows.h"
#include "records/datafolder.h"
#include "records/systemfile.h"

namespace tamo {

// The library's systems as a sheet: a row for each material, and one for a system without any. The
// columns are found by their names, in any order.

// Hands them over in the order of the library's list. What can't be read of it is answered.
QStringList WriteSystemSheet(Files& files, const DataFolder& data, TableSink& table);

// What a sheet would make of the library. Nothing is changed by reading it.
struct SystemSheet {
  QStringList problems;             // line by line; with one, nothing of it is taken
  QStringList changes;              // in words, a line for each system
  std::vector<SystemFile> systems;  // those that are new or other than in the library
  QStringList newNames;             // of those that are new
  int same = 0;                     // systems that the library has just so
};
SystemSheet ReadSystemSheet(const SheetRows& rows, Files& files, const DataFolder& data);

// Stores them, each as a save of its own, and lists the new ones. What the disk does not take is
// tried again with the pending saves.
void StoreSystemSheet(const SystemSheet& sheet, Files& files, const DataFolder& data);

}  // namespace tamo
