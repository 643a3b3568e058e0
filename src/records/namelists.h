#pragma once

#include <QStringList>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// The lists of names that all projects share, one name a line.
enum class NameList {
  Systems,     // the library's systems
  Units,       // takeoff units to pick from; edited by hand
  OrderUnits,  // in which materials are bought
  Materials,
  Wages,        // written, not read back
  FinishAreas,  // walls, floors ... of room lines
  Items,        // bottom line items, each with one blank behind it
};

// Error numbers as Files has them; a list that could not be read is empty.
int ReadNames(Files& files, const DataFolder& data, NameList list, QStringList& names);
// A comma makes two names of one, leading blanks are dropped.
int ReadNamesDelimited(Files& files, const DataFolder& data, NameList list, QStringList& names);
// Merged with what another program added or took out since. `base`: the names that the list had
// when it was last filled or written, when others in this program may have read the file since.
int WriteNames(Files& files, const DataFolder& data, NameList list, const QStringList& names);
int WriteNames(Files& files, const DataFolder& data, NameList list, const QStringList& names,
               const QStringList& base);
// Where the list stands.
QString NamesFile(const DataFolder& data, NameList list);
// The file holds more than was last read of it: see Files::IsBehind.
bool NamesAreBehind(Files& files, const DataFolder& data, NameList list);

}  // namespace tamo
