#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "common/sharedfields.h"

namespace tamo {

// The files of a takeoff. All functions work on the open project (JobID) and return error numbers
// as Files does. A name that can't be a file's name (NameRefusal) has no file: reading it answers
// 53. Writers expect a name that was tested with RequireName.

// Raises a RunTimeFailure that names what is wrong when `name` can't be the name of a file. `what`
// is "room" or "area".
void RequireName(const QString& what, const QString& name);

QString ProjectFolder(const SharedFields& shared, const QString& jobId);  // ends in a separator

// The list of rooms (Rooms\Rooms.tamo) and of free areas (ATOs\Areas.tamo): two lines a name, the
// second always "True" and without meaning. An odd last line is a name, too.
int ReadRoomNames(Files& files, const SharedFields& shared, QStringList& names);
int WriteRoomNames(Files& files, const SharedFields& shared, const QStringList& names);
int ReadAreaNames(Files& files, const SharedFields& shared, QStringList& names);
int WriteAreaNames(Files& files, const SharedFields& shared, const QStringList& names);

// Rooms\<room>.rfs: the height (or, in the middle of a takeoff, a width) and the room lines.
struct RoomFile {
  bool hasHeight = false;  // false for an empty file
  QString height;
  QStringList lines;  // as they stand in the file, empty ones too
};
RoomFile RoomFileOf(const QStringList& wholeLines);
int ReadRoomFile(Files& files, const SharedFields& shared, const QString& room, RoomFile& file);
// Empty lines are left out.
int WriteRoomFile(Files& files, const SharedFields& shared, const QString& room,
                  const QString& height, const QStringList& lines);

// ATOs\<area>.ato: the area lines from the first line on, empty ones too.
// The takeoff reads them with the delimited read (a comma makes two of one line); the reports take
// whole lines.
int ReadAreaFields(Files& files, const SharedFields& shared, const QString& area,
                   QStringList& lines);
int ReadAreaLines(Files& files, const SharedFields& shared, const QString& area,
                  QStringList& lines);
int WriteAreaFile(Files& files, const SharedFields& shared, const QString& area,
                  const QStringList& lines);

// Areas.tamo of the data folder: the finish area names of all projects, whole lines.
int ReadFinishAreas(Files& files, const SharedFields& shared, QStringList& names);
int WriteFinishAreas(Files& files, const SharedFields& shared, const QStringList& names);

// Descriptions.tamo of the data folder: the system names, delimited read.
int ReadSystemNames(Files& files, const SharedFields& shared, QStringList& names);
int WriteSystemNames(Files& files, const SharedFields& shared, const QStringList& names);

// Items.tamo of the data folder: the known bottom line item names, each with a blank at its end;
// delimited read.
int ReadItemNames(Files& files, const SharedFields& shared, QStringList& names);
int WriteItemNames(Files& files, const SharedFields& shared, const QStringList& names);

// oItems.tamo: a project's bottom line items; delimited read.
int ReadItemLines(Files& files, const SharedFields& shared, QStringList& lines);
int WriteItemLines(Files& files, const SharedFields& shared, const QString& jobId,
                   const QStringList& lines);

// Adjustment.tamo: one delimited field. `amount` keeps its text when there is nothing to read.
int ReadAdjustment(Files& files, const SharedFields& shared, QString& amount);
int WriteAdjustment(Files& files, const SharedFields& shared, const QString& amount);

// Guards a record against being saved over a file that could not be read when the record was
// loaded: raises a RunTimeFailure that names `what` unless `error` is 0, 53 or 76 (a missing file
// is an empty record).
void RequireReadable(int error, const QString& what);

}  // namespace tamo
