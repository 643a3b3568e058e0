#include "records/managerfile.h"

#include "common/columns.h"
#include "common/failure.h"
#include "common/paths.h"

namespace tamo {

QStringList ManagerFileLines(const QString& jobID, const QString& jobName, const ListRows& report) {
  const QString notDone = QStringLiteral("False");
  QStringList lines{jobID + Blanks(10) + jobName, notDone};
  for (int i = 1; i < report.Count(); ++i) lines << report.At(i) << notDone;
  return lines;
}

int WriteManagerFile(Files& files, const DataFolder& data, const QString& jobID,
                     const QString& jobName, const ListRows& report) {
  const QString name = jobID + QLatin1Char(' ') + jobName;
  const QString refusal = NameRefusal(name);
  if (!refusal.isEmpty()) throw RunTimeFailure(kInvalidArgument, refusal);
  return files.SaveLines(data.ManagerFile(name), ManagerFileLines(jobID, jobName, report));
}

}  // namespace tamo
