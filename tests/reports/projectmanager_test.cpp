#include <gtest/gtest.h>

#include "common/failure.h"
#include "reportbench.h"
#include "reports/projectinformation.h"
#include "reports/projectprogress.h"

namespace tamo::test {
namespace {

#define S(text) QStringLiteral(text)

QString Detail(const QString& name, const QString& dollars) {
  return (S("     ") + name).leftJustified(49) + dollars.rightJustified(13);
}

ProjectProgress Begun() {
  ProjectProgress progress;
  progress.Begin(600, 400, 200);
  return progress;
}

TEST(ProjectProgress, TotalsAreNumberTextWithCents) {
  const ProjectProgress progress = Begun();
  EXPECT_EQ(progress.ttText, S("600.00"));
  EXPECT_EQ(progress.tlText, S("400.00"));
  EXPECT_EQ(progress.tmText, S("200.00"));
  EXPECT_EQ(progress.tcText, S("0.00"));
  EXPECT_EQ(progress.lcText, S("0.00"));
  EXPECT_EQ(progress.mcText, S("0.00"));
}

TEST(ProjectProgress, ATickedBoxShowsTwoDecimalsAndAnUntickedOneThree) {
  ProjectProgress progress = Begun();
  progress.Tick(Detail(S("Labor"), S("100.00")), true);
  EXPECT_EQ(progress.tcText, S("100.00"));
  EXPECT_EQ(progress.pcText, S("16.66"));
  EXPECT_EQ(progress.lcText, S("100.00"));
  EXPECT_EQ(progress.lpText, S("25.00"));
  EXPECT_EQ(progress.mcText, S("0.00"));
  progress.Tick(Detail(S("Slab"), S("50.00")), true);
  EXPECT_EQ(progress.tcText, S("150.00"));
  EXPECT_EQ(progress.pcText, S("25.00"));
  EXPECT_EQ(progress.mcText, S("50.00"));
  EXPECT_EQ(progress.mpText, S("25.00"));
  progress.Tick(Detail(S("Slab"), S("50.00")), false);
  EXPECT_EQ(progress.pcText, S("16.666"));
  EXPECT_EQ(progress.mpText, S("0.00"));
}

TEST(ProjectProgress, SmallPercentagesBeginWithZeros) {
  ProjectProgress progress;
  progress.Begin(100000, 0, 100000);
  progress.Tick(Detail(S("Slab"), S("60.00")), true);
  EXPECT_EQ(progress.pcText, S(".06"));
  progress.Tick(Detail(S("Slab"), S("30.00")), false);
  EXPECT_EQ(progress.pcText, S(".030"));
  progress.Tick(Detail(S("Slab"), S("25.00")), false);
  EXPECT_EQ(progress.pcText, S(".005"));
  EXPECT_EQ(progress.mpText, S("0.00"));  // .005 per cent is cut to nothing
}

TEST(ProjectProgress, APercentageOfNothingIs0) {
  ProjectProgress progress;
  progress.Begin(0, 0, 0);
  progress.Tick(Detail(S("Labor"), S("10.00")), true);
  EXPECT_EQ(progress.pcText, S("0.00"));
  EXPECT_EQ(progress.lpText, S("0.00"));
}

TEST(ProjectProgress, TickingAndUntickingOneLineReturnsTheDollarFields) {
  ProjectProgress progress = Begun();
  progress.Tick(Detail(S("Slab"), S("33.00")), true);
  const ProjectProgress before = progress;
  progress.Tick(Detail(S("Labor"), S("77.00")), true);
  progress.Tick(Detail(S("Labor"), S("77.00")), false);
  EXPECT_EQ(progress.tcText, before.tcText);
  EXPECT_EQ(progress.lcText, before.lcText);
  EXPECT_EQ(progress.mcText, before.mcText);
  EXPECT_EQ(progress.completed, before.completed);
}

TEST(ProjectProgress, TheFirstTenCharactersTellLaborFromMaterial) {
  ProjectProgress progress = Begun();
  progress.Tick(Detail(S("Laborer Kit"), S("10.00")), true);
  EXPECT_EQ(progress.lcText, S("10.00"));
  progress.Tick(Detail(S("Day Labor"), S("10.00")), true);
  EXPECT_EQ(progress.mcText, S("10.00"));
}

TEST(ProjectProgress, ALinesValueIsThatOfItsLast11Characters) {
  ProjectProgress progress = Begun();
  progress.Tick(Detail(S("Labor"), S("1234567890.00")), true);
  EXPECT_EQ(progress.tcText, S("34567890.00"));
}

struct Door {
  BenchProject project;
  std::unique_ptr<FormBench> bench;
  Door() {
    project.System(
        S("Door"), S("EA"), S(""),
        {{S("Slab"), S("EA"), S("50"), S("1"), S("opu"), S("2"), S("mpu"), S("0"), S("40")}});
    project.Room(S("Lobby"), {});
    project.Area(S("Yard"), {AreaLine(S("Door"), S("2"), S("EA"))});
    bench = std::make_unique<FormBench>(project);
    bench->form.Show();
    bench->form.Flag = S("True");
    bench->Run(&ReportsForm::AreaRoomWP);
  }
};

TEST(OfficeCopyForm, TheFieldsShowTheSumsOfTheDetailLines) {
  Door d;
  const ReportsForm& form = d.bench->form;
  EXPECT_EQ(form.ttText.Text(), S("260.00"));  // 2 x 50, 4 hours x 40
  EXPECT_EQ(form.tlText.Text(), S("160.00"));
  EXPECT_EQ(form.tmText.Text(), S("100.00"));
  EXPECT_EQ(form.tcText.Text(), S("0.00"));
}

TEST(OfficeCopyForm, OnlyADetailLineCanBeTicked) {
  Door d;
  ReportsForm& form = d.bench->form;
  for (int row = 0; row < form.Reporter1.Count(); ++row) {
    const bool detail = row == 7 || row == 8;
    d.bench->desk.TickRow(form.Reporter1, row);
    EXPECT_EQ(form.Reporter1.Ticked(row), detail) << row;
  }
  EXPECT_EQ(form.tcText.Text(), S("260.00"));
  EXPECT_EQ(form.pcText.Text(), S("100.00"));
  EXPECT_EQ(form.lpText.Text(), S("100.00"));
  EXPECT_EQ(form.mpText.Text(), S("100.00"));
}

TEST(OfficeCopyForm, AClickOnARoomNameLeavesAllFields) {
  Door d;
  ReportsForm& form = d.bench->form;
  EXPECT_EQ(form.Reporter1.Row(3), S("Lobby"));
  d.bench->desk.TickRow(form.Reporter1, 3);
  EXPECT_EQ(form.tcText.Text(), S("0.00"));
  EXPECT_EQ(form.pcText.Text(), S(""));
  EXPECT_FALSE(form.Reporter1.Ticked(3));
}

TEST(ProjectFile, AReportOfThreeLinesGivesSixLines) {
  BenchProject project;
  FormBench bench(project);
  bench.form.Reporter.SetRows({S("Title"), S(""), S("row")});
  bench.Run(&ReportsForm::WriteProjectFile);
  EXPECT_EQ(LinesOf(project.dataPath + S("00-2112001 Riverside Clinic.tamo")),
            (QStringList{S("00-2112001          Riverside Clinic"), S("False"), S(""), S("False"),
                         S("row"), S("False")}));
}

TEST(ProjectFile, OfTheOfficeCopyWhenTheReporterHasNoLines) {
  Door d;
  d.bench->Run(&ReportsForm::WriteProjectFile);
  const QStringList lines = LinesOf(d.project.dataPath + S("00-2112001 Riverside Clinic.tamo"));
  EXPECT_EQ(lines.value(2), S("Office Copy"));
  EXPECT_EQ(lines.size(), 2 * d.bench->form.Reporter1.Count());
}

TEST(ProjectFile, AProjectNameThatLeavesTheFolderIsRefusedWithAMessage) {
  BenchProject project;
  FormBench bench(project);
  bench.shared.JobName = S("../../evil");
  bench.Run(&ReportsForm::WriteProjectFile);
  EXPECT_EQ(bench.messages.texts.size(), 1);
  EXPECT_TRUE(bench.messages.texts.value(0).contains(S("evil")));
}

TEST(ProjectFile, AFailedWriteIsPendingAndShowsNoBox) {
  BenchProject project;
  FormBench bench(project);
  project.disk.SetFull(true);
  bench.form.Reporter.SetRows({S("Title"), S("row")});
  bench.Run(&ReportsForm::WriteProjectFile);
  EXPECT_TRUE(bench.messages.texts.isEmpty());
  EXPECT_EQ(project.files.PendingSaves().size(), 1u);
}

TEST(ProjectInformationReport, EachFactIsFollowedByAnEmptyLine) {
  ProjectFacts facts;
  facts.JobName = S("Clinic");
  facts.BidDate = S("1-1-27");
  facts.Notes = S("one\r\n\r\ntwo\r\n");
  const QStringList lines = ProjectInformation(S("07-2611004"), facts).lines.ToList();
  EXPECT_EQ(lines.mid(0, 6), (QStringList{S("  Project Information"), S(""),
                                          S("  Project ID Number:     07-2611004"), S(""),
                                          S("  Project Name           Clinic"), S("")}));
  // The empty piece behind the last line end is a line, too.
  EXPECT_EQ(lines.mid(18),
            (QStringList{S("      Notes:             one"), S(""), S("two"), S("")}));
}

TEST(ProjectInformationReport, NotesWithoutALineBreakAreOneLineWithTheLabel) {
  ProjectFacts facts;
  facts.Notes = S("alone");
  EXPECT_EQ(ProjectInformation(S("1"), facts).lines.ToList().mid(18),
            QStringList{S("      Notes:             alone")});
}

}  // namespace
}  // namespace tamo::test
