#include <gtest/gtest.h>

#include <QDir>

#include "commandbench.h"
#include "common/files.h"

// The expected texts that the reports are held against, printed by the command.

namespace tamo::test {
namespace {

QStringList LinesOf(const QString& file) {
  RealDisk disk;
  Files files(disk);
  QStringList lines;
  files.ReadLines(file, lines);
  return lines;
}

QString ReportOf(const QString& text) {
  const QString name = text.section(u'.', 0, 0);
  if (name == QLatin1String("recap-detailed")) return QStringLiteral("detailed-recap");
  if (name == QLatin1String("bill-of-material")) return QStringLiteral("bill");
  if (name == QLatin1String("project-information")) return QStringLiteral("information");
  return name;
}

// Behind the title stands what was not counted.
QStringList WithoutUncounted(QStringList lines) {
  while (lines.size() > 1 && lines[1].startsWith(QLatin1String("Not counted:"))) lines.removeAt(1);
  return lines;
}

void PlayFolder(const QString& folder) {
  const QString id = LinesOf(folder + QStringLiteral("/project.txt")).value(0);
  const QString expected = folder + QStringLiteral("/expected");
  const QStringList before = Snapshot(folder);
  for (const QString& text : QDir(expected).entryList(QDir::Files, QDir::Name)) {
    const QStringList lines = LinesOf(expected + u'/' + text);
    const PlayedCommand played = PlayCommand(folder + QStringLiteral("/home"),
                                             {QStringLiteral("report"), ReportOf(text), id});
    if (text.endsWith(QLatin1String(".failure.txt"))) {
      EXPECT_EQ(played.status, ExitStatus::Stopped) << text.toStdString();
      for (const QString& part : lines)
        EXPECT_TRUE(played.complaints.join(u' ').contains(part)) << part.toStdString();
      EXPECT_TRUE(played.out.isEmpty());
      continue;
    }
    EXPECT_EQ(WithoutUncounted(played.Lines()), lines)
        << text.toStdString() << "\n"
        << played.out.toStdString() << played.complaints.join(u'\n').toStdString();
  }
  EXPECT_EQ(Snapshot(folder), before);
}

TEST(CommandGolden, EveryProjectOfTheTestDataComesOutLineForLine) {
  int folders = 0;
  for (const QString& name :
       QDir(DataPathOf({})).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
    if (!QFile::exists(DataPathOf(name) + QStringLiteral("/project.txt"))) continue;
    SCOPED_TRACE(name.toStdString());
    PlayFolder(DataPathOf(name));
    ++folders;
  }
  EXPECT_GE(folders, 10);
}

}  // namespace
}  // namespace tamo::test
