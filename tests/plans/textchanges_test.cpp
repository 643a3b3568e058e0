#include "plans/textchanges.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace tamo;

namespace {

// A line of text, every letter six points wide, cut into pieces of `cut` letters.
void Write(PageContent& content, const QString& text, double x, double y, int cut = 100) {
  for (qsizetype from = 0; from < text.size(); from += cut) {
    TextPiece piece;
    piece.text = text.mid(from, cut);
    piece.size = 10;
    piece.box = NoBox();
    for (qsizetype i = 0; i < piece.text.size(); ++i) {
      const double left = x + 6.0 * double(from + i);
      const TextPlace place = {{left, y}, {left + 6, y}, {left, y - 8, left + 6, y + 2}};
      piece.places.push_back(place);
      piece.box.Take({place.box.left, place.box.top});
      piece.box.Take({place.box.right, place.box.bottom});
    }
    content.texts.push_back(piece);
  }
}

QStringList Changes(const PageContent& old, const PageContent& now, const SheetFit& fit = {}) {
  QStringList words;
  for (const ChangedPlace& place : TextChangesOf(old, now, fit)) words += place.words;
  return words;
}

}  // namespace

TEST(TextChanges, ADimensionThatBecameAnotherIsNamed) {
  PageContent old;
  PageContent now;
  Write(old, "8'-0\"", 100, 100);
  Write(now, "9'-0\"", 100, 100);
  for (PageContent* content : {&old, &now}) {
    Write(*content, "12'-6\"", 100, 140);
    Write(*content, "ROOM 101", 300, 100);
  }
  const std::vector<ChangedPlace> places = TextChangesOf(old, now, {});
  ASSERT_EQ(places.size(), 1U);
  EXPECT_EQ(places[0].words, "8'-0\" became 9'-0\"");
  EXPECT_EQ(places[0].kind, ChangedPlace::Kind::Changed);
  EXPECT_NEAR(places[0].box.left, 100, 1);
  EXPECT_NEAR(places[0].box.bottom, 102, 1);
}

TEST(TextChanges, HowTheFileCutsItsTextsIsNoChange) {
  PageContent old;
  PageContent now;
  Write(old, "PAINT ALL WALLS OF ROOM 101", 100, 100);
  Write(now, "PAINT ALL WALLS OF ROOM 101", 100, 100, 4);
  EXPECT_EQ(Changes(old, now), QStringList());
}

TEST(TextChanges, ALetterLostOrGainedNamesBothLines) {
  PageContent old;
  PageContent now;
  Write(old, "18'-0\"", 100, 100);
  Write(now, "8'-0\"", 106, 100);
  EXPECT_EQ(Changes(old, now), QStringList("18'-0\" became 8'-0\""));
  EXPECT_EQ(Changes(now, old), QStringList("8'-0\" became 18'-0\""));
}

TEST(TextChanges, GoneNewAndMovedAreToldApart) {
  PageContent old;
  PageContent now;
  Write(old, "NOTE 3", 100, 100);
  Write(now, "NOTE 4", 400, 500);
  Write(old, "DOOR 101", 100, 300);
  Write(now, "DOOR 101", 250, 340);
  EXPECT_EQ(Changes(old, now), QStringList({"Moved: DOOR 101", "Gone: NOTE 3", "New: NOTE 4"}));
}

TEST(TextChanges, TheOldSheetIsFitted) {
  PageContent old;
  PageContent now;
  Write(old, "ROOM 12", 100, 100);
  Write(now, "ROOM 12", 130, 80);
  EXPECT_EQ(Changes(old, now, Fit(1, 0, 30, -20)), QStringList());
  EXPECT_EQ(Changes(old, now), QStringList("Moved: ROOM 12"));
}

TEST(TextChanges, LettersThatCannotBeSeenDoNotCount) {
  PageContent old;
  PageContent now;
  Write(old, "SCANNED NOTE", 100, 100);
  old.texts.back().hidden = true;
  Write(now, "SCANED N0TE", 100, 100);
  now.texts.back().hidden = true;
  EXPECT_EQ(Changes(old, now), QStringList());
}

TEST(TextChanges, ALongLineIsCutToWhereItDiffers) {
  PageContent old;
  PageContent now;
  const QString rest =
      QString("ALL INTERIOR PARTITIONS ARE TO BE PAINTED WITH TWO COATS OVER ONE ").repeated(2);
  Write(old, rest + "COAT OF PRIMER", 10, 100);
  Write(now, rest + "COAT OF SEALER", 10, 100);
  const QStringList words = Changes(old, now);
  ASSERT_EQ(words.size(), 1);
  EXPECT_TRUE(words[0].contains("PRIMER became ...")) << words[0].toStdString();
  EXPECT_LT(words[0].size(), 150);
}

TEST(TextChanges, AHundredThousandTextsAreHeldAgainstEachOtherInTime) {
  PageContent old;
  PageContent now;
  for (int i = 0; i < 25000; ++i) {
    const double x = i % 100 * 34.0;
    const double y = i / 100 * 12.0;
    Write(old, QString::number(1000 + i % 8999), x, y);
    Write(now, QString::number(1000 + (i * 7) % 8999), x, y);
  }
  EXPECT_LE(TextChangesOf(old, now, {}).size(), 6000U);
}
