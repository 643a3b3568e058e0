#include "reports/bidoverview.h"

#include <gtest/gtest.h>

#include "common/columns.h"
#include "common/numbers.h"
#include "everyreport.h"
#include "randomproject.h"
#include "reportbench.h"
#include "reports/recap.h"

namespace tamo::test {
namespace {

#define S(text) QStringLiteral(text)

BidOverview Of(BenchProject& project) {
  return OverviewOfBid(project.Source(), project.MarkupsOfFile());
}

// The last total that the recap prints, and its manhours.
QString TotalOf(const QStringList& recap) {
  QString total;
  for (const QString& line : recap) {
    const qsizetype at = line.indexOf(S("$ "));
    if (at >= 0) total = line.mid(at + 2);
  }
  return total;
}
QString HoursOf(const QStringList& recap) {
  for (const QString& line : recap) {
    const QString begin = S("       This project will take ");
    if (line.startsWith(begin)) return line.mid(begin.size()).section(QLatin1Char(' '), 0, 0);
  }
  return {};
}

TEST(BidOverview, CountsWhatStands) {
  BenchProject project;
  project.System(S("Wall"), S("SF"), S("2.50"));
  project.System(S("Bare"), S("SF"), S("0.00"));
  project.Room(S("101"), {RoomLine(S("Wall"), S("100")), RoomLine(S("Bare"), S("0")), QString()});
  project.Room(S("102"), {RoomLine(S("Wall"), S("0"))});
  project.Area(S("Yard"), {AreaLine(S("Gone"), S("12"))});
  project.Items({S("Permit                 1850.00")});
  project.Adjust(S("-250"));
  const BidOverview state = Of(project);
  EXPECT_EQ(state.rooms, 2);
  EXPECT_EQ(state.roomLines, 3);
  EXPECT_EQ(state.areas, 1);
  EXPECT_EQ(state.areaLines, 1);
  EXPECT_EQ(state.withoutQuantity, 2);
  EXPECT_EQ(state.unpriced, (QStringList{S("Bare"), S("Gone")}));
  EXPECT_EQ(state.items, 1);
  EXPECT_EQ(state.itemPrices, 1850);
  EXPECT_EQ(state.adjustment, -250);
  EXPECT_TRUE(state.failure.isEmpty());
}

TEST(BidOverview, ItsFiguresAreTheRecaps) {
  BenchProject project;
  project.System(S("Wall"), S("SF"), S("0.00"), {{S("Stud")}});
  project.System(S("Door"), S("EA"), S("300"));
  project.Room(S("101"), {RoomLine(S("Wall"), S("1234")), RoomLine(S("Door"), S("3"))});
  project.Items({S("Permit                 1850.00")});
  project.Adjust(S("125"));
  QString adjustment;
  const QStringList recap =
      MinimalRecapSheet(project.Source(), project.MarkupsOfFile(), false, adjustment)
          .lines.ToList();
  const BidOverview state = Of(project);
  EXPECT_EQ(NumberText(state.total) + S(".00"), TotalOf(recap));
  EXPECT_EQ(NumberText(state.manhours), HoursOf(recap));
}

TEST(BidOverview, WhatCantBeReadIsSaidAndNotCounted) {
  BenchProject project;
  project.System(S("Wall"), S("SF"), S("2.50"));
  project.Room(S("101"), {RoomLine(S("Wall"), S("100"))});
  project.Room(S("102"), {RoomLine(S("Wall"), S("100"))});
  project.Remove(S("Rooms/102.rfs"));
  const BidOverview state = Of(project);
  EXPECT_EQ(state.total, 250);
  ASSERT_EQ(state.uncounted.size(), 1);
  EXPECT_TRUE(state.uncounted[0].contains(S("the room \"102\"")));
}

TEST(BidOverview, ARecapThatFailsSaysWhy) {
  BenchProject project;
  Material zero;
  zero.name = S("Stud");
  zero.ratio = S("0");
  project.System(S("Wall"), S("SF"), S("0.00"), {zero});
  project.Room(S("101"), {RoomLine(S("Wall"), S("100"))});
  const BidOverview state = Of(project);
  EXPECT_FALSE(state.failure.isEmpty());
  EXPECT_EQ(state.rooms, 1);
  EXPECT_EQ(state.total, 0);
}

// Whatever the project: the recap's own figures, or none where it has none.
TEST(BidOverview, OfRandomProjectsIsTheRecap) {
  MemoryDisk disk;
  Files files(disk);
  std::mt19937 random(20261122);
  int whole = 0;
  for (int i = 0; i < 3000; ++i) {
    FillWithRandomProject(disk, random);
    const ReportSource source{files, {S("/p/"), S("/")}, {}, false};
    const Markups markups = RandomMarkups(random());
    const Outcome recap = Play(0, source, markups);
    const BidOverview state = OverviewOfBid(source, markups);
    if (recap.lines.isEmpty()) {
      ASSERT_FALSE(state.failure.isEmpty()) << i;
      continue;
    }
    ++whole;
    ASSERT_EQ(NumberText(state.total) + S(".00"), TotalOf(recap.lines)) << i;
    ASSERT_EQ(NumberText(state.manhours), HoursOf(recap.lines)) << i;
  }
  EXPECT_GT(whole, 500);
}

}  // namespace
}  // namespace tamo::test
