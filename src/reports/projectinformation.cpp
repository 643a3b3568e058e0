#include "reports/projectinformation.h"

#include <QStringList>

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

}  // namespace tamo
