// The value types of the takeoff: what is written in which column, and what comes back.

#include <gtest/gtest.h>

#include "common/failure.h"
#include "takeoff/arealine.h"
#include "takeoff/itemline.h"
#include "takeoff/nextname.h"
#include "takeoff/roomline.h"
#include "takeoff/takeofffiles.h"
#include "takeoff/unitcodes.h"

namespace tamo {
namespace {

const QString kTwenty = QStringLiteral("ABCDEFGHIJKLMNOPQRST");

TEST(RoomLine, ColumnsOfANewLine) {
  EXPECT_EQ(RoomLine::Of(QStringLiteral("Wall Paint"), QStringLiteral("WALLS"), QStringLiteral("0"),
                         QStringLiteral("SF"))
                .Text(),
            QStringLiteral("Wall Paint           WALLS                   0 SF"));
}

TEST(RoomLine, NamesOfOneToTwentyCharactersComeBack) {
  for (int width = 1; width <= 20; ++width) {
    const QString name = kTwenty.left(width);
    const RoomLine line =
        RoomLine::Of(name, QStringLiteral("FLR"), QStringLiteral("12.5"), QStringLiteral("LF"));
    EXPECT_EQ(line.Text().size(), 49);
    EXPECT_EQ(line.Text().left(21), name + QString(21 - width, QLatin1Char(' ')));
    EXPECT_EQ(line.System(), name);
    EXPECT_EQ(line.FinishArea(), QStringLiteral("FLR"));
    EXPECT_EQ(line.Quantity(), 12.5);
    EXPECT_EQ(line.QuantityText(), QStringLiteral("12.5"));
    EXPECT_EQ(line.Text().mid(47), QStringLiteral("LF"));
  }
}

TEST(RoomLine, ANameOfTwentyKeepsTheBlankInColumn21) {
  const QString text =
      RoomLine::Of(kTwenty, QStringLiteral("WALLS"), QStringLiteral("0"), QStringLiteral("SF"))
          .Text();
  EXPECT_EQ(text.left(22), kTwenty + QStringLiteral(" W"));
}

TEST(RoomLine, FinishAreasOfTenComeBackWithNine) {
  const QString ten = QStringLiteral("0123456789");
  for (int width = 0; width <= 10; ++width) {
    const RoomLine line = RoomLine::Of(QStringLiteral("Paint"), ten.left(width),
                                       QStringLiteral("7"), QStringLiteral("SF"));
    EXPECT_EQ(line.Text().mid(21, 11), ten.left(width) + QString(11 - width, QLatin1Char(' ')));
    EXPECT_EQ(line.FinishArea(), ten.left(qMin(width, 9)));
    EXPECT_EQ(line.Quantity(), 7);
  }
}

TEST(RoomLine, QuantitiesOfAllWidthsAndSigns) {
  const struct {
    const char* text;
    double value;
  } table[] = {{"0", 0},
               {".5", .5},
               {"-.5", -.5},
               {"-3", -3},
               {"15.5", 15.5},
               {"33.333333333", 33.333333333},
               {"1e5", 1},
               {"-1234567890123", -1234567890123.0},
               {"12345678901234", 12345678901234.0}};
  for (const auto& row : table) {
    const QString text = QString::fromLatin1(row.text);
    const RoomLine line =
        RoomLine::Of(kTwenty, QStringLiteral("0123456789"), text, QStringLiteral("COUNT"));
    EXPECT_EQ(line.Quantity(), row.value) << row.text;
    EXPECT_EQ(line.QuantityText(), text);
    EXPECT_EQ(line.Text().size(), 52);
    EXPECT_EQ(line.Text().mid(46), QStringLiteral(" COUNT"));
  }
}

TEST(RoomLine, WhatDoesNotFitIsRefusedByName) {
  try {
    RoomLine::Of(QStringLiteral("Paint"), QStringLiteral("WALLS"),
                 QStringLiteral("123456789012345"), QStringLiteral("SF"));
    FAIL();
  } catch (const RunTimeFailure& failure) {
    EXPECT_TRUE(failure.text.contains(QStringLiteral("123456789012345")));
    EXPECT_TRUE(failure.text.contains(QStringLiteral("Paint")));
  }
  EXPECT_THROW(RoomLine::Of(kTwenty + QStringLiteral("UV"), {}, {}, {}), RunTimeFailure);
  EXPECT_THROW(RoomLine::Of({}, QStringLiteral("012345678901"), {}, {}), RunTimeFailure);
}

TEST(RoomLine, ShortAndHandEditedLinesGiveWhatTheyHave) {
  EXPECT_EQ(RoomLine(QStringLiteral("Paint")).System(), QStringLiteral("Paint"));
  EXPECT_EQ(RoomLine(QStringLiteral("Paint")).FinishArea(), QString());
  EXPECT_EQ(RoomLine(QStringLiteral("Paint")).Quantity(), 0);
  EXPECT_EQ(RoomLine(QString()).QuantityText(), QString());
}

TEST(AreaLine, ColumnsOfANewLine) {
  EXPECT_EQ(
      AreaLine::Of(QStringLiteral("Carpet"), QStringLiteral("0"), QStringLiteral("SY")).Text(),
      QStringLiteral("Carpet                            0 SY"));
}

TEST(AreaLine, NamesOfOneToTwentyCharactersComeBack) {
  for (int width = 1; width <= 20; ++width) {
    const QString name = kTwenty.left(width);
    const AreaLine line = AreaLine::Of(name, QStringLiteral("-1234"), QStringLiteral("SF"));
    EXPECT_EQ(line.Text().size(), 38);
    EXPECT_EQ(line.System(), name);
    EXPECT_EQ(line.LinearQuantity(), -1234);
    EXPECT_EQ(line.SurfaceQuantity(), -1234);
    EXPECT_EQ(line.Text().mid(35), QStringLiteral(" SF"));
    EXPECT_EQ(line.UnitsStopgap(), QStringLiteral("1234 SF"));
  }
}

TEST(AreaLine, AQuantityOfFourteenCharactersComesBackFromBothColumns) {
  const QString quantity = QStringLiteral("12345678901234");
  const AreaLine line = AreaLine::Of(kTwenty, quantity, QStringLiteral("SF"));
  EXPECT_EQ(line.LinearQuantity(), 12345678901234.0);
  EXPECT_EQ(line.SurfaceQuantity(), 12345678901234.0);
  EXPECT_THROW(AreaLine::Of(QStringLiteral("A"), quantity + QLatin1Char('5'), {}), RunTimeFailure);
}

TEST(ItemLine, ThirtyColumnsAndTheTwoWidthsOfReading) {
  const ItemLine line = ItemLine::Of(QStringLiteral("Dumpsters"), QStringLiteral("1250.00"));
  EXPECT_EQ(line.Text(), QStringLiteral("Dumpsters              1250.00"));
  EXPECT_EQ(line.Name(), QStringLiteral("Dumpsters"));
  EXPECT_EQ(line.Price(), QStringLiteral("1250.00"));
}

TEST(ItemLine, NamesOfOneToTwentyCharacters) {
  for (int width = 1; width <= 20; ++width) {
    const ItemLine line = ItemLine::Of(kTwenty.left(width), QStringLiteral("1.00"));
    EXPECT_EQ(line.Text().size(), 30);
    EXPECT_EQ(line.SearchName(), kTwenty.left(width));
    EXPECT_EQ(line.Name(), kTwenty.left(qMin(width, 19)));
  }
}

TEST(ItemLine, ANameOfTwentyGivesItsLastCharacterToThePrice) {
  const ItemLine line = ItemLine::Of(kTwenty, QStringLiteral("1.00"));
  EXPECT_EQ(line.Price(), QStringLiteral("T      1.00"));
}

TEST(ItemLine, TwentyAndElevenDoNotFit) {
  EXPECT_THROW(ItemLine::Of(kTwenty, QStringLiteral("12345678.00")), RunTimeFailure);
  EXPECT_EQ(ItemLine::Of(kTwenty, QStringLiteral("1234567.00")).Text(),
            kTwenty + QStringLiteral("1234567.00"));
}

TEST(BottomLineMoney, Table) {
  const struct {
    const char* from;
    const char* to;
  } table[] = {{"12.5", "12.50"},
               {"0.25", ".25"},
               {"-3", "-3.00"},
               {"", "0.00"},
               {"0", "0.00"},
               {"abc", "0.00"},
               {"1.999", "1.99"},
               {"0.05", "0.05"},
               {"-0.05", "-0.05"},
               {"0.001", "0.00"},
               {"-.25", "-.25"},
               {"1,500", "1.00"},
               {"100", "100.00"},
               {".1", ".10"},
               {"-12.35", "-12.35"},
               {"0.09", "0.09"},
               {"99999999999", "99999999999.00"},
               {"-0.001", "-0.01"}};
  for (const auto& row : table)
    EXPECT_EQ(BottomLineMoney(QString::fromLatin1(row.from)), QString::fromLatin1(row.to))
        << row.from;
}

TEST(NextName, Table) {
  const struct {
    const char* name;
    const char* next;
  } table[] = {{"101", "102"},
               {"109", "110"},
               {"199", "100"},
               {"A99", "A00"},
               {"A9", "A1"},
               {"Lobby", "Lobb1"},
               {"Room 9", "Room10"},
               {"7", "8"},
               {"99", "00"},
               {"9", "10"},
               {"B", "1"},
               {"", "1"},
               {"Room 10", "Room 11"},
               {"R-1", "R-0"},
               {"Suite 09", "Suite 10"}};
  for (const auto& row : table)
    EXPECT_EQ(NextName(QString::fromLatin1(row.name)), QString::fromLatin1(row.next)) << row.name;
}

TEST(UnitCodes, TheThreeSets) {
  for (const char* unit : {"LF", "lf", "LM", "LY", "Ly"}) {
    EXPECT_TRUE(IsLinearOrCount(QLatin1String(unit))) << unit;
    EXPECT_FALSE(IsCount(QLatin1String(unit))) << unit;
  }
  for (const char* unit : {"EA", "CT", "EACH", "COUNT", "each"}) {
    EXPECT_TRUE(IsLinearOrCount(QLatin1String(unit))) << unit;
    EXPECT_TRUE(IsCount(QLatin1String(unit))) << unit;
  }
  for (const char* unit : {"SF", "SY", "", "LS", "LF ", "E"})
    EXPECT_FALSE(IsLinearOrCount(QLatin1String(unit))) << unit;
}

TEST(UnitCodes, WordsThatAskForAWidth) {
  for (const char* area : {"CLNG", "ceiling", "Flr", "FLOOR"})
    EXPECT_TRUE(AsksForWidth(QLatin1String(area)));
  for (const char* area : {"", "WALLS", "CEILINGS", "FL"})
    EXPECT_FALSE(AsksForWidth(QLatin1String(area)));
}

TEST(UnitCodes, FindLineTakesTheFirstSlotOrBeginning) {
  const QStringList lines = {QStringLiteral("Base"), QStringLiteral("Paint Walls"),
                             QStringLiteral("Paint")};
  EXPECT_EQ(FindLine(lines, QStringLiteral("Paint")), 1);
  EXPECT_EQ(FindLine(lines, QStringLiteral("paint")), 3);
  EXPECT_EQ(FindLine({QStringLiteral("Base"), QString(), QStringLiteral("Paint")},
                     QStringLiteral("Paint")),
            1);
  EXPECT_EQ(FindLine({}, QStringLiteral("Paint")), 0);
}

TEST(TakeoffNames, WhatIsNoFileNameIsRefused) {
  for (const char* name : {"", "a/b", "a\\b", "..", ".", "CON", "lpt1.x", "a\tb"})
    EXPECT_THROW(RequireName(QStringLiteral("room"), QLatin1String(name)), RunTimeFailure) << name;
  EXPECT_THROW(RequireName(QStringLiteral("room"), QString(300, QLatin1Char('x'))), RunTimeFailure);
  for (const char* name : {"101", "Lobby.", "Flur Süd", "a,b", "...x"})
    EXPECT_NO_THROW(RequireName(QStringLiteral("room"), QString::fromUtf8(name))) << name;
}

}  // namespace
}  // namespace tamo
