#include "workspace/projecthold.h"

#include <gtest/gtest.h>

#include <algorithm>

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
  // As the program looks about while they go by.
  void After(int seconds) {
    for (int gone = 0; gone < seconds; gone += 5) Look(std::min(5, seconds - gone));
  }
  void Look(int seconds) {
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
  EXPECT_FALSE(disk.Exists(File()));
  After(3);
  EXPECT_TRUE(hold.ReadOnly());
  ASSERT_EQ(messages.texts.size(), 1);
  EXPECT_TRUE(messages.texts[0].contains(File()));  // it says what was not saved
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

// Both clocks may be wrong, and one may be set while the programs run.
TEST_F(ProjectHoldTest, NoClockMakesASignOld) {
  Leave(false);
  clock.now = clock.now.addDays(400);  // the other's clock is far behind
  hold.Open();
  After(60);
  clock.now = clock.now.addDays(1);  // set forward, or a night's sleep
  After(30);
  clock.now = clock.now.addDays(-2);
  After(20);
  EXPECT_EQ(messages.texts.size(), 0);
  After(20);
  EXPECT_EQ(messages.texts.size(), 1);
}

TEST_F(ProjectHoldTest, AClockSetBackDoesNotStopTheRenewal) {
  hold.Open();
  clock.now = clock.now.addSecs(-3600);
  After(3);
  InUse sign;
  ReadInUse(disk, Sign(), sign);
  EXPECT_EQ(sign.renewed, clock.now);
}

TEST_F(ProjectHoldTest, ItIsRenewedWhileAMessageWaits) {
  hold.Open();
  clock.now = clock.now.addSecs(40);
  hold.TickInEvent();
  InUse sign;
  ReadInUse(disk, Sign(), sign);
  EXPECT_EQ(sign.renewed, clock.now);
  // What it must say waits until nothing else is said.
  clock.now = clock.now.addSecs(40);
  Leave(false);
  hold.TickInEvent();
  EXPECT_FALSE(hold.ReadOnly());
  EXPECT_EQ(Save(), kNoAccess);
  EXPECT_EQ(messages.texts.size(), 0);
  After(3);
  EXPECT_TRUE(hold.ReadOnly());
  EXPECT_EQ(messages.texts.size(), 1);
}

TEST_F(ProjectHoldTest, ADeletedProjectIsNotMadeAgainByWhoReadsIt) {
  Leave(false);
  hold.Open();
  disk.RemoveFile(Sign());
  disk.RemoveFolder(Project());
  After(3);
  EXPECT_TRUE(hold.ReadOnly());
  EXPECT_TRUE(shared.TitleNote.contains(QStringLiteral("gone")));
  EXPECT_EQ(Save(), kNoAccess);
  EXPECT_FALSE(disk.Exists(Project()));
  files.GetDisk().MakeFolder(Project());  // the drive is back
  After(3);
  EXPECT_FALSE(hold.ReadOnly());
  EXPECT_EQ(freed, 1);
}

TEST_F(ProjectHoldTest, ADeadOnesSignThatCannotBeTakenAwayIsNoOwner) {
  Leave(true);
  disk.Deny(Project());
  hold.Open();
  EXPECT_FALSE(hold.ReadOnly());
  EXPECT_TRUE(shared.TitleNote.contains(QStringLiteral("can't be told")));
}

// An entry that waits for the disk, and meanwhile the other one writes: neither goes under unasked.
TEST_F(ProjectHoldTest, WhatWaitsIsAskedAboutWhenTheProjectComesBack) {
  for (const bool mine : {true, false}) {
    hold.Open();
    disk.SetFull(true);
    EXPECT_EQ(Save(), kDiskFull);
    clock.now = clock.now.addSecs(1000);
    disk.SetFull(false);
    Leave(false);
    After(3);
    EXPECT_TRUE(hold.ReadOnly());
    EXPECT_TRUE(messages.texts.back().contains(File()));
    Put(File(), "of the other");
    EXPECT_FALSE(files.TryAgain());
    messages.answers = {mine};
    ReleaseInUse(disk, Sign(), other);
    After(3);
    EXPECT_FALSE(hold.ReadOnly());
    EXPECT_TRUE(messages.texts.back().contains(File()));
    EXPECT_TRUE(files.TryAgain());
    EXPECT_EQ(Bytes(File()), mine ? "True" : "of the other");
    hold.Leave();
  }
}

TEST_F(ProjectHoldTest, AProjectLeftWithSavesThatWaitMayBeLostToo) {
  hold.Open();
  disk.SetFull(true);
  Save();
  hold.Leave();
  disk.SetFull(false);
  clock.now = clock.now.addSecs(1000);
  Leave(false);
  EXPECT_FALSE(files.TryAgain());
  EXPECT_FALSE(disk.Exists(File()));
}

TEST_F(ProjectHoldTest, AnotherDataFolderHasASignOfItsOwn) {
  hold.Open();
  const QString first = Sign();
  shared.DataPath += QStringLiteral("other/");
  After(3);
  EXPECT_TRUE(disk.Exists(first));  // there is no such project
  for (const QString& folder : {Data({}), Data(QStringLiteral("Projects")), Project()})
    disk.MakeFolder(folder);
  After(3);
  EXPECT_FALSE(disk.Exists(first));
  EXPECT_TRUE(disk.Exists(Sign()));
}

}  // namespace
}  // namespace tamo::test
