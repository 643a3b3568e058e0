#include "reports/projectinformation.h"

#include <QStringList>

namespace tamo {

Report ProjectInformation(const QString& jobID, const ProjectFacts& facts, TableSink* table) {
  Report report;
  TextRows& lines = report.lines;
  lines = {QStringLiteral("  Project Information"), QString()};
  if (table != nullptr)
    table->Begin({{QStringLiteral("Field"), ColumnKind::Text, 22},
                  {QStringLiteral("Text"), ColumnKind::Text, 60}});
  const auto row = [&](const QString& label, const QString& text) {
    if (table != nullptr) table->Add({label, text});
  };
  const auto fact = [&](const char* label, const QString& text) {
    lines += QLatin1String(label) + text;
    lines += QString();
    row(QString::fromLatin1(label).remove(QLatin1Char(':')).trimmed(), text);
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
  for (const QString& piece : pieces) row(QStringLiteral("Notes"), piece);
  pieces.front().prepend(QLatin1String("      Notes:             "));
  lines += pieces;
  return report;
}

}  // namespace tamo
