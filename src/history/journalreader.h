#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

#include "common/disk.h"
#include "history/historyfolder.h"

namespace tamo {

// What stood in a file until `when`.
struct FormerState {
  QByteArray when;  // as HistoryRecord has it
  QString path;     // below the data folder, with slashes
  bool existed = true;
  QByteArray text;
};

// Every state of the files below `below` ("Projects/12-2611001/", "" for all) that one journal file
// holds, in its order. What is damaged is passed over, and what needs it. False when the file can't
// be read.
bool ReadJournalFile(Disk& disk, const QString& journal, const QString& below,
                     const std::function<void(const FormerState&)>& each);

// The same of the whole journal, file by file.
void ReadJournal(Disk& disk, const HistoryFolder& folder, const QString& below,
                 const std::function<void(const FormerState&)>& each);

}  // namespace tamo
