#include <gtest/gtest.h>

#include <QRegularExpression>

#include "common/failure.h"
#include "common/files.h"
#include "common/numbers.h"
#include "randomproject.h"
#include "reportbench.h"
#include "reports/bill.h"
#include "reports/breakdown.h"
#include "reports/copies.h"
#include "reports/merge.h"
#include "reports/quantities.h"
#include "reports/recap.h"

// Ten thousand random projects: every report ends with lines or with one message, the same each
// time, and never with an infinity or a not-a-number.

namespace tamo::test {
namespace {

struct Outcome {
  QStringList lines;
  QString message;
  bool operator==(const Outcome&) const = default;
};

Markups RandomMarkups(unsigned seed) {
  const QString texts[] = {QStringLiteral(".10"), QStringLiteral("0"),    QString(),
                           QStringLiteral("ten"), QStringLiteral("-.05"), QStringLiteral("12")};
  Markups markups;
  for (QString* text :
       {&markups.LOH, &markups.LTX, &markups.LMU, &markups.MOH, &markups.MTX, &markups.MMU,
        &markups.BLOH, &markups.BLTX, &markups.BLMU, &markups.MIOH, &markups.MITX, &markups.MIMU}) {
    *text = texts[seed % 6];
    seed = seed / 6 + 7 * (seed % 5);
  }
  return markups;
}

constexpr int kReports = 8;

Report Make(int report, const ReportSource& source, const Markups& markups) {
  QString adjustment;
  switch (report) {
    case 0:
      return MinimalRecapSheet(source, markups, false, adjustment);
    case 1:
      return MinimalRecapSheet(source, markups, true, adjustment);
    case 2:
      return DetailedRecapSheet(source, markups);
    case 3:
      return Quantities(source);
    case 4:
      return BillofMaterial(source);
    case 5:
      return BreakDown(MakeBreak(source, markups, adjustment));
    case 6:
      return FieldCopy(source);
    default:
      return OfficeCopy(source, markups);
  }
}

Outcome Play(int report, const ReportSource& source, const Markups& markups) {
  try {
    const Report made = Make(report, source, markups);
    for (const ReportNote& note : made.notes) {
      for (const int row : note.rows) EXPECT_LT(row, made.lines.size());
    }
    return {made.lines.ToList(), {}};
  } catch (const RunTimeFailure& failure) {
    EXPECT_FALSE(failure.text.isEmpty());
    return {{}, failure.text};
  }
}

TEST(RandomProjects, EveryReportEndsWithLinesOrOneMessageAndTwiceTheSame) {
  static const QRegularExpression wild(QStringLiteral("\\b(inf|nan)\\b"),
                                       QRegularExpression::CaseInsensitiveOption);
  MemoryDisk disk;
  Files files(disk);
  std::mt19937 random(20211214);
  int stopped = 0;
  for (int i = 0; i < 10000; ++i) {
    FillWithRandomProject(disk, random);
    const ReportSource source{files, QStringLiteral("/p/"), QStringLiteral("/"), {}, i % 3 == 0};
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
    const ReportSource source{files, QStringLiteral("/p/"), QStringLiteral("/"), {}, false};
    const std::vector<MergedRow> rows = Calculate(source);
    EXPECT_EQ(rows.size(), static_cast<size_t>(sums.size()));
    for (const MergedRow& row : rows)
      EXPECT_EQ(row.value, static_cast<double>(sums[row.name]) / 4) << row.name.toStdString();
  }
}

}  // namespace
}  // namespace tamo::test
