#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "records/datafolder.h"
#include "records/linescanner.h"

namespace tamo {

// A free area of a project: its takeoff lines (AreaLine) from the first line on, empty ones too.
// Error numbers as Files has them; 53 also for a name that no file can have. What could not be read
// is empty.

// The whole lines of an area's text, walked without copying them: as the reports read it.
inline LineScanner ScanArea(QStringView text) {
  return LineScanner(text);
}

// As the takeoff reads it: a comma makes two of one line, leading blanks of a line are dropped.
int ReadAreaDelimited(Files& files, const ProjectFolder& project, const QString& area,
                      QStringList& lines);
// `area` is a name that was tested with RequireName.
int WriteAreaFile(Files& files, const ProjectFolder& project, const QString& area,
                  const QStringList& lines);

}  // namespace tamo
