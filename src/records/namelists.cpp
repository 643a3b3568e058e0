#include "records/namelists.h"

#include "common/textlines.h"

namespace tamo {
namespace {

const char* FileNameOf(NameList list) {
  switch (list) {
    case NameList::Systems:
      return "Descriptions.tamo";
    case NameList::Units:
      return "Units.tamo";
    case NameList::OrderUnits:
      return "oUnits.tamo";
    case NameList::Materials:
      return "Materials.tamo";
    case NameList::Wages:
      return "Wages.tamo";
    case NameList::FinishAreas:
      return "Areas.tamo";
    case NameList::Items:
      return "Items.tamo";
  }
  return "";
}

}  // namespace

int ReadNames(Files& files, const DataFolder& data, NameList list, QStringList& names) {
  return files.ReadLines(data.NameFile(FileNameOf(list)), names);
}

int ReadNamesDelimited(Files& files, const DataFolder& data, NameList list, QStringList& names) {
  return files.ReadFields(data.NameFile(FileNameOf(list)), names);
}

int WriteNames(Files& files, const DataFolder& data, NameList list, const QStringList& names) {
  return files.SaveLines(data.NameFile(FileNameOf(list)), names, FileKind::List);
}

int WriteNames(Files& files, const DataFolder& data, NameList list, const QStringList& names,
               const QStringList& base) {
  return files.SaveLines(data.NameFile(FileNameOf(list)), names, FileKind::List, JoinedLines(base));
}

QString NamesFile(const DataFolder& data, NameList list) {
  return data.NameFile(FileNameOf(list));
}

bool NamesAreBehind(Files& files, const DataFolder& data, NameList list) {
  return files.IsBehind(NamesFile(data, list));
}

}  // namespace tamo
