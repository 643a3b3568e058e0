#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>

#include "common/failure.h"
#include "common/textlines.h"
#include "reportbench.h"
#include "reports/bill.h"
#include "reports/breakdown.h"
#include "reports/copies.h"
#include "reports/projectinformation.h"
#include "reports/quantities.h"
#include "reports/recap.h"

// Every folder of tests/data with a project.txt: a data folder (home), and under expected one text
// for each report. A report that must stop has a text with the ending .failure.txt, each line of
// which must be found in the message.

namespace tamo::test {
namespace {

ProjectFacts FactsOf(const QString& folder) {
  const QStringList lines = LinesOf(folder + QStringLiteral("JobNFO.tamo"));
  ProjectFacts facts;
  facts.JobName = lines.value(1);
  facts.BidDate = lines.value(2);
  facts.Addenda = lines.value(3);
  facts.Phase = lines.value(4);
  facts.Inclusions = lines.value(6);
  facts.Exclusions = lines.value(7);
  facts.Architect = lines.value(8);
  for (const QString& line : lines.mid(10)) {
    if (!line.isEmpty()) facts.Notes += line + QStringLiteral("\r\n");
  }
  return facts;
}

Report Make(const QString& name, BenchProject& project, const QString& jobID) {
  QString adjustment;
  const ReportSource source = project.Source();
  const Markups markups = project.MarkupsOfFile();
  if (name == QLatin1String("recap")) return MinimalRecapSheet(source, markups, false, adjustment);
  if (name == QLatin1String("recap-detailed"))
    return MinimalRecapSheet(source, markups, true, adjustment);
  if (name == QLatin1String("quantities")) return Quantities(source);
  if (name == QLatin1String("bill-of-material")) return BillofMaterial(source);
  if (name == QLatin1String("breakdown")) return BreakDown(MakeBreak(source, markups, adjustment));
  if (name == QLatin1String("field-copy")) return FieldCopy(source);
  if (name == QLatin1String("office-copy")) return OfficeCopy(source, markups);
  if (name == QLatin1String("project-information"))
    return ProjectInformation(jobID, FactsOf(project.folder));
  ADD_FAILURE() << "no report is called " << name.toStdString();
  return {};
}

// The lines of both, or the first that differs.
void ExpectLines(const QStringList& found, const QStringList& expected, const QString& where) {
  for (qsizetype i = 0; i < qMax(found.size(), expected.size()); ++i) {
    if (i < found.size() && i < expected.size() && found[i] == expected[i]) continue;
    ADD_FAILURE() << where.toStdString() << ": line " << i + 1 << " of " << expected.size()
                  << "\nexpected |" << expected.value(i, QStringLiteral("(none)")).toStdString()
                  << "|\nfound    |" << found.value(i, QStringLiteral("(none)")).toStdString()
                  << "|";
    return;
  }
}

void ExpectFailure(const QString& file, const QString& name, BenchProject& project,
                   const QString& jobID) {
  try {
    Make(name, project, jobID);
    ADD_FAILURE() << file.toStdString() << ": the report did not stop";
  } catch (const RunTimeFailure& failure) {
    for (const QString& part : LinesOf(file)) {
      EXPECT_TRUE(failure.text.contains(part))
          << failure.text.toStdString() << "\ndoes not name " << part.toStdString();
    }
  }
}

void PlayFolder(const QString& folder) {
  const QString jobID = LinesOf(folder + QStringLiteral("/project.txt")).value(0);
  const QStringList texts =
      QDir(folder + QStringLiteral("/expected")).entryList(QDir::Files, QDir::Name);
  EXPECT_FALSE(texts.isEmpty());
  for (const QString& text : texts) {
    BenchProject project(folder + QStringLiteral("/home/Tamo/Projects/") + jobID +
                         QLatin1Char('/'));
    const QString file = folder + QStringLiteral("/expected/") + text;
    const QString name = text.section(QLatin1Char('.'), 0, 0);
    if (text.endsWith(QLatin1String(".failure.txt"))) {
      ExpectFailure(file, name, project, jobID);
    } else {
      try {
        ExpectLines(Make(name, project, jobID).lines.ToList(), LinesOf(file), file);
      } catch (const RunTimeFailure& failure) {
        ADD_FAILURE() << file.toStdString() << ": " << failure.text.toStdString();
      }
    }
  }
}

TEST(Golden, EveryProjectOfTheTestDataComesOutLineForLine) {
  int folders = 0;
  for (const QString& name :
       QDir(DataPathOf({})).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
    if (!QFileInfo::exists(DataPathOf(name) + QStringLiteral("/project.txt"))) continue;
    SCOPED_TRACE(name.toStdString());
    PlayFolder(DataPathOf(name));
    ++folders;
  }
  EXPECT_GE(folders, 10);
}

}  // namespace
}  // namespace tamo::test
