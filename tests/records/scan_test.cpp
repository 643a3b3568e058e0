// How rooms and areas are walked without copying them.

#include <gtest/gtest.h>

#include <iterator>
#include <random>

#include "common/textlines.h"
#include "records/areafile.h"
#include "records/itemline.h"
#include "records/roomfile.h"

namespace tamo {
namespace {

QStringList All(LineScanner lines) {
  QStringList all;
  QStringView line;
  while (lines.Next(line)) all += line.toString();
  return all;
}

TEST(RoomScan, TheHeightIsDroppedAndEmptyLinesCount) {
  const RoomScan room = ScanRoom(u"9\r\none\r\n\r\ntwo\r\n");
  EXPECT_TRUE(room.hasHeight);
  EXPECT_EQ(room.height, u"9");
  EXPECT_EQ(All(room.lines), (QStringList{"one", "", "two"}));
}

TEST(RoomScan, NothingBehindTheHeightIsNoLine) {
  EXPECT_TRUE(All(ScanRoom(u"9").lines).isEmpty());
  EXPECT_TRUE(All(ScanRoom(u"9\r\n").lines).isEmpty());
  EXPECT_FALSE(ScanRoom(u"").hasHeight);
}

TEST(RoomScan, EachLineEndIsTaken) {
  EXPECT_EQ(All(ScanRoom(u"9\rone\rtwo").lines), (QStringList{"one", "two"}));
  EXPECT_EQ(All(ScanRoom(u"9\none\r\ntwo\n").lines), (QStringList{"one", "two"}));
}

TEST(RoomScan, GivesTheLinesOfTheRoomThatIsCopied) {
  const QString text = QStringLiteral("8'\r\na\r\n\r\nb");
  EXPECT_EQ(RoomFileOf(text).lines, All(ScanRoom(text).lines));
  EXPECT_EQ(RoomFileOf(text).height, QStringLiteral("8'"));
}

TEST(LineScanner, GivesTheWholeLinesOfAnyText) {
  std::mt19937 random(3);
  const char16_t characters[] = {u'\r',     u'\n',     u'\n',     u'\t',    u'\x0e', u'\x0c',
                                 u'\x01',   u' ',      u'a',      u'7',     u'é',    u'墙',
                                 u'\x7fff', u'\x8000', u'\x800d', u'\xfffd'};
  for (int i = 0; i < 20'000; ++i) {
    QString text;
    const unsigned kinds = 2 + random() % (std::size(characters) - 1);
    for (unsigned size = random() % 40; size > 0; --size)
      text += QChar(characters[random() % kinds]);
    ASSERT_EQ(All(LineScanner(text)), WholeLines(text)) << i;
  }
}

TEST(AreaScan, HasNoHeightAndKeepsItsCommas) {
  EXPECT_EQ(All(ScanArea(u"one, and more\r\ntwo")), (QStringList{"one, and more", "two"}));
}

TEST(ItemPrice, IsTheNumberInTheLast12Characters) {
  EXPECT_EQ(ItemPrice(QStringLiteral("Bond                   1000.00")), 1000);
  EXPECT_EQ(ItemPrice(QStringLiteral("Crew")), 0);
  EXPECT_EQ(ItemPrice(QStringLiteral("crane              50.25")), 50.25);
  EXPECT_EQ(ItemPrice({}), 0);
}

}  // namespace
}  // namespace tamo
