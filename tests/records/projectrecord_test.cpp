#include "records/projectrecord.h"
#include "records/markedplan.h"

#include <gtest/gtest.h>

#include "common/textlines.h"

namespace tamo {
namespace {

TEST(JobNFO, WithoutAPlanTenLinesThenTheNotes) {
  JobNFO record;
  record.jobID = QStringLiteral("00-2112001");
  record.jobName = QStringLiteral("Clinic");
  record.pageText = QStringLiteral("3/9");
  record.notes = QStringLiteral("a\r\nb");
  const QStringList lines = WholeLines(JobNFOText(record));
  ASSERT_EQ(lines.size(), 12);
  EXPECT_EQ(lines[9], QString());
  EXPECT_EQ(lines[10], QStringLiteral("a"));
}

TEST(JobNFO, WithAPlanEightLinesMore) {
  JobNFO record;
  record.planLocation = QStringLiteral("/p/Floor-Marked.pdf");
  record.pageText = QStringLiteral("3/9");
  record.zoomLevel = QStringLiteral("7");
  record.view[0] = QStringLiteral("120");
  record.view[1] = QStringLiteral("-4");
  record.view[2] = QStringLiteral("90");
  record.scale1 = QStringLiteral("1/4");
  record.scale2 = QStringLiteral("1");
  record.text5 = QStringLiteral("mm =          ft");
  record.notes = QStringLiteral("n\r\n");
  const QStringList lines = WholeLines(JobNFOText(record));
  ASSERT_EQ(lines.size(), 20)
      << "the notes end in a line end of their own, and the record in one more";
  JobNFO back;
  ReadJobNFO(lines, back);
  EXPECT_EQ(back.planLocation, record.planLocation);
  EXPECT_EQ(back.view[2], QStringLiteral("90"));
  EXPECT_EQ(back.text5, record.text5);
  EXPECT_EQ(back.notes, QStringLiteral("n\r\n"));
}

TEST(JobNFO, BlankLinesOfTheNotesAreLost) {
  JobNFO record;
  record.notes = QStringLiteral("one\r\n\r\ntwo");
  JobNFO back;
  ReadJobNFO(WholeLines(JobNFOText(record)), back);
  EXPECT_EQ(back.notes, QStringLiteral("one\r\ntwo\r\n"));
}

TEST(JobNFO, AShortFileLeavesTheLaterFields) {
  JobNFO record;
  record.phase = QStringLiteral("Bid");
  ReadJobNFO({QStringLiteral("00-2112001"), QStringLiteral("Clinic"), QStringLiteral("1/15/22")},
             record);
  EXPECT_EQ(record.bidDate, QStringLiteral("1/15/22"));
  EXPECT_EQ(record.phase, QStringLiteral("Bid"));
}

struct PlanRow {
  const char* path;
  const char* plain;
};

class PlanNames : public ::testing::TestWithParam<PlanRow> {};

TEST_P(PlanNames, LoseFolderExtensionAndMark) {
  EXPECT_EQ(PlainPlanName(QString::fromUtf8(GetParam().path)), QString::fromUtf8(GetParam().plain));
}

INSTANTIATE_TEST_SUITE_P(Plans, PlanNames,
                         ::testing::Values(PlanRow{"E:\\Jobs\\Floor2-Marked.PDF", "Floor2"},
                                           PlanRow{"/jobs/Floor2.pdf", "Floor2"},
                                           PlanRow{"E:\\Jobs\\Floor2.PDF.pdf", "Floor2"},
                                           PlanRow{"a-Marked-Marked.pdf", "a"},
                                           PlanRow{"a.pdf-Marked.pdf", "a"},
                                           PlanRow{"Floor5.pdf.PDF-Marked.pdf", "Floor5"},
                                           PlanRow{"A-101", "A-101"}, PlanRow{"", ""}));

TEST(PlanNames, LandInTheProjectsPlans) {
  EXPECT_EQ(MarkedPlanPath(QStringLiteral("E:\\Jobs\\Floor2-Marked.PDF"),
                           DataFolder("/d/Tamo/", "/").Project("00-2112002")),
            QStringLiteral("/d/Tamo/Projects/00-2112002/Plans/Floor2-Marked.pdf"));
}

}  // namespace
}  // namespace tamo
