#include "command/commands.h"
#include "command/datacheck.h"

// tamo check: what an estimator should know before the bid goes out.

namespace tamo {
namespace {

int Lines(const DataCheck& check, ByteSink& sink) {
  QStringList lines;
  QString of;
  for (const Finding& finding : check.Findings()) {
    if (lines.isEmpty() || finding.of != of) lines += finding.of;
    of = finding.of;
    lines += QStringLiteral("  %1: %2").arg(finding.what, finding.text);
  }
  if (lines.isEmpty())
    lines += check.Projects() == 1
                 ? QStringLiteral("All is well with the project.")
                 : QStringLiteral("All is well with %1 projects.").arg(check.Projects());
  return WriteLines(lines, sink);
}

int Table(const CommandRun& run, const DataCheck& check, ByteSink& sink) {
  const auto table = run.output.NewTable(sink, QStringLiteral("Check"),
                                         {{QStringLiteral("title"), QStringLiteral("Check")}});
  table->Begin({{QStringLiteral("Of"), ColumnKind::Text, 34},
                {QStringLiteral("What"), ColumnKind::Text, 20},
                {QStringLiteral("Finding"), ColumnKind::Text, 90}});
  for (const Finding& finding : check.Findings())
    table->Add({finding.of, finding.what, finding.text});
  return table->Finish();
}

}  // namespace

ExitStatus RunCheck(const CommandRun& run) {
  DataCheck check(run);
  for (const QString& id : run.line.projects) {
    const QString problem = run.data.OpenProject(id);
    if (problem.isEmpty()) continue;
    run.platform.complain(problem);
    return ExitStatus::NoBid;
  }
  if (run.line.projects.isEmpty()) {
    check.All();
  } else {
    for (const QString& id : run.line.projects) check.Project(id);
  }
  const bool text = run.line.format == OutputFormat::Text;
  const bool written = run.output.Write(
      [&](ByteSink& sink) { return text ? Lines(check, sink) : Table(run, check, sink); });
  if (!written) return ExitStatus::NotWritten;
  return check.Findings().empty() ? ExitStatus::Done : ExitStatus::Found;
}

}  // namespace tamo
