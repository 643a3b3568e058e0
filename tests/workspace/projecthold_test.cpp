#include "workspace/projecthold.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "records/datafolder.h"
#include "support/room.h"

namespace tamo::test {
namespace {

const QDateTime kNoon(QDate(2021, 12, 14), QTime(12, 0), Qt::UTC);

class ProjectHoldTest : public FormRoom, public ::testing::Test {
 protected:
  ProjectHoldTest() {
    clock.now = kNoon;
    shared.JobID = QStringLiteral("00-2112001");
    for (const QString& folder : {Data({}), Data(QStringLiteral("Projects"))})
      files.MakeFolders(folder);
    files.MakeFolder(Project());
    hold.onFree = [this] { ++freed; };
  }
  QString Project() const { return Data(QStringLiteral("Projects/00-2112001")); }
  QString Sign() const { return Project() + QStringLiteral("/InUse.lock"); }
  QString File() const { return Project() + QStringLiteral("/Locked.tamo"); }
  int Save() { return files.SaveText(File(), QStringLiteral("True")); }
  void After(int seconds) {
    clock.now = clock.now.addSecs(seconds);
    hold.Tick();
  }
  // The sign of a program on another machine, or of a dead process on this one.
  void Leave(bool here) {
    ProgramRun run = BeginRun();
    EndRun(run);
    run.user = QStringLiteral("Ann");
    run.process = 4'194'305;
    if (!here) run.machineId = QStringLiteral("elsewhere");
    other = run;
    disk.RemoveFile(Sign());
    ASSERT_EQ(TakeInUse(disk, Sign(), run, clock.now), kNoError);
  }

  ProgramRun other;
  ProjectHold hold{kit};
  int freed = 0;
};

TEST_F(ProjectHoldTest, TheOneThatOpensFirstWrites) {
  hold.Open();
  EXPECT_TRUE(disk.Exists(Sign()));
  EXPECT_FALSE(hold.ReadOnly());
  EXPECT_EQ(Save(), kNoError);
  hold.Open();  // the same once more
  EXPECT_FALSE(hold.ReadOnly());
  hold.Leave();
  EXPECT_FALSE(disk.Exists(Sign()));
}

TEST_F(ProjectHoldTest, ItIsRenewedEveryHalfMinute) {
  hold.Open();
  InUse sign;
  for (const int seconds : {10, 10, 10}) After(seconds);
  ReadInUse(disk, Sign(), sign);
  EXPECT_EQ(sign.renewed, kNoon.addSecs(30));
  EXPECT_EQ(sign.taken, kNoon);
}

TEST_F(ProjectHoldTest, ADeadProcessOfThisMachineHoldsNothing) {
  Leave(true);
  hold.Open();
  EXPECT_FALSE(hold.ReadOnly());
  EXPECT_EQ(messages.texts.size(), 0);
  EXPECT_EQ(disk.Names(Project()), QStringList{QStringLiteral("InUse.lock")});
}

TEST_F(ProjectHoldTest, AnotherMachineIsAskedAboutOnlyAfterTwoMinutesWithoutASign) {
  Leave(false);
  hold.Open();
  EXPECT_TRUE(hold.ReadOnly());
  EXPECT_EQ(Save(), kNoAccess);
  EXPECT_EQ(files.PendingSaves().size(), 0U);
  EXPECT_FALSE(disk.Exists(File()));
  EXPECT_TRUE(shared.TitleNote.contains(QStringLiteral("Ann")));
  After(119);
  RenewInUse(disk, Sign(), other, clock.now);
  After(3);
  After(118);
  EXPECT_EQ(messages.texts.size(), 0);
  messages.answers = {false};
  After(3);
  EXPECT_EQ(messages.texts.size(), 1);
  After(300);
  EXPECT_EQ(messages.texts.size(), 1);  // it was left to the other
  EXPECT_TRUE(hold.ReadOnly());
  RenewInUse(disk, Sign(), other, clock.now);
  After(3);
  messages.answers = {true};
  After(121);
  EXPECT_EQ(messages.texts.size(), 2);
  EXPECT_FALSE(hold.ReadOnly());
  EXPECT_EQ(freed, 1);
  EXPECT_EQ(Save(), kNoError);
}

TEST_F(ProjectHoldTest, ADamagedSignIsAskedAboutLikewise) {
  Put(Sign(), "what");
  hold.Open();
  EXPECT_TRUE(hold.ReadOnly());
  After(60);
  messages.answers = {true};
  After(61);
  EXPECT_EQ(messages.texts.size(), 1);
  EXPECT_FALSE(hold.ReadOnly());
}

TEST_F(ProjectHoldTest, WhenTheOtherLeavesItIsWritable) {
  Leave(false);
  hold.Open();
  ReleaseInUse(disk, Sign(), other);
  After(3);
  EXPECT_FALSE(hold.ReadOnly());
  EXPECT_EQ(freed, 1);
  EXPECT_EQ(shared.ReadOnly, QString());
  EXPECT_EQ(messages.texts.size(), 0);
}

TEST_F(ProjectHoldTest, WhoSleptAndLostItWritesNothing) {
  hold.Open();
  clock.now = clock.now.addSecs(1000);
  Leave(false);
  EXPECT_EQ(Save(), kNoAccess);
  EXPECT_TRUE(hold.ReadOnly());
  EXPECT_EQ(messages.texts.size(), 1);
  EXPECT_FALSE(disk.Exists(File()));
}

TEST_F(ProjectHoldTest, WithoutTheRightToWriteItOpensAndSaysSo) {
  disk.Deny(Project());
  hold.Open();
  EXPECT_FALSE(hold.ReadOnly());
  EXPECT_NE(shared.TitleNote, QString());
  disk.Allow(Project());
  After(31);
  EXPECT_EQ(shared.TitleNote, QString());
  EXPECT_TRUE(disk.Exists(Sign()));
}

TEST_F(ProjectHoldTest, AProjectWhoseSavesWaitIsKept) {
  hold.Open();
  disk.SetFull(true);
  EXPECT_EQ(Save(), kDiskFull);
  hold.Leave();
  EXPECT_TRUE(disk.Exists(Sign()));
  disk.SetFull(false);
  After(3);
  EXPECT_TRUE(disk.Exists(Sign()));
  files.TryAgain();
  After(3);
  EXPECT_FALSE(disk.Exists(Sign()));
}

TEST_F(ProjectHoldTest, ASignThatATidyHandTookAwayIsSetAgain) {
  hold.Open();
  disk.RemoveFile(Sign());
  After(31);
  EXPECT_TRUE(disk.Exists(Sign()));
  EXPECT_FALSE(hold.ReadOnly());
}

}  // namespace
}  // namespace tamo::test
