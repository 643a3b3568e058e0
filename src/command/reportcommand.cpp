#include <QDate>

#include "command/commands.h"
#include "common/failure.h"
#include "export/pages.h"
#include "history/history.h"
#include "reports/compare.h"
#include "reports/notebook.h"
#include "reports/printpages.h"

// tamo report: a report as its window shows it, or its figures as a table.

namespace tamo {
namespace {

class ReportCommand {
 public:
  explicit ReportCommand(const CommandRun& run)
      : run_(run), report_(*FindReport(run.line.report)) {}

  ExitStatus Run() {
    const QString problem = run_.data.OpenProject(run_.line.projects.first());
    if (!problem.isEmpty()) return Ended(problem, ExitStatus::NoBid);
    facts_ = run_.data.Facts(uncounted_);
    if (report_.kind == ReportKind::WhatChanged) {
      const QString missing = FindVersion();
      if (!missing.isEmpty()) return Ended(missing, ExitStatus::Stopped);
    }
    try {
      if (!run_.output.Write([this](ByteSink& sink) { return Into(sink); }))
        return ExitStatus::NotWritten;
    } catch (const RunTimeFailure& failure) {
      return Ended(failure.text, ExitStatus::Stopped);
    }
    for (const ReportNote& note : made_.notes)
      run_.platform.complain(QStringLiteral("Note: ") + NoteLine(note));
    for (const QString& sentence : uncounted_.Sentences()) run_.platform.complain(sentence);
    return uncounted_.Sentences().isEmpty() ? ExitStatus::Done : ExitStatus::Found;
  }

 private:
  ExitStatus Ended(const QString& why, ExitStatus status) const {
    run_.platform.complain(why);
    return status;
  }

  QString FindVersion() {
    const HistoryFolder folder{DataFolder(run_.data.Shared())};
    Version version;
    if (!SentVersionOf(VersionsOf(run_.platform.disk, folder, run_.data.Shared().JobID), version))
      return QStringLiteral(
          "No version of this bid was kept, so there is nothing to compare it with.");
    VersionHead head;
    BidState state;
    if (!ReadVersion(run_.platform.disk, version.path, head, state))
      return QStringLiteral("The version \"%1\" is damaged: its file %2 was changed or cut off.")
          .arg(version.head.name, version.path);
    then_ = std::make_unique<FormerBid>(folder, head, state);
    return {};
  }

  void Make(TableSink* table) {
    const ReportSource source = run_.data.Source(uncounted_, table);
    if (then_ == nullptr) {
      QString adjustment;
      made_ = MakeReport(report_.kind, source, facts_, adjustment);
      return;
    }
    const SharedFields& shared = run_.data.Shared();
    Markups then;
    LoadMarkups(then_->GetFiles(), shared, then);
    made_ = Compare({{then_->GetFiles(), source.project, {}, source.wholeQuantities, &uncounted_},
                     then,
                     then_->Words()},
                    {source, facts_.markups, QStringLiteral("the bid as it stands")},
                    shared.JobID + QStringLiteral("   ") + shared.JobName);
  }

  // A report that leaves the program says behind its title what it did not count.
  int Into(ByteSink& sink) {
    if (run_.line.format == OutputFormat::Text || run_.line.format == OutputFormat::Pdf) {
      Make(nullptr);
      return run_.line.WantsPdf() ? Pages(sink) : Lines(sink);
    }
    const SharedFields& shared = run_.data.Shared();
    const auto table =
        run_.output.NewTable(sink, QLatin1String(report_.title),
                             {{QStringLiteral("report"), QLatin1String(report_.name)},
                              {QStringLiteral("title"), QLatin1String(report_.title)},
                              {QStringLiteral("project"), shared.JobID},
                              {QStringLiteral("name"), shared.JobName}});
    Make(table.get());
    for (const QString& sentence : uncounted_.Sentences()) table->Remark(sentence);
    return table->Finish();
  }

  int Lines(ByteSink& sink) const {
    constexpr qsizetype kPiece = 1 << 16;
    QByteArray bytes;
    for (qsizetype i = 0; i < made_.lines.size(); ++i) {
      bytes += made_.lines[i].toUtf8() + '\n';
      if (i == 0) {
        for (const QString& sentence : uncounted_.Sentences()) bytes += sentence.toUtf8() + '\n';
      }
      if (bytes.size() < kPiece) continue;
      const int error = sink.Write(bytes);
      if (error != kNoError) return error;
      bytes.clear();
    }
    return sink.Write(bytes);
  }

  int Pages(ByteSink& sink) const {
    QStringList lines = made_.lines.ToList();
    const QStringList sentences = uncounted_.Sentences();
    for (qsizetype i = 0; i < sentences.size(); ++i) lines.insert(i + 1, sentences[i]);
    PageCollector pages;
    PrintPages(pages, lines, run_.data.Shared().JobID, run_.data.Shared().JobName);
    const PageFrame frame{run_.data.Company().trimmed(), pages.title,
                          QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat)};
    return WritePdf(pages, frame, PaperOf(QLocale::system()), sink);
  }

  const CommandRun& run_;
  const NamedReport& report_;
  Uncounted uncounted_;
  ReportFacts facts_;
  std::unique_ptr<FormerBid> then_;
  Report made_;
};

}  // namespace

ExitStatus RunReport(const CommandRun& run) {
  return ReportCommand(run).Run();
}

}  // namespace tamo
