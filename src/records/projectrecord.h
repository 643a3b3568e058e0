#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "records/datafolder.h"

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

// Error numbers as Files has them; `record` stays as it is when there is nothing to read.
int ReadProjectRecord(Files& files, const ProjectFolder& project, JobNFO& record);
int WriteProjectRecord(Files& files, const ProjectFolder& project, const JobNFO& record);

}  // namespace tamo
