#include "reports/copyrows.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "everyreport.h"
#include "plaincopies.h"
#include "randomproject.h"
#include "reportbench.h"
#include "reports/copies.h"

// The rows of a copy that are made when they are read are those that are put together plainly, with
// the same sums, and stay what they were when the files change.

namespace tamo::test {
namespace {

#define S(text) QStringLiteral(text)

template <typename Make>
QString FailureOf(const Make& make) {
  try {
    make();
    return {};
  } catch (const RunTimeFailure& failure) {
    return failure.text;
  }
}

void ExpectSame(const TakeoffCopy& copy, const PlainCopy& plain) {
  ASSERT_EQ(copy.lines.ToList(), plain.lines);
  int longest = 0;
  for (qsizetype i = 0; i < copy.lines.size(); ++i) {
    ASSERT_EQ(copy.lines.SizeOf(i), plain.lines[i].size()) << i;
    ASSERT_EQ(copy.rows->IsDetail(i), plain.detail[static_cast<size_t>(i)]) << i;
    longest = std::max(longest, static_cast<int>(plain.lines[i].size()));
  }
  EXPECT_EQ(copy.lines.Longest(), longest);
  EXPECT_EQ(copy.total, plain.total);
  EXPECT_EQ(copy.labor, plain.labor);
  EXPECT_EQ(copy.material, plain.material);
}

TEST(CopyRows, EqualThePlainOnesInTenThousandRandomProjects) {
  MemoryDisk disk;
  Files files(disk);
  std::mt19937 random(20221122);
  qsizetype rows = 0;
  for (int i = 0; i < 10000; ++i) {
    FillWithRandomProject(disk, random);
    const ReportSource source{files, {S("/p/"), S("/")}, {}, i % 3 == 0};
    const Markups markups = RandomMarkups(random());
    for (const bool office : {false, true}) {
      TakeoffCopy copy;
      PlainCopy plain;
      const Markups used = office ? markups : Markups();
      const QString failure =
          FailureOf([&] { copy = office ? OfficeCopy(source, markups) : FieldCopy(source); });
      ASSERT_EQ(failure, FailureOf([&] { plain = MakePlainCopy(source, used, office); })) << i;
      if (!failure.isEmpty()) continue;
      ExpectSame(copy, plain);
      if (HasFatalFailure()) FAIL() << "project " << i;
      rows += copy.lines.size();
    }
  }
  EXPECT_GT(rows, 100'000);
}

// A thousand lines in a row, so that the rows are found among many.
void FillLargeProject(BenchProject& project) {
  std::vector<Material> materials;
  for (int system = 0; system < 8; ++system) {
    project.System(S("System %1").arg(system), S("SF"), system == 5 ? S("3.50") : S(""), materials);
    materials.push_back({S("Board %1").arg(system), S("EA"), S("12.5"), S("32"), S("upo"), S("40"),
                         S("upm"), S("5"), S("41.5")});
  }
  for (int room = 0; room < 10; ++room) {
    QStringList lines;
    for (int line = 0; line < 100; ++line)
      lines += RoomLine(S("System %1").arg((line * 7 + room) % 8), QString::number(line * 3.25));
    project.Room(S("Room %1").arg(room), lines);
  }
}

TEST(CopyRows, AreFoundAmongManyAndKeepLittle) {
  BenchProject project;
  FillLargeProject(project);
  const Markups markups = RandomMarkups(5);
  const TakeoffCopy copy = OfficeCopy(project.Source(), markups);
  ExpectSame(copy, MakePlainCopy(project.Source(), markups, true));
  size_t text = 0;
  for (qsizetype i = 0; i < copy.lines.size(); ++i)
    text += static_cast<size_t>(copy.lines.SizeOf(i));
  EXPECT_LT(copy.lines.Bytes() * 4, text);
}

TEST(CopyRows, StayWhatTheyWereWhenTheFilesChange) {
  BenchProject project;
  FillLargeProject(project);
  const TakeoffCopy copy = OfficeCopy(project.Source(), {});
  const QStringList before = MakePlainCopy(project.Source(), {}, true).lines;
  project.System(S("System 3"), S("SF"), S("99"));
  project.Room(S("Room 1"), {});
  EXPECT_NE(OfficeCopy(project.Source(), {}).lines.ToList(), before);
  EXPECT_EQ(copy.lines.ToList(), before);
}

TEST(CopyRows, AreSharedByTheListAndOutliveTheCopy) {
  ListRows shared;
  QStringList plain;
  {
    BenchProject project;
    FillLargeProject(project);
    shared = ListRows(OfficeCopy(project.Source(), {}).lines);
    plain = MakePlainCopy(project.Source(), {}, true).lines;
  }
  const ListRows another = shared;
  shared = ListRows();
  EXPECT_EQ(another.List(), plain);
  EXPECT_EQ(another.Joined(), plain.join(S("\r\n")) + S("\r\n"));
}

}  // namespace
}  // namespace tamo::test
