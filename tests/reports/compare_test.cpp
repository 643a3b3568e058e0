#include "reports/compare.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "common/failure.h"
#include "common/numbers.h"
#include "everyreport.h"
#include "randomproject.h"
#include "reportbench.h"
#include "reports/bidchanges.h"
#include "reports/recap.h"

namespace tamo::test {
namespace {

struct Bid {
  MemoryDisk disk;
  Files files{disk};
  Markups markups;

  ReportSource Source() { return {files, {QStringLiteral("/p/"), QStringLiteral("/")}, {}, false}; }
  void Put(const char* path, const QByteArray& text) {
    disk.contents.insert(QStringLiteral("/p/") + QLatin1String(path), text);
  }
};

QStringList Compared(Bid& then, Bid& now) {
  Report report = Compare({then.Source(), then.markups, "then"}, {now.Source(), now.markups, "now"},
                          "12-2611001   Larkspur");
  return ListRows(std::move(report.lines)).Joined().split(QStringLiteral("\r\n"));
}

// A unit-priced system, one of labor and material, an item and an adjustment.
void FillPlain(Bid& bid) {
  bid.markups.MMU = bid.markups.LMU = bid.markups.BLMU = ".10";
  bid.Put("Rooms/Rooms.tamo", "A\r\nTrue\r\nB\r\nTrue\r\n");
  bid.Put("Rooms/A.rfs", "9\r\n" + RoomLine("Carpet", "100").toUtf8() + "\r\n");
  bid.Put("Rooms/B.rfs", "9\r\n" + RoomLine("Paint", "800").toUtf8() + "\r\n");
  bid.Put("Systems/Carpet.sys", "Carpet\r\nSF\r\n2.50\r\nNoColor\r\n\r\n\001\r\n\r\n\r\n");
  bid.Put("Systems/Paint.sys",
          "Paint\r\nSF\r\n0.00\r\nNoColor\r\n\r\n\001\r\n\r\n\r\nLatex\r\nGal\r\n20.00\r\n"
          "400\r\nupo\r\n200\r\nupm\r\n0\r\n50.00\r\n\r\n\r\n\r\n");
  bid.Put("oItems.tamo", "Permit                  500.00\r\n");
  bid.Put("Adjustment.tamo", "-50\r\n");
}

qint64 RecapTotal(Bid& bid) {
  QString adjustment;
  Report recap = MinimalRecapSheet(bid.Source(), bid.markups, false, adjustment);
  QString total;
  for (const QString& line : ListRows(std::move(recap.lines)).Joined().split("\r\n")) {
    const qsizetype dollars = line.indexOf(QLatin1String("$ "));
    if (dollars >= 0 && line.contains(QLatin1String("Total")))
      total = line.mid(dollars + 2).chopped(3);
  }
  return CentsOf(Value(total));
}

// The differences as the lines show them, the rounding with them.
qint64 SumOfLines(const QStringList& lines) {
  static const QRegularExpression last(QStringLiteral("([+-]?\\d+)\\.(\\d\\d)$"));
  static const QRegularExpression more(QStringLiteral("; ([+-]?\\d+)\\.(\\d\\d) more is"));
  const auto cents = [](const QRegularExpressionMatch& match) {
    if (!match.hasMatch()) return qint64(0);
    const qint64 part = match.captured(1).toLongLong() * 100;
    const bool minus = match.captured(1).startsWith(u'-');
    return minus ? part - match.captured(2).toLongLong() : part + match.captured(2).toLongLong();
  };
  QString section;
  qint64 sum = 0;
  for (const QString& line : lines) {
    if (line.isEmpty()) section.clear();
    for (const char* title : {"  Systems:", "  Items", "  Markups and"}) {
      if (section.isEmpty() && line.startsWith(QLatin1String(title)))
        section = QLatin1String(title);
    }
    const bool side = line.startsWith("    then") || line.contains(" by quantity, ");
    const bool counted = line.contains(" as before, with an amount of ");
    if (!section.isEmpty() && !side && !counted) sum += cents(last.match(line));
    sum += cents(more.match(line));
  }
  return sum;
}

TEST(Compare, TheSameBidTwiceHasNoDifference) {
  Bid bid;
  FillPlain(bid);
  const QString text = Compared(bid, bid).join('\n');
  EXPECT_TRUE(
      text.startsWith("What Changed\n\n  12-2611001   Larkspur\n  Then:  then\n  Now:   now\n"));
  EXPECT_TRUE(text.contains("Nothing in these two moves the total.")) << text.toStdString();
  EXPECT_TRUE(text.contains("2 systems are as before, with an amount of 490.00"))
      << text.toStdString();
  EXPECT_TRUE(text.contains("Rooms: 0 added, 0 removed, 0 changed"));
}

// 800 SF of paint: 2 gallons of 20 are 40, 4 hours of 50 are 200.
TEST(Compare, QuantityPriceAndBothAreToldApart) {
  Bid then;
  FillPlain(then);
  Bid quantity;
  FillPlain(quantity);
  quantity.Put("Rooms/B.rfs", "9\r\n" + RoomLine("Paint", "1600").toUtf8() + "\r\n");
  EXPECT_TRUE(Compared(then, quantity)
                  .join('\n')
                  .contains("Paint                              quantity\n"));
  EXPECT_TRUE(Compared(then, quantity)
                  .contains("        +240.00  Paint                              quantity"));

  Bid price;
  FillPlain(price);
  price.Put("Systems/Carpet.sys", "Carpet\r\nSF\r\n3.00\r\nNoColor\r\n\r\n\001\r\n\r\n\r\n");
  EXPECT_TRUE(
      Compared(then, price).contains("         +50.00  Carpet                             price"));

  Bid both;
  FillPlain(both);
  both.Put("Rooms/A.rfs", "9\r\n" + RoomLine("Carpet", "120").toUtf8() + "\r\n");
  both.Put("Systems/Carpet.sys", "Carpet\r\nSF\r\n3.00\r\nNoColor\r\n\r\n\001\r\n\r\n\r\n");
  const QString text = Compared(then, both).join('\n');
  EXPECT_TRUE(text.contains("price and quantity")) << text.toStdString();
  EXPECT_TRUE(text.contains("+50.00 by quantity, +60.00 by price")) << text.toStdString();
}

TEST(Compare, NewGoneItemsMarkupsAndAdjustmentHaveTheirLines) {
  Bid then;
  FillPlain(then);
  Bid now;
  FillPlain(now);
  now.Put("Rooms/Rooms.tamo", "B\r\nTrue\r\nC\r\nTrue\r\n");
  now.Put("Rooms/C.rfs", "9\r\n" + RoomLine("Base", "10").toUtf8() + "\r\n");
  now.Put("Systems/Base.sys", "Base\r\nLF\r\n4.00\r\nNoColor\r\n\r\n\001\r\n\r\n\r\n");
  now.Put("oItems.tamo", "Permit                  650.00\r\nDumpster                300.00\r\n");
  now.Put("Adjustment.tamo", "0.00\r\n");
  now.markups.MMU = ".20";
  const QStringList lines = Compared(then, now);
  const QString text = lines.join('\n');
  EXPECT_TRUE(text.contains("  Base                               new\n")) << text.toStdString();
  EXPECT_TRUE(text.contains("  Carpet                             gone\n")) << text.toStdString();
  EXPECT_TRUE(
      text.contains("Permit                                 500.00        650.00        +150.00"))
      << text.toStdString();
  EXPECT_TRUE(
      text.contains("Dumpster                                 none        300.00        +300.00"));
  EXPECT_TRUE(
      text.contains("Adjustment                             -50.00          0.00         +50.00"));
  EXPECT_TRUE(text.contains("The material markup was .10 and is .20."));
  EXPECT_TRUE(text.contains("    added    C "));
  EXPECT_TRUE(text.contains("    removed  A "));
  EXPECT_EQ(SumOfLines(lines), RecapTotal(now) - RecapTotal(then)) << text.toStdString();
}

TEST(Compare, FiveHundredRandomPairsAddUpToTheDifferenceOfTheirRecaps) {
  std::mt19937 random(20261122);
  int held = 0;
  for (int i = 0; held < 500 && i < 20000; ++i) {
    Bid then;
    Bid now;
    FillWithRandomProject(then.disk, random);
    now.disk.contents = then.disk.contents;
    // What stands in the next project takes the place of some files.
    MemoryDisk next;
    FillWithRandomProject(next, random);
    const auto share = random() % 4 + 1;
    for (auto file = next.contents.constBegin(); file != next.contents.constEnd(); ++file) {
      if (random() % share == 0) now.disk.contents.insert(file.key(), file.value());
    }
    then.markups = RandomMarkups(random());
    now.markups = random() % 2 == 0 ? then.markups : RandomMarkups(random());
    try {
      const qint64 before = RecapTotal(then);
      const qint64 after = RecapTotal(now);
      if (std::abs(before) > 1'000'000'000'000 || std::abs(after) > 1'000'000'000'000) continue;
      const QStringList lines = Compared(then, now);
      ASSERT_EQ(SumOfLines(lines), after - before) << i << '\n' << lines.join('\n').toStdString();
      ++held;
    } catch (const RunTimeFailure&) {
      continue;  // a project that has no recap
    }
  }
  EXPECT_EQ(held, 500);
}

}  // namespace
}  // namespace tamo::test
