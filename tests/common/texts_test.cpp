#include <gtest/gtest.h>

#include "common/columns.h"
#include "common/failure.h"
#include "common/paths.h"
#include "common/textlines.h"

namespace tamo {
namespace {

TEST(Columns, CountFromOne) {
  const QString line = QStringLiteral("GWB Partition A      WALLS                 612 SF");
  EXPECT_EQ(Columns(line, 1, 20), QStringLiteral("GWB Partition A     "));
  EXPECT_EQ(Columns(line, 33, 14), QStringLiteral("           612"));
  EXPECT_EQ(From(line, 48), QStringLiteral("SF"));
  EXPECT_EQ(From(line, 480), QString());
  EXPECT_EQ(Columns(QStringLiteral("ab"), 2, 10), QStringLiteral("b"));
}

TEST(Columns, ANegativeWidthIsAFailure) {
  EXPECT_EQ(Blanks(0), QString());
  EXPECT_THROW(Blanks(-1), RunTimeFailure);
  EXPECT_THROW(PaddedRight(QStringLiteral("abcd"), 3), RunTimeFailure);
  EXPECT_THROW(PaddedLeft(QStringLiteral("abcd"), 3), RunTimeFailure);
  EXPECT_EQ(GrownRight(QStringLiteral("abcd"), 3), QStringLiteral("abcd"));
  EXPECT_EQ(GrownLeft(QStringLiteral("ab"), 3), QStringLiteral(" ab"));
}

TEST(Columns, CountCharactersNotBytes) {
  EXPECT_EQ(PaddedRight(QStringLiteral("m\u00b2"), 4), QStringLiteral("m\u00b2  "));
}

TEST(TrimmedBlanks, TakesBlanksOnly) {
  EXPECT_EQ(TrimmedBlanks(QStringLiteral("  a\t ")), QStringLiteral("a\t"));
}

TEST(WholeLines, EndAtEveryKindOfLineEnd) {
  EXPECT_EQ(WholeLines(QStringLiteral("a\r\nb\nc\rd")), QStringList({"a", "b", "c", "d"}));
  EXPECT_EQ(WholeLines(QStringLiteral("a\r\n\r\n")), QStringList({"a", ""}));
  EXPECT_EQ(WholeLines(QString()), QStringList());
  EXPECT_EQ(WholeLines(QStringLiteral("\r\n")), QStringList({""}));
}

TEST(WholeLines, JoinedComeBack) {
  const QStringList lines = {QStringLiteral(" a, b "), QString(), QStringLiteral("\"c\"")};
  EXPECT_EQ(WholeLines(JoinedLines(lines)), lines);
}

TEST(DelimitedFields, EndAtACommaOrALineEnd) {
  EXPECT_EQ(DelimitedFields(QStringLiteral("  a , b\r\n\r\n\"c,d\"\r\n")),
            QStringList({"a ", "b", "", "\"c", "d\""}));
  EXPECT_EQ(DelimitedFields(QStringLiteral("Mobilization \r\n")), QStringList({"Mobilization "}));
  EXPECT_EQ(DelimitedFields(QString()), QStringList());
}

TEST(DecodedText, Utf8ThenWindows1252) {
  EXPECT_EQ(DecodedText("\xEF\xBB\xBFna\xC3\xAFve"), QString::fromUtf8("na\u00efve"));
  EXPECT_EQ(DecodedText("na\xEFve \x93q\x94 \x80"),
            QString::fromUtf8("na\u00efve \u201cq\u201d \u20ac"));
  EXPECT_EQ(DecodedText(""), QString());
}

TEST(LineReader, PastTheEndLeavesTheValue) {
  LineReader reader({QStringLiteral("one")});
  QString value = QStringLiteral("old");
  EXPECT_TRUE(reader.Read(value));
  EXPECT_EQ(value, QStringLiteral("one"));
  EXPECT_FALSE(reader.Read(value));
  EXPECT_EQ(value, QStringLiteral("one"));
}

TEST(DataPath, IsBroughtToItsFormOnBothKindsOfPlatform) {
  EXPECT_EQ(FixedDataPath(QStringLiteral("C:\\"), kBackslash), QStringLiteral("C:\\"));
  EXPECT_EQ(FixedDataPath(QStringLiteral("D:\\Estimates"), kBackslash),
            QStringLiteral("D:\\Estimates\\Tamo\\"));
  EXPECT_EQ(FixedDataPath(QStringLiteral("D:\\Work\\"), kBackslash),
            QStringLiteral("D:\\Work\\Tamo\\"));
  EXPECT_EQ(FixedDataPath(QStringLiteral("C:\\tamo"), kBackslash), QStringLiteral("C:\\tamo\\"));
  EXPECT_EQ(FixedDataPath(QStringLiteral("C:"), kBackslash), QStringLiteral("C:"));
  EXPECT_EQ(FixedDataPath(QStringLiteral("C:\\x"), kBackslash), QStringLiteral("C:\\x\\Tamo\\"));
  EXPECT_EQ(FixedDataPath(QStringLiteral("/home/ann"), kSlash), QStringLiteral("/home/ann/Tamo/"));
  EXPECT_EQ(FixedDataPath(QStringLiteral("/srv/TAMO/"), kSlash), QStringLiteral("/srv/TAMO/"));
  EXPECT_EQ(FixedDataPath(QString(), kSlash), QString());
}

TEST(FolderLevels, OutermostFirst) {
  EXPECT_EQ(FolderLevels(QStringLiteral("C:\\a\\b\\")), QStringList({"C:\\a", "C:\\a\\b"}));
  EXPECT_EQ(FolderLevels(QStringLiteral("/a/b/")), QStringList({"/a", "/a/b"}));
}

TEST(Paths, BothSeparatorsAreUnderstood) {
  EXPECT_EQ(FileNameOf(QStringLiteral("E:\\Jobs\\Floor2.PDF")), QStringLiteral("Floor2.PDF"));
  EXPECT_EQ(FileNameOf(QStringLiteral("/jobs/Floor2.PDF")), QStringLiteral("Floor2.PDF"));
  EXPECT_EQ(FolderOf(QStringLiteral("E:\\Jobs\\Floor2.PDF")), QStringLiteral("E:\\Jobs"));
  EXPECT_EQ(FolderOf(QStringLiteral("Floor2.PDF")), QString());
}

TEST(NameRefusal, NamesThatLeaveTheirFolderAreRefused) {
  for (const char* bad : {"", "  ", ".", "..", "a/b", "a\\b", "../x", "a\nb", "a\x01", "CON", "nul",
                          "com1.sys", "LPT9"}) {
    EXPECT_FALSE(NameRefusal(QString::fromUtf8(bad)).isEmpty()) << bad;
  }
  EXPECT_FALSE(NameRefusal(QString(300, QLatin1Char('x'))).isEmpty());
  for (const char* good :
       {"Lobby", "ACT Ceiling 2x4", "Console", "a.b", "Stra\u00dfe", "Room 9 & 10"}) {
    EXPECT_EQ(NameRefusal(QString::fromUtf8(good)), QString()) << good;
  }
}

}  // namespace
}  // namespace tamo
