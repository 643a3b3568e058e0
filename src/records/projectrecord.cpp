#include "records/projectrecord.h"

#include "common/failure.h"
#include "common/textlines.h"

namespace tamo {

QString JobNFOText(const JobNFO& record) {
  QStringList lines = {record.jobID,     record.jobName,     record.bidDate,    record.addenda,
                       record.phase,     record.bidItems,    record.inclusions, record.exclusions,
                       record.architect, record.planLocation};
  if (!record.planLocation.isEmpty()) {
    lines << record.pageText << record.zoomLevel << record.view[0] << record.view[1]
          << record.view[2] << record.scale1 << record.scale2 << record.text5;
  }
  lines << record.notes;
  return JoinedLines(lines);
}

void ReadJobNFO(const QStringList& lines, JobNFO& record) {
  LineReader reader(lines);
  for (QString* field : {&record.jobID, &record.jobName, &record.bidDate, &record.addenda,
                         &record.phase, &record.bidItems, &record.inclusions, &record.exclusions,
                         &record.architect, &record.planLocation}) {
    reader.Read(*field);
  }
  if (!record.planLocation.isEmpty()) {
    for (QString* field : {&record.pageText, &record.zoomLevel, &record.view[0], &record.view[1],
                           &record.view[2], &record.scale1, &record.scale2, &record.text5}) {
      reader.Read(*field);
    }
  }
  record.notes.clear();
  QString line;
  while (reader.Read(line)) {
    if (!line.isEmpty()) record.notes += line + QStringLiteral("\r\n");
  }
}

int ReadProjectRecord(Files& files, const ProjectFolder& project, JobNFO& record) {
  QStringList lines;
  const int error = files.ReadLines(project.Record(), lines);
  if (error == kNoError) ReadJobNFO(lines, record);
  return error;
}

int WriteProjectRecord(Files& files, const ProjectFolder& project, const JobNFO& record) {
  return files.SaveText(project.Record(), JobNFOText(record));
}

}  // namespace tamo
