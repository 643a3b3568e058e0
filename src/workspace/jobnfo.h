#pragma once

#include <QString>
#include <QStringList>

namespace tamo {

// One project's information record, as it stands in JobNFO.tamo.
struct JobNFO {
  QString jobID;
  QString jobName;
  QString bidDate;
  QString addenda;
  QString phase;
  QString bidItems;
  QString inclusions;
  QString exclusions;
  QString architect;
  // The plan and where its viewer stood: written and read only when planLocation is not empty.
  QString planLocation;
  QString pageText;
  QString zoomLevel;
  QString view[3];  // horizontal and vertical position, rotation: whole numbers
  QString scale1;
  QString scale2;
  QString text5;
  QString notes;  // several lines, CR LF
};

// The file's text, CR LF behind every line; the notes are written as one value.
QString JobNFOText(const JobNFO& record);

// Takes what the lines of a file hold into `record`; a short file leaves the later fields as they
// stand. Blank lines of the notes are lost, by the rule of the format; each line kept gets CR LF
// behind it.
void ReadJobNFO(const QStringList& lines, JobNFO& record);

// The plain name of a plan: the file name without ".pdf" (once or twice, any case) and without
// "-Marked".
QString PlainPlanName(const QString& planLocation);

// Where the project keeps the marked copy of `planLocation`. `projectPath` ends in a separator.
QString MarkedPlanPath(const QString& planLocation, const QString& projectPath,
                       const QString& separator);

}  // namespace tamo
