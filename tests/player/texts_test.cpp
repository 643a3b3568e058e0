#include <gtest/gtest.h>

#include "player/caret.h"
#include "player/difftext.h"
#include "player/values.h"

using namespace tamo;
using namespace tamo::player;

TEST(Caret, ControlCharactersAreShownWithCarets) {
  EXPECT_EQ(Shown(QString::fromLatin1("a\x01\t\n\r^\x7f", 7)).toStdString(), "a^A^I^J^M^^^?");
}

TEST(Caret, WhatIsShownReadsBack) {
  for (char16_t code = 0; code < 128; ++code) {
    if (code == 30) continue;  // shares its sign with the caret itself
    const QString text = QStringLiteral("x") + QChar(code) + QStringLiteral("y");
    EXPECT_EQ(Unshown(Shown(text)), text) << static_cast<int>(code);
  }
}

TEST(Caret, ATabIsPrintedAsATab) {
  EXPECT_EQ(Printed(QStringLiteral("101^ILOBBY^^I^A^")), QStringLiteral("101\tLOBBY^^I^A^"));
}

TEST(Caret, ATabAndItsSignAreTheSame) {
  EXPECT_EQ(Respelled(QStringLiteral("a\tb")), QStringLiteral("a^Ib"));
  EXPECT_EQ(Respelled(QStringLiteral("a^Ib")), QStringLiteral("a^Ib"));
  EXPECT_EQ(Respelled(QStringLiteral("^$")), QStringLiteral("^$"));
}

TEST(Lines, ATextIsItsLines) {
  EXPECT_EQ(ShownLines(QString()), QStringList());
  EXPECT_EQ(ShownLines(QStringLiteral("a\r\nb")), QStringList({"a", "b"}));
  EXPECT_EQ(ShownLines(QStringLiteral("a\r\n")), QStringList({"a"}));
  EXPECT_EQ(ShownLines(QStringLiteral("a\r\n\r\n")), QStringList({"a", ""}));
  EXPECT_EQ(ShownLines(QStringLiteral("a\rb\nc")), QStringList({"a^Mb^Jc"}));
}

TEST(Lines, AFileWithoutALastLineEndShowsOneMoreLine) {
  EXPECT_EQ(ShownFileLines(QString()), QStringList());
  EXPECT_EQ(ShownFileLines(QStringLiteral("a\r\n")), QStringList({"a"}));
  EXPECT_EQ(ShownFileLines(QStringLiteral("a\r\n\r\n")), QStringList({"a", ""}));
  EXPECT_EQ(ShownFileLines(QStringLiteral("a\r\nb")), QStringList({"a", "b", "^$"}));
}

TEST(Lines, ABlockMakesTheFileItShows) {
  for (const QString& content : {QString(), QStringLiteral("a\r\n"), QStringLiteral("a\r\nb"),
                                 QStringLiteral("\r\n"), QStringLiteral("a\nb\r\n^$\r\n")})
    EXPECT_EQ(FileContent(ShownFileLines(content)), content);
}

TEST(Diff, ShowsOnlyWhatDiffersAndItsNeighbours) {
  const QStringList expected = {"1", "2", "3", "4", "5", "6", "7"};
  const QStringList found = {"1", "2", "3", "4", "five ", "6", "7"};
  EXPECT_EQ(ShortDiff(expected, found).toStdString(),
            "    ...\n    |3|\n    |4|\n  - |5|\n  + |five |\n    |6|\n    |7|\n");
}

TEST(Diff, ALineThatIsMissingAndOneTooMany) {
  EXPECT_EQ(ShortDiff({"a", "b"}, {"b", "c"}).toStdString(), "  - |a|\n    |b|\n  + |c|\n");
  EXPECT_EQ(ShortDiff({}, {}).toStdString(), "");
}

TEST(Diff, IsCutShort) {
  QStringList many;
  for (int i = 0; i < 100; ++i) many += QString::number(i);
  EXPECT_EQ(ShortDiff({}, many, 5).count(QLatin1Char('\n')), 6);
}

TEST(Marks, AreOneLineEach) {
  Mark line;
  line.page = 2;
  line.points = {{10, 20.126}, {0.5, -0.001}};
  line.label = QStringLiteral("10.0 feet");
  EXPECT_EQ(MarkLine(line).toStdString(), "line 2 10 20.13 .5 0 255000000 .75 10.0 feet");
  Mark circle;
  circle.kind = Mark::Kind::Circle;
  circle.points = {{72, 144}};
  EXPECT_EQ(MarkLine(circle).toStdString(), "circle 1 72 144 255000000");
  line.points.push_back({30, 40});
  line.kind = Mark::Kind::Polyline;
  EXPECT_EQ(MarkLine(line).toStdString(), "polyline 2 10 20.13 .5 0 30 40 255000000 .75 10.0 feet");
  line.kind = Mark::Kind::CutOut;
  EXPECT_EQ(MarkLine(line).toStdString(), "polygon 2 10 20.13 .5 0 30 40 255000000 .75 10.0 feet");
}
