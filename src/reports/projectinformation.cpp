#include "reports/projectinformation.h"

#include "common/columns.h"
#include "common/failure.h"
#include "common/paths.h"

namespace tamo {

Report ProjectInformation(const QString& jobID, const ProjectFacts& facts) {
  Report report;
  TextRows& lines = report.lines;
  lines = {QStringLiteral("  Project Information"), QString()};
  const auto fact = [&](const char* label, const QString& text) {
    lines += QLatin1String(label) + text;
    lines += QString();
  };
  fact("  Project ID Number:     ", jobID);
  fact("  Project Name           ", facts.JobName);
  fact("  BidDate:               ", facts.BidDate);
  fact("  Phase Of Project:      ", facts.Phase);
  fact("  Addenda Received:      ", facts.Addenda);
  fact("  Inclusions:            ", facts.Inclusions);
  fact("  Exclusions:            ", facts.Exclusions);
  fact("  Architect:             ", facts.Architect);
  // The piece behind the last line end is a line, too, also an empty one.
  QString notes = facts.Notes;
  notes.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  notes.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  QStringList pieces = notes.split(QLatin1Char('\n'));
  pieces.front().prepend(QLatin1String("      Notes:             "));
  lines += pieces;
  return report;
}

QStringList ProjectFileLines(const QString& jobID, const QString& jobName, const ListRows& report) {
  const QString notDone = QStringLiteral("False");
  QStringList lines{jobID + Blanks(10) + jobName, notDone};
  for (int i = 1; i < report.Count(); ++i) {
    lines += report.At(i);
    lines += notDone;
  }
  return lines;
}

int MakeProjectFile(Files& files, const QString& dataPath, const QString& jobID,
                    const QString& jobName, const ListRows& report) {
  const QString name = jobID + QLatin1Char(' ') + jobName;
  const QString refusal = NameRefusal(name);
  if (!refusal.isEmpty()) throw RunTimeFailure(kInvalidArgument, refusal);
  return files.SaveLines(dataPath + name + QStringLiteral(".tamo"),
                         ProjectFileLines(jobID, jobName, report));
}

}  // namespace tamo
