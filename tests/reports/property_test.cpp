#include <gtest/gtest.h>

#include <QRegularExpression>

#include "common/files.h"
#include "common/numbers.h"
#include "everyreport.h"
#include "randomproject.h"
#include "reportbench.h"
#include "reports/merge.h"

// Ten thousand random projects: every report ends with lines or with one message, the same each
// time, and never with an infinity or a not-a-number.

namespace tamo::test {
namespace {

TEST(RandomProjects, EveryReportEndsWithLinesOrOneMessageAndTwiceTheSame) {
  static const QRegularExpression wild(QStringLiteral("\\b(inf|nan)\\b"),
                                       QRegularExpression::CaseInsensitiveOption);
  MemoryDisk disk;
  Files files(disk);
  std::mt19937 random(20211214);
  int stopped = 0;
  for (int i = 0; i < 10000; ++i) {
    FillWithRandomProject(disk, random);
    const ReportSource source{files, {QStringLiteral("/p/"), QStringLiteral("/")}, {}, i % 3 == 0};
    const Markups markups = RandomMarkups(random());
    for (int report = 0; report < kReports; ++report) {
      const Outcome first = Play(report, source, markups);
      const Outcome second = Play(report, source, markups);
      ASSERT_EQ(first, second) << "project " << i << ", report " << report;
      ASSERT_FALSE(first.lines.join(u'\n').contains(wild)) << "project " << i;
      stopped += first.lines.isEmpty() ? 1 : 0;
    }
  }
  EXPECT_GT(stopped, 100);  // the projects are wild enough to stop some
  EXPECT_LT(stopped, 40000);
}

// The merge is a plain sum by name, whatever the order of the lines.
TEST(RandomProjects, TheMergeAddsUp) {
  std::mt19937 random(7);
  for (int i = 0; i < 200; ++i) {
    MemoryDisk disk;
    Files files(disk);
    QHash<QString, qint64> sums;
    QByteArray room = "9\r\n";
    for (int l = 0; l < 60; ++l) {
      const QString name = QStringLiteral("System %1").arg(random() % 9);
      const qint64 quarters = static_cast<qint64>(random() % 4000) - 1000;
      sums[name] += quarters;
      room += RoomLine(name, NumberText(static_cast<double>(quarters) / 4)).toUtf8() + "\r\n";
    }
    disk.contents.insert(QStringLiteral("/p/Rooms/Rooms.tamo"), "A\r\nTrue\r\n");
    disk.contents.insert(QStringLiteral("/p/Rooms/A.rfs"), room);
    const ReportSource source{files, {QStringLiteral("/p/"), QStringLiteral("/")}, {}, false};
    const std::vector<MergedRow> rows = Calculate(source);
    EXPECT_EQ(rows.size(), static_cast<size_t>(sums.size()));
    for (const MergedRow& row : rows)
      EXPECT_EQ(row.value, static_cast<double>(sums[row.name]) / 4) << row.name.toStdString();
  }
}

}  // namespace
}  // namespace tamo::test
