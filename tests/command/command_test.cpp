#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "commandbench.h"
#include "common/failure.h"
#include "export/tablefile.h"
#include "support/sourcefile.h"

namespace tamo::test {
namespace {

QStringList Words(const char* line) {
  return QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts);
}

class Command : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(CopyFolder(DataPathOf(QStringLiteral("riverside/home")), Home()));
  }
  QString Home() const { return folder.filePath(QStringLiteral("home")); }
  QString Project(const char* file) const {
    return Home() + QStringLiteral("/Tamo/Projects/07-2611004/") + QLatin1String(file);
  }
  PlayedCommand Play(const char* line) { return PlayCommand(disk, Home(), Words(line)); }
  PlayedCommand Play(const QStringList& words) { return PlayCommand(disk, Home(), words); }
  static void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  static QByteArray Read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir folder;
  FaultDisk disk;
};

TEST_F(Command, TellsWhatIsWrongWithItsLine) {
  const std::pair<const char*, const char*> lines[] = {
      {"", "Say what to do"},
      {"reprot recap 07-2611004", "Say what to do"},
      {"--data", "Behind --data"},
      {"--data /x", "Say what to do"},
      {"report", "Say which report"},
      {"report recaps 07-2611004", "There is no report \"recaps\""},
      {"report recap", "of which project"},
      {"report recap 07-2611004 07-2611002", "too much"},
      {"report recap 07-2611004 --csv --pdf", "Only one format"},
      {"report recap 07-2611004 --cvs", "There is no option --cvs"},
      {"report recap 07-2611004 -o", "Behind -o"},
      {"report recap 07-2611004 --output=", "is empty"},
      {"list 07-2611004", "list takes no"},
      {"check --pdf", "Only reports"},
  };
  for (const auto& [line, words] : lines) {
    const PlayedCommand played = Play(line);
    EXPECT_EQ(played.status, ExitStatus::Usage) << line;
    EXPECT_TRUE(played.complaints.value(0).contains(QLatin1String(words)))
        << line << ": " << played.complaints.join(u'\n').toStdString();
    EXPECT_TRUE(played.out.isEmpty());
  }
}

TEST_F(Command, TellsWhichFolderOrProjectIsMissing) {
  EXPECT_EQ(Play("report recap 99-0000000").status, ExitStatus::NoBid);
  EXPECT_EQ(Play("report recap ../../etc").status, ExitStatus::NoBid);
  EXPECT_EQ(Play("report recap .").status, ExitStatus::NoBid);
  EXPECT_EQ(Play("check 99-0000000").status, ExitStatus::NoBid);
  const PlayedCommand nowhere = Play("list --data /no/such/folder");
  EXPECT_EQ(nowhere.status, ExitStatus::NoBid);
  EXPECT_TRUE(nowhere.complaints.value(0).contains(QLatin1String("/no/such/folder")));
  EXPECT_EQ(Play({QStringLiteral("list"), QStringLiteral("--data"), folder.path()}).status,
            ExitStatus::NoBid);
}

TEST_F(Command, KnowsWhatIsACommandAndWhatIsAPlan) {
  for (const char* line : {"report recap x", "list", "check", "--help", "-h", "--version",
                           "--csv list", "-o x list", "--data /x list", "--data=/x list", "help"})
    EXPECT_TRUE(IsCommand(Words(line))) << line;
  for (const char* line : {"", "plan.pdf", "./report", "-platform offscreen", "-style fusion"})
    EXPECT_FALSE(IsCommand(Words(line))) << line;
}

TEST_F(Command, HelpNamesEveryReportAndEveryExitStatus) {
  const PlayedCommand help = Play("--help");
  EXPECT_EQ(help.status, ExitStatus::Done);
  for (const char* word :
       {"recap", "detailed-recap", "quantities", "bill", "breakdown", "office-copy", "field-copy",
        "information", "schedule-check", "changes", "--data", "--xlsx", "Exit status"})
    EXPECT_TRUE(help.out.contains(word)) << word;
  EXPECT_EQ(Play("--version").out, "Tamo 1.2.3\n");
  for (const QString& line : help.Lines()) EXPECT_LE(line.size(), 96);
}

TEST_F(Command, ListsTheProjects) {
  const PlayedCommand played = Play("list");
  EXPECT_EQ(played.status, ExitStatus::Done);
  EXPECT_TRUE(played.Lines().contains(QStringLiteral("07-2611004   Riverside Clinic")))
      << played.out.toStdString();
  EXPECT_TRUE(Play("list --csv").out.startsWith("Project,Name,Bid date,Phase,Locked\r\n"));
}

TEST_F(Command, FiguresOfTheTableAreThoseOfTheText) {
  const QJsonObject all =
      QJsonDocument::fromJson(Play("report recap 07-2611004 --json").out).object();
  double sum = 0;
  double total = 0;
  for (const QJsonValue& row : all[QStringLiteral("rows")].toArray()) {
    const QString line = row[QStringLiteral("Line")].toString();
    const double dollars = row[QStringLiteral("Total")].toDouble();
    if (line == QLatin1String("Total")) total = dollars;
    if (line == QLatin1String("System") || line == QLatin1String("Item") ||
        line == QLatin1String("Adjustment"))
      sum += dollars;
  }
  EXPECT_GT(total, 0);
  EXPECT_NEAR(sum, total, 0.5);
  EXPECT_TRUE(Play("report recap 07-2611004").out.contains("$ " + PlainNumber(total) + ".00"));
}

TEST_F(Command, SaysWhatItDidNotCount) {
  ASSERT_TRUE(QFile::remove(Project("Rooms/Lobby.rfs")));
  const PlayedCommand text = Play("report recap 07-2611004");
  EXPECT_EQ(text.status, ExitStatus::Found);
  EXPECT_TRUE(text.Lines().value(1).startsWith(QLatin1String("Not counted: the room \"Lobby\"")));
  for (const char* format : {"--csv", "--json"}) {
    const PlayedCommand table = Play((QByteArray("report recap 07-2611004 ") + format).constData());
    EXPECT_EQ(table.status, ExitStatus::Found);
    EXPECT_TRUE(table.out.contains("Not counted: the room")) << format;
  }
}

TEST_F(Command, ReplacesAFileAsAWholeOrNotAtAll) {
  const QString out = folder.filePath(QStringLiteral("recap.csv"));
  Write(out, "before");
  const QStringList words = {QStringLiteral("report"),     QStringLiteral("recap"),
                             QStringLiteral("07-2611004"), QStringLiteral("--csv"),
                             QStringLiteral("-o"),         out};
  disk.SetFull(true);
  const PlayedCommand full = Play(words);
  EXPECT_EQ(full.status, ExitStatus::NotWritten);
  EXPECT_TRUE(full.complaints.value(0).contains(QLatin1String("the disk is full")));
  EXPECT_EQ(Read(out), "before");
  disk.SetFull(false);
  disk.Deny(out);
  EXPECT_EQ(Play(words).status, ExitStatus::NotWritten);
  EXPECT_EQ(Read(out), "before");
  disk.Allow(out);
  const PlayedCommand written = Play(words);
  EXPECT_EQ(written.status, ExitStatus::Done);
  EXPECT_TRUE(written.out.isEmpty());
  EXPECT_TRUE(Read(out).startsWith("\xEF\xBB\xBFLine,Name,Quantity"));
}

TEST_F(Command, AReportThatStopsLeavesTheFileAsItWas) {
  const QString out = folder.filePath(QStringLiteral("breakdown.csv"));
  Write(out, "before");
  ASSERT_TRUE(CopyFolder(DataPathOf(QStringLiteral("zero-ratio/home")),
                         folder.filePath(QStringLiteral("zero"))));
  const QString id =
      QString::fromUtf8(Read(DataPathOf(QStringLiteral("zero-ratio/project.txt")))).trimmed();
  const PlayedCommand played = PlayCommand(folder.filePath(QStringLiteral("zero")),
                                           {QStringLiteral("report"), QStringLiteral("recap"), id,
                                            QStringLiteral("--csv"), QStringLiteral("-o"), out});
  EXPECT_EQ(played.status, ExitStatus::Stopped);
  EXPECT_FALSE(played.complaints.isEmpty());
  EXPECT_EQ(Read(out), "before");
}

TEST_F(Command, WritesNothingIntoTheDataFolder) {
  const QStringList before = Snapshot(Home());
  for (const char* line :
       {"list", "check", "report recap 07-2611004", "report office-copy 07-2611004 --csv",
        "report changes 07-2611004", "report schedule-check 07-2611004", "check 07-2611004 --json"})
    Play(line);
  EXPECT_EQ(Snapshot(Home()), before);
  const PlayedCommand into =
      Play({QStringLiteral("list"), QStringLiteral("-o"), Project("Systems/list.txt")});
  EXPECT_EQ(into.status, ExitStatus::Usage);
  EXPECT_EQ(Snapshot(Home()), before);
  const QTemporaryDir elsewhere;
  const QString link = elsewhere.filePath(QStringLiteral("list.txt"));
  ASSERT_TRUE(QFile::link(Project("Systems/list.txt"), link));
  EXPECT_EQ(Play({QStringLiteral("list"), QStringLiteral("-o"), link}).status, ExitStatus::Usage);
  EXPECT_EQ(Snapshot(Home()), before);
}

TEST_F(Command, CheckTellsWhatIsWrongInEachProject) {
  ASSERT_TRUE(QFile::remove(Project("oItems.tamo")));  // one of them has cents
  const PlayedCommand well = Play("check 07-2611004");
  EXPECT_EQ(well.status, ExitStatus::Done) << well.out.toStdString();
  EXPECT_EQ(well.Lines(), QStringList(QStringLiteral("All is well with the project.")));
  ASSERT_TRUE(QFile::remove(Project("Systems/Fire Caulk.sys")));
  ASSERT_TRUE(QFile::remove(Project("Rooms/Lobby.rfs")));
  Write(Project("Rooms/Attic.rfs"), "8\r\n");
  Write(Project("Systems/Broken.sys"), QByteArray("\0\1\2", 3));
  const PlayedCommand found = Play("check 07-2611004");
  EXPECT_EQ(found.status, ExitStatus::Found);
  EXPECT_TRUE(found.out.contains("unpriced: The system \"Fire Caulk\" has no file"));
  EXPECT_TRUE(found.out.contains("not counted: Not counted: the room \"Lobby\""));
  EXPECT_TRUE(found.out.contains("Attic.rfs: its list does not name it."));
  EXPECT_TRUE(found.out.contains("can't be read: ")) << found.out.toStdString();
  const PlayedCommand all = Play("check");
  EXPECT_EQ(all.status, ExitStatus::Found);
  EXPECT_TRUE(all.out.contains("Fire Caulk"));
}

TEST_F(Command, RunsWhileTheWindowsHaveTheProject) {
  Write(Project("InUse.lock"), "held");
  EXPECT_EQ(Play("report recap 07-2611004").status, ExitStatus::Done);
  EXPECT_EQ(Read(Project("InUse.lock")), "held");
}

TEST_F(Command, ChangesNeedAVersion) {
  const PlayedCommand played = Play("report changes 07-2611004");
  EXPECT_EQ(played.status, ExitStatus::Stopped);
  EXPECT_TRUE(
      played.complaints.value(0).contains(QLatin1String("No version of this bid was kept")));
}

TEST_F(Command, ChangesAreThoseSinceTheSampleWasSent) {
  const QString sample = test::SourceFile(QStringLiteral("data/Sample/Tamo"));
  const PlayedCommand text = Play({QStringLiteral("report"), QStringLiteral("changes"),
                                   QStringLiteral("12-2611001"), QStringLiteral("--data"), sample});
  EXPECT_EQ(text.status, ExitStatus::Done) << text.complaints.join(u'\n').toStdString();
  EXPECT_EQ(text.Lines().value(0), QStringLiteral("What Changed"));
  const PlayedCommand table =
      Play({QStringLiteral("report"), QStringLiteral("changes"), QStringLiteral("12-2611001"),
            QStringLiteral("--data"), sample, QStringLiteral("--csv")});
  EXPECT_TRUE(table.out.startsWith("What,Name,Change,Unit,"));
}

}  // namespace
}  // namespace tamo::test
