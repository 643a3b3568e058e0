#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "schedule/schedulereader.h"

namespace tamo {

// The lines of a table of a spreadsheet, cut into cells: by tabs when the text has one, else by
// commas, or by semicolons when the first line has more of them. A cell in quotation marks may hold
// the separator, line ends and doubled quotation marks. Lines without text are passed over.
std::vector<QStringList> CellsOfText(const QString& text);

// A finish schedule that was copied from a spreadsheet or stands in a .csv file. Its first line
// names the columns; a first line with few names over several columns (WALLS over N E S W) goes
// with the second one.
ScheduleReading ReadTextSchedule(const QString& text);

}  // namespace tamo
