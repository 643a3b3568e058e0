#include "program/reportsaver.h"

#include <QGuiApplication>
#include <QLocale>

#include "common/failure.h"
#include "export/pages.h"
#include "export/safefile.h"
#include "export/tableformats.h"
#include "reports/printpages.h"

namespace tamo {
namespace {

const QString kPdf = QStringLiteral("pdf");
const QString kCsv = QStringLiteral("csv");
const QString kXlsx = QStringLiteral("xlsx");

// "Recap Sheet - Riverside Clinic", without what no file name can hold.
QString SuggestedName(const ShownReport& report) {
  QString name = QLatin1String(NamedReportOf(report.kind).title) + QStringLiteral(" - ") +
                 (report.name.isEmpty() ? report.jobID : report.name);
  for (QChar& c : name) {
    if (c.unicode() < 0x20 || QStringLiteral("\\/:*?\"<>|").contains(c)) c = QLatin1Char(' ');
  }
  return name.simplified().left(100);
}

bool IsKnown(const QString& ending) {
  return ending == kPdf || ending == kCsv || ending == kXlsx;
}

}  // namespace

void ReportSaver::Save(const ShownReport& report) {
  if (!onChoose) return;
  Messages& messages = kit_.desk.GetMessages();
  const QString path =
      onChoose({true,
                QStringLiteral("Save Report As"),
                SuggestedName(report),
                {QStringLiteral("Spreadsheet (*.xlsx)"),
                 QStringLiteral("Comma separated values (*.csv)"), QStringLiteral("PDF (*.pdf)")}});
  if (path.isEmpty()) return;
  if (!IsKnown(EndingOf(path))) {
    return messages.Tell(QStringLiteral("%1 says by its ending no format that a report is saved "
                                        "in. Let it end in .pdf, .csv or .xlsx.")
                             .arg(path));
  }
  if (kit_.platform.disk.Exists(path) &&
      !messages.Ask(QStringLiteral("%1 is there already. Replace it?").arg(path)))
    return;
  const int error = Write(report, path);
  if (error == kNoError) return;
  messages.Tell(QStringLiteral("%1 could not be saved, because %2. What was there before is "
                               "unchanged. Choose another folder.")
                    .arg(path, WriteReason(error)));
}

int ReportSaver::Write(const ShownReport& report, const QString& path) {
  const QString ending = EndingOf(path);
  try {
    return MakeFileSafely(kit_.platform.disk, path, [&](ByteSink& sink) {
      return ending == kPdf ? WritePages(report, sink) : WriteTable(report, ending, sink);
    });
  } catch (const RunTimeFailure& failure) {
    if (failure.number != kReportStopped) throw;
    return kNoError;  // by the user, who knows
  }
}

int ReportSaver::WriteTable(const ShownReport& report, const QString& ending,
                            ByteSink& sink) const {
  const auto file = NewTableFile(ending, sink, QLatin1String(NamedReportOf(report.kind).title));
  for (const QString& remark : report.figures(report.kind, *file)) file->Remark(remark);
  return file->Finish();
}

int ReportSaver::WritePages(const ShownReport& report, ByteSink& sink) const {
  if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) return kFileOther;
  PageCollector pages;
  PrintPages(pages, report.lines, report.jobID, report.name);
  const PageFrame frame{
      company ? company().trimmed() : QString(), pages.title,
      QLocale::system().toString(kit_.platform.clock.Today(), QLocale::ShortFormat)};
  return WritePdf(pages, frame, PaperOf(QLocale::system()), sink);
}

void ReportSaver::ShowChart(const ShownReport& report) {
  if (!onChart) return;
  const QString of = report.name.isEmpty() ? report.jobID : report.name;
  if (report.kind == ReportKind::BreakDown) {
    BreakDownChart chart;
    report.figures(ReportKind::BreakDown, chart);
    return onChart(chart.Take(QStringLiteral("BreakDown - ") + of));
  }
  RecapChart chart;
  report.figures(ReportKind::Recap, chart);
  onChart(chart.Take(QStringLiteral("Recap Sheet - ") + of));
}

}  // namespace tamo
