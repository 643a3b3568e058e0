#include "common/textrows.h"

#include <gtest/gtest.h>

#include <cstring>

#include "common/memory.h"

using tamo::ListRows;
using tamo::TextRows;

namespace {

QString S(const char* text) {
  return QString::fromUtf8(text);
}

}  // namespace

TEST(TextRows, RowsComeBackAsTheyWereAdded) {
  TextRows rows{S("Title"), QString()};
  rows += S("Größe");
  rows += S("½\" → 墙");
  rows.Add({u"a", u"", S("bc"), u"d"});
  rows.Add({QStringView(), u"→", QStringView()});
  rows += QStringList{S("x"), S("y")};
  EXPECT_EQ(rows.ToList(), (QStringList{S("Title"), QString(), S("Größe"), S("½\" → 墙"), S("abcd"),
                                        S("→"), S("x"), S("y")}));
  EXPECT_EQ(rows.size(), 8);
  EXPECT_EQ(rows.SizeOf(3), 6);
  EXPECT_EQ(rows.SizeOf(1), 0);
}

TEST(TextRows, TheFirstRowMayBeEmpty) {
  TextRows rows;
  rows += QString();
  rows.AddNarrow(0);
  rows.SetRow(0, {QStringView()});
  EXPECT_EQ(rows.ToList(), (QStringList{QString(), QString()}));
}

TEST(TextRows, ARowLongerThanAnyBlockStands) {
  TextRows rows;
  rows += S("before");
  const QString narrow(9 << 20, u'n');
  const QString wide(9 << 20, QChar(0x20AC));
  rows += narrow;
  rows += wide;
  rows += S("behind");
  EXPECT_EQ(rows.SizeOf(1), narrow.size());
  EXPECT_EQ(rows.ToList(), (QStringList{S("before"), narrow, wide, S("behind")}));
}

TEST(TextRows, ARowIsReplacedAndANarrowOneIsWrittenInPlace) {
  TextRows rows;
  rows += QString();
  std::memcpy(rows.AddNarrow(3), "\xE9t\xE9", 3);
  rows.SetRow(0, {u"→", u"head"});
  EXPECT_EQ(rows.ToList(), (QStringList{S("→head"), S("été")}));
}

TEST(TextRows, MovedRowsStayAndTheEmptiedOnesTakeNewOnes) {
  TextRows rows{S("a")};
  TextRows other(std::move(rows));
  rows = TextRows{S("b")};
  rows += S("c");
  EXPECT_EQ(other.ToList(), QStringList{S("a")});
  EXPECT_EQ(rows.ToList(), (QStringList{S("b"), S("c")}));
  other = std::move(rows);
  other += S("d");
  EXPECT_EQ(other.ToList(), (QStringList{S("b"), S("c"), S("d")}));
}

TEST(TextRows, LongRowsAndManyOnesFindRoom) {
  tamo::KeepMemory();
  TextRows rows;
  QStringList list;
  for (int i = 0; i < 30000; ++i) {
    const QString row(i % 97, i % 7 == 0 ? QChar(0x20AC) : QChar(u'a' + i % 26));
    rows += row;
    list += row;
  }
  const QString huge(3 << 20, u'h');
  rows += huge;
  list += huge;
  EXPECT_TRUE(rows == list);
}

TEST(ListRows, AReportIsSharedUntilARowIsChanged) {
  TextRows report;
  report += QStringList{S("one"), S("two")};
  ListRows rows(std::move(report));
  ListRows copy = rows;
  EXPECT_EQ(rows.Count(), 2);
  EXPECT_EQ(rows.At(1), S("two"));
  EXPECT_EQ(rows.Joined(), S("one\r\ntwo\r\n"));
  copy.Change()[1] = S("three");
  copy.Change().append(S("four"));
  EXPECT_EQ(copy.List(), (QStringList{S("one"), S("three"), S("four")}));
  EXPECT_EQ(copy.SizeOf(2), 4);
  EXPECT_EQ(rows.List(), (QStringList{S("one"), S("two")}));
  EXPECT_EQ(rows.At(1), S("two"));
}
