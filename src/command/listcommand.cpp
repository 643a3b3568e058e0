#include "command/commands.h"
#include "common/failure.h"
#include "records/lockfile.h"
#include "records/projectlist.h"

// tamo list: the projects of the data folder, in the order of their creation.

namespace tamo {
namespace {

int Table(const CommandRun& run, const QStringList& entries, ByteSink& sink) {
  const auto table = run.output.NewTable(sink, QStringLiteral("Projects"),
                                         {{QStringLiteral("title"), QStringLiteral("Projects")}});
  table->Begin({{QStringLiteral("Project"), ColumnKind::Text, 14},
                {QStringLiteral("Name"), ColumnKind::Text, 30},
                {QStringLiteral("Bid date"), ColumnKind::Text, 14},
                {QStringLiteral("Phase"), ColumnKind::Text, 20},
                {QStringLiteral("Locked"), ColumnKind::Text, 8}});
  const DataFolder data(run.data.Shared());
  for (const QString& entry : entries) {
    const ProjectFolder project = data.Project(IdToOpen(entry));
    JobNFO record;
    QString locked;
    ReadProjectRecord(run.data.GetFiles(), project, record);
    ReadLock(run.data.GetFiles(), project, locked);
    const QString id = IdToOpen(entry);
    const QString name = NameOfEntry(entry);
    table->Add({id, name, record.bidDate, record.phase,
                locked == QLatin1String("True") ? QStringView(u"yes") : QStringView(u"no")});
  }
  return table->Finish();
}

}  // namespace

ExitStatus RunList(const CommandRun& run) {
  QStringList entries;
  const int error = ReadProjectList(run.data.GetFiles(), DataFolder(run.data.Shared()), entries);
  if (error != kNoError && !IsMissing(error)) {
    run.platform.complain(QStringLiteral("The list of projects can't be read, because %1.")
                              .arg(ReadReasonText(error)));
    return ExitStatus::NoBid;
  }
  const bool text = run.line.format == OutputFormat::Text;
  const bool written = run.output.Write(
      [&](ByteSink& sink) { return text ? WriteLines(entries, sink) : Table(run, entries, sink); });
  return written ? ExitStatus::Done : ExitStatus::NotWritten;
}

}  // namespace tamo
