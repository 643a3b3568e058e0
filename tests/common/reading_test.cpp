#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "common/failure.h"
#include "common/files.h"
#include "support/faultdisk.h"

namespace tamo::test {
namespace {

const QStringList kTwelve = {"R1", "R2", "R3", "R4",  "R5",  "R6",
                             "R7", "R8", "R9", "R10", "R11", "R12"};

// What is read badly, or is gone, is never taken for empty.
class Reading : public ::testing::Test {
 protected:
  QString Path(const char* name) const { return dir.path() + "/Tamo/" + QLatin1String(name); }
  QString Folder() const { return dir.path() + "/Tamo"; }

  void Put(const char* name, const QByteArray& bytes) const {
    RealDisk().MakeFolder(Folder());
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QStringList OnDisk(const char* name) const {
    Files others(const_cast<FaultDisk&>(disk));
    QStringList lines;
    others.ReadLines(Path(name), lines);
    return lines;
  }
  QStringList Read(const char* name, int expected) {
    QStringList lines;
    EXPECT_EQ(files.ReadLines(Path(name), lines), expected);
    return lines;
  }
  void PutTwelve() const { Put("Jobs.lst", kTwelve.join("\r\n").toUtf8() + "\r\n"); }

  QTemporaryDir dir;
  FaultDisk disk;
  Files files{disk};
};

TEST_F(Reading, MissingIsNoFailure) {
  Put("other", "x");
  EXPECT_TRUE(Read("Jobs.lst", kFileNotFound).isEmpty());
  EXPECT_TRUE(files.Notice().isEmpty());
  files.SaveLines(Path("Jobs.lst"), {"a"}, FileKind::List);
  EXPECT_EQ(OnDisk("Jobs.lst"), QStringList{"a"});
}

TEST_F(Reading, UnreadableStandsInTheNoticeUntilItCanBeRead) {
  PutTwelve();
  disk.DenyReading(Path("Jobs.lst"));
  EXPECT_TRUE(Read("Jobs.lst", kNoAccess).isEmpty());
  EXPECT_TRUE(files.Notice().contains(Path("Jobs.lst")));
  EXPECT_TRUE(files.Notice().contains("access"));
  disk.AllowReading(Path("Jobs.lst"));
  EXPECT_TRUE(files.TryAgain());
  EXPECT_TRUE(files.Notice().isEmpty());
}

TEST_F(Reading, WhatWasReadBeforeStaysWhenItCantBeReadAgain) {
  PutTwelve();
  EXPECT_EQ(Read("Jobs.lst", kNoError), kTwelve);
  disk.DenyReading(Path("Jobs.lst"));
  EXPECT_EQ(Read("Jobs.lst", kNoAccess), kTwelve);
}

TEST_F(Reading, NothingIsWrittenOverWhatCouldNotBeRead) {
  PutTwelve();
  disk.DenyReading(Path("Jobs.lst"));
  Read("Jobs.lst", kNoAccess);
  EXPECT_NE(files.SaveLines(Path("Jobs.lst"), {"new"}, FileKind::List), kNoError);
  EXPECT_TRUE(files.Notice().contains("Your entries wait here"));
  EXPECT_EQ(Read("Jobs.lst", kNoError), QStringList{"new"});  // what was entered stays
  EXPECT_FALSE(files.TryAgain());
  disk.AllowReading(Path("Jobs.lst"));
  EXPECT_EQ(OnDisk("Jobs.lst"), kTwelve);
  EXPECT_TRUE(files.TryAgain());
  EXPECT_EQ(OnDisk("Jobs.lst"), kTwelve + QStringList{"new"});
  EXPECT_TRUE(files.Notice().isEmpty());
}

// The list on the screen is still that of the time when the file could not be read.
TEST_F(Reading, AStaleListIsMergedAtEachSave) {
  PutTwelve();
  disk.DenyReading(Path("Jobs.lst"));
  Read("Jobs.lst", kNoAccess);
  disk.AllowReading(Path("Jobs.lst"));
  files.SaveLines(Path("other"), {"x"});
  EXPECT_TRUE(files.Notice().isEmpty());
  files.SaveLines(Path("Jobs.lst"), {"n1"}, FileKind::List);
  EXPECT_EQ(OnDisk("Jobs.lst"), kTwelve + QStringList{"n1"});
  files.SaveLines(Path("Jobs.lst"), {"n1", "n2"}, FileKind::List);
  EXPECT_EQ(OnDisk("Jobs.lst"), kTwelve + (QStringList{"n1", "n2"}));
  files.SaveLines(Path("Jobs.lst"), {"n2"}, FileKind::List);
  EXPECT_EQ(OnDisk("Jobs.lst"), kTwelve + QStringList{"n2"});
}

TEST_F(Reading, GoneIsNotEmpty) {
  PutTwelve();
  Read("Jobs.lst", kNoError);
  disk.Hide(Folder());
  EXPECT_EQ(Read("Jobs.lst", kGone), kTwelve);
  EXPECT_TRUE(Read("Never.read", kGone).isEmpty());
  EXPECT_EQ(files.MakeFolder(Folder()), kGone);
  EXPECT_NE(files.SaveLines(Path("Jobs.lst"), kTwelve + QStringList{"R13"}, FileKind::List),
            kNoError);
  EXPECT_TRUE(files.Notice().contains("The data folder can't be reached"));
  EXPECT_TRUE(files.Notice().contains("Your entries wait here"));
  disk.Unhide(Folder());
  EXPECT_TRUE(files.TryAgain());
  EXPECT_EQ(OnDisk("Jobs.lst"), kTwelve + QStringList{"R13"});
  EXPECT_TRUE(files.Notice().isEmpty());
}

TEST_F(Reading, AFileThatIsGoneIsNotMadeAnewUntilTheEstimatorSaysSo) {
  PutTwelve();
  Read("Jobs.lst", kNoError);
  RealDisk().RemoveFile(Path("Jobs.lst"));
  EXPECT_EQ(files.SaveLines(Path("Jobs.lst"), {"R1"}, FileKind::List), kGone);
  EXPECT_FALSE(disk.Exists(Path("Jobs.lst")));
  EXPECT_FALSE(files.TryAgain());
  EXPECT_TRUE(files.BeginAnewQuestion().contains("Jobs.lst"));
  files.BeginAnew();
  EXPECT_EQ(OnDisk("Jobs.lst"), QStringList{"R1"});
  EXPECT_TRUE(files.Notice().isEmpty());
  EXPECT_TRUE(files.BeginAnewQuestion().isEmpty());
}

TEST_F(Reading, WhatTheProgramRemovedIsNotGone) {
  PutTwelve();
  Read("Jobs.lst", kNoError);
  files.Remove(Path("Jobs.lst"));
  Read("Jobs.lst", kFileNotFound);
  EXPECT_TRUE(files.Notice().isEmpty());
}

TEST_F(Reading, WhatAListNamesIsGoneWhenItIsMissing) {
  Put("other", "x");
  files.Expect(Path("Record"));
  Read("Record", kGone);
  EXPECT_TRUE(files.Notice().contains("Record"));
}

TEST_F(Reading, ARecordThatChangedMeanwhileWaitsForTheEstimator) {
  Put("Markups", ".10\r\n");
  Read("Markups", kNoError);
  disk.DenyReading(Path("Markups"));
  Read("Markups", kNoAccess);
  files.SaveLines(Path("Markups"), {".20"});
  Put("Markups", ".30\r\n");
  disk.AllowReading(Path("Markups"));
  EXPECT_FALSE(files.TryAgain());
  EXPECT_EQ(OnDisk("Markups"), QStringList{".30"});
  files.BeginAnew();
  EXPECT_EQ(OnDisk("Markups"), QStringList{".20"});
}

TEST_F(Reading, ARecordThatIsTheSameTakesTheEntry) {
  Put("Markups", ".10\r\n");
  Read("Markups", kNoError);
  disk.Hide(Folder());
  Read("Markups", kGone);
  files.SaveLines(Path("Markups"), {".20"});
  disk.Unhide(Folder());
  EXPECT_TRUE(files.TryAgain());
  EXPECT_EQ(OnDisk("Markups"), QStringList{".20"});
}

TEST_F(Reading, FarTooLargeIsSaidAtOnce) {
  Put("Settings.tamo", "");
  ASSERT_TRUE(QFile::resize(Path("Settings.tamo"), 1LL << 40));
  Read("Settings.tamo", kTooLarge);
  EXPECT_TRUE(files.Notice().contains("far too large"));
}

TEST_F(Reading, NoTextIsSaidAndUtf16WithAMarkIsRead) {
  Put("a", QByteArray("R\0001\0", 4));
  Read("a", kNotText);
  EXPECT_TRUE(files.Notice().contains("no text"));
  Put("b", QByteArray("\xFF\xFER\0001\0\r\0\n\0", 10));
  EXPECT_EQ(Read("b", kNoError), QStringList{"R1"});
  Put("c", QByteArray("\xFE\xFF\0R\0001", 6));
  EXPECT_EQ(Read("c", kNoError), QStringList{"R1"});
}

TEST_F(Reading, AReportGetsNothingOfWhatIsGone) {
  PutTwelve();
  Read("Jobs.lst", kNoError);
  disk.Hide(Folder());
  QString text;
  EXPECT_EQ(files.ReadForReport(Path("Jobs.lst"), text), kGone);
  EXPECT_TRUE(text.isEmpty());
}

// Counts how often a folder is listed.
class ListedDisk : public RealDisk {
 public:
  QStringList Names(const QString& folder) override {
    ++listed;
    return RealDisk::Names(folder);
  }
  int listed = 0;
};

TEST_F(Reading, AFolderIsListedOnceForAllThatIsMissing) {
  Put("r7", "x");
  ListedDisk counting;
  Files others(counting);
  QString text;
  {
    const Files::Look look(others);
    for (int i = 0; i < 100; ++i) {
      const int error = others.ReadForReport(Path("R") + QString::number(i), text);
      EXPECT_EQ(error, i == 7 ? kNoError : kFileNotFound);
    }
  }
  EXPECT_EQ(counting.listed, 1);
}

TEST(Merging, KeepsWhatBothSidesEntered) {
  QString merged;
  EXPECT_TRUE(MergeTexts(FileKind::List, "a\r\nb\r\n", "b\r\nc\r\n", "a\r\nb\r\nd\r\n", merged));
  EXPECT_EQ(merged, "b\r\nd\r\nc\r\n");
  EXPECT_TRUE(MergeTexts(FileKind::Pairs, "", "R2\r\nTrue\r\nR3\r\nTrue\r\n",
                         "R1\r\nTrue\r\nR2\r\nTrue\r\n", merged));
  EXPECT_EQ(merged, "R1\r\nTrue\r\nR2\r\nTrue\r\nR3\r\nTrue\r\n");
  EXPECT_TRUE(MergeTexts(FileKind::Lines, "x\r\n", "x\r\nx\r\n", "x\r\ny\r\n", merged));
  EXPECT_EQ(merged, "x\r\ny\r\nx\r\n");  // a second line of the same text is an entry
  EXPECT_TRUE(MergeTexts(FileKind::Lines, "x\r\n", "x\r\na\r\nb\r\n", "x\r\na\r\n", merged));
  EXPECT_EQ(merged, "x\r\na\r\nb\r\n");  // what both added is there once
  EXPECT_TRUE(MergeTexts(FileKind::Sheet, "", "8\r\nx\r\n", "9\r\ny\r\n", merged));
  EXPECT_EQ(merged, "9\r\ny\r\nx\r\n");
  EXPECT_TRUE(MergeTexts(FileKind::Sheet, "9\r\n", "9\r\nx\r\n", "10\r\ny\r\n", merged));
  EXPECT_EQ(merged, "10\r\ny\r\nx\r\n");
  EXPECT_TRUE(MergeTexts(FileKind::Sheet, "9\r\nPaint 40\r\n", "9\r\nPaint 50\r\n",
                         "9\r\nPaint 40\r\nBase 7\r\n", merged));
  EXPECT_EQ(merged, "9\r\nBase 7\r\nPaint 50\r\n");
  EXPECT_FALSE(MergeTexts(FileKind::Record, "1", "2", "3", merged));
  EXPECT_TRUE(MergeTexts(FileKind::Record, "1", "2", "1", merged));
  EXPECT_EQ(merged, "2");
}

// Nothing is counted twice, and nothing goes, because two sides changed it.
TEST(Merging, LeavesToAPersonWhatBothSidesChanged) {
  QString merged;
  EXPECT_FALSE(MergeTexts(FileKind::Lines, "Paint 40\r\n", "Paint 50\r\n", "Paint 60\r\n", merged));
  EXPECT_FALSE(MergeTexts(FileKind::Sheet, "9\r\n", "8\r\nx\r\n", "10\r\ny\r\n", merged));
  EXPECT_FALSE(
      MergeTexts(FileKind::Pairs, "R1\r\nTrue\r\n", "R1\r\nTrue\r\nR2\r\nTrue\r\n", "", merged));
  EXPECT_TRUE(merged.isEmpty());
  // Of names nothing but the names counts.
  EXPECT_TRUE(MergeTexts(FileKind::List, "a\r\n", "b\r\n", "c\r\n", merged));
  EXPECT_EQ(merged, "c\r\nb\r\n");
}

}  // namespace
}  // namespace tamo::test
