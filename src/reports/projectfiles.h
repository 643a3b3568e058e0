#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include "reports/linescanner.h"
#include "reports/reportsource.h"

namespace tamo {

// The loaders of the reports. They read the files of the open project and answer an error number
// (0, 53 ...); what could be read stands, nothing is shown. A name that can't be a file's name has
// no file.

enum class SheetKind { Room, Area };

// The file of a room or area, "" when it can't have one. From any thread.
QString SheetPath(const ReportSource& source, SheetKind kind, const QString& name);
// Where the lines begin in the text of a room's or area's file.
qsizetype FirstLine(SheetKind kind, QStringView text);

// The takeoff lines of one room or area, as text. Empty lines count as lines.
struct TakeoffLines {
  QString text;
  qsizetype first = 0;  // where the first line begins
  LineScanner Scan() const { return LineScanner(QStringView(text).sliced(first)); }
};

// Room names: the first line of each pair of lines. An odd last line is a room.
int LoadRooms(const ReportSource& source, QStringList& rooms);
int LoadAreas(const ReportSource& source, QStringList& areas);
// The room's height, its first record, is dropped; an area has none.
int LoadRoom(const ReportSource& source, const QString& room, TakeoffLines& lines);
int LoadArea(const ReportSource& source, const QString& area, TakeoffLines& lines);
// The bottom line items, one comma-delimited field each.
int LoadoiList(const ReportSource& source, QStringList& items);
// The adjustment, one comma-delimited field. Without a file `adjustment` keeps the text it had.
int LoadAdj(const ReportSource& source, QString& adjustment);

// The price of a bottom line item: the value of its last 12 characters.
double ItemPrice(const QString& item);

// The system that a takeoff line means: its first 20 characters, trimmed.
QStringView SystemOfLine(QStringView line);

}  // namespace tamo
