#include "workspace/jobnfo.h"

#include "common/paths.h"
#include "common/textlines.h"

namespace tamo {
namespace {

bool DropEnding(QString& name, const QString& ending, Qt::CaseSensitivity sensitivity) {
  if (!name.endsWith(ending, sensitivity)) return false;
  name.chop(ending.size());
  return true;
}

}  // namespace

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

QString PlainPlanName(const QString& planLocation) {
  QString name = FileNameOf(planLocation);
  const QString pdf = QStringLiteral(".PDF");
  while (DropEnding(name, pdf, Qt::CaseInsensitive)) {
  }
  while (DropEnding(name, QStringLiteral("-Marked"), Qt::CaseSensitive)) {
  }
  while (DropEnding(name, pdf, Qt::CaseInsensitive)) {
  }
  return name;
}

QString MarkedPlanPath(const QString& planLocation, const QString& projectPath,
                       const QString& separator) {
  return projectPath + QStringLiteral("Plans") + separator + PlainPlanName(planLocation) +
         QStringLiteral("-Marked.pdf");
}

}  // namespace tamo
