// What the lines of a takeoff write into which column, and what comes back.

#include <gtest/gtest.h>

#include "common/failure.h"
#include "records/arealine.h"
#include "records/itemline.h"
#include "records/roomline.h"
#include "records/storable.h"

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

TEST(TakeoffNames, WhatIsNoFileNameIsRefused) {
  for (const char* name : {"", "a/b", "a\\b", "..", ".", "CON", "lpt1.x", "a\tb"})
    EXPECT_THROW(RequireName(QStringLiteral("room"), QLatin1String(name)), RunTimeFailure) << name;
  EXPECT_THROW(RequireName(QStringLiteral("room"), QString(300, QLatin1Char('x'))), RunTimeFailure);
  for (const char* name : {"101", "Lobby.", "Flur Süd", "a,b", "...x"})
    EXPECT_NO_THROW(RequireName(QStringLiteral("room"), QString::fromUtf8(name))) << name;
}

}  // namespace
}  // namespace tamo
