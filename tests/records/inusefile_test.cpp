#include "records/inusefile.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "common/failure.h"
#include "support/room.h"

namespace tamo::test {
namespace {

class InUseFileTest : public MachineRoom, public ::testing::Test {
 protected:
  const QString path = Path("home") + QStringLiteral("/InUse.lock");
  const QDateTime noon = QDateTime(QDate(2021, 12, 14), QTime(12, 0), Qt::UTC);
  const ProgramRun me{QStringLiteral("Ann Lee"), QStringLiteral("desk"), QStringLiteral("m1"), 4711,
                      QStringLiteral("77"),      QStringLiteral("run1")};
  const ProgramRun other{QStringLiteral("Bob"), QStringLiteral("laptop"), QStringLiteral("m2"), 12,
                         QStringLiteral("5"),   QStringLiteral("run2")};
};

TEST_F(InUseFileTest, OneOfTwoGetsIt) {
  EXPECT_EQ(TakeInUse(disk, path, me, noon), kNoError);
  EXPECT_EQ(TakeInUse(disk, path, other, noon), kFileExists);
  InUse sign;
  EXPECT_EQ(ReadInUse(disk, path, sign), kNoError);
  EXPECT_TRUE(sign.Whole());
  EXPECT_TRUE(sign.owner == me);
  EXPECT_EQ(sign.owner.user, QStringLiteral("Ann Lee"));
  EXPECT_EQ(sign.owner.process, 4711);
  EXPECT_EQ(sign.taken, noon);
  EXPECT_EQ(sign.renewed, noon);
}

TEST_F(InUseFileTest, RenewingKeepsAllButTheTime) {
  TakeInUse(disk, path, me, noon);
  EXPECT_EQ(RenewInUse(disk, path, me, noon.addSecs(30)), kNoError);
  EXPECT_EQ(RenewInUse(disk, path, me, noon.addSecs(60)), kNoError);
  EXPECT_EQ(RenewInUse(disk, path, other, noon.addSecs(90)), kFileExists);
  InUse sign;
  ReadInUse(disk, path, sign);
  EXPECT_TRUE(sign.owner == me);
  EXPECT_EQ(sign.taken, noon);
  EXPECT_EQ(sign.renewed, noon.addSecs(60));
  EXPECT_EQ(WholeLinesOf(path).size(), 8);
}

TEST_F(InUseFileTest, OnlyTheOwnerReleases) {
  TakeInUse(disk, path, me, noon);
  ReleaseInUse(disk, path, other);
  EXPECT_TRUE(disk.Exists(path));
  ReleaseInUse(disk, path, me);
  EXPECT_FALSE(disk.Exists(path));
}

TEST_F(InUseFileTest, ADamagedSignIsSomebodysAllTheSame) {
  for (const char* text :
       {"", "Ann", "\x01\x02\xff", "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\nno time\r\n"}) {
    Put(path, text);
    InUse sign;
    EXPECT_EQ(ReadInUse(disk, path, sign), kNoError) << text;
    EXPECT_FALSE(sign.Whole()) << text;
    EXPECT_EQ(TakeInUse(disk, path, me, noon), kFileExists) << text;
    EXPECT_EQ(RenewInUse(disk, path, me, noon), kFileExists) << text;
    ReleaseInUse(disk, path, me);
    EXPECT_EQ(Bytes(path), QByteArray(text));
  }
}

TEST_F(InUseFileTest, OnlyTheSignThatWasSeenIsBroken) {
  TakeInUse(disk, path, other, noon);
  InUse left;
  ReadInUse(disk, path, left);
  // Somebody was quicker and has it now.
  disk.RemoveFile(path);
  ProgramRun third = other;
  third.run = QStringLiteral("run3");
  TakeInUse(disk, path, third, noon.addSecs(1));
  EXPECT_EQ(BreakInUse(disk, path, left, me), kFileExists);
  InUse now;
  ReadInUse(disk, path, now);
  EXPECT_TRUE(now.owner == third);
  EXPECT_EQ(BreakInUse(disk, path, now, me), kNoError);
  EXPECT_EQ(disk.Names(Path("home")), QStringList());
}

TEST_F(InUseFileTest, NothingIsLeftOfASignThatCouldNotBeWritten) {
  disk.FailStep(2, kDiskFull);
  EXPECT_EQ(TakeInUse(disk, path, me, noon), kDiskFull);
  EXPECT_FALSE(disk.Exists(path));
  disk.Deny(Path("home"));
  EXPECT_EQ(TakeInUse(disk, path, me, noon), kNoAccess);
}

TEST(ProgramRunTest, ARunOfThisProcessEndsWhenItSaysSo) {
  const ProgramRun run = BeginRun();
  EXPECT_FALSE(RunIsGone(run));
  EXPECT_FALSE(run.user.isEmpty());
  EXPECT_FALSE(run.machine.isEmpty());
  EndRun(run);
  EXPECT_TRUE(RunIsGone(run));
}

TEST(ProgramRunTest, ADeadProcessAndANumberGivenAgainAreGone) {
  ProgramRun run = BeginRun();
  EndRun(run);
  run.processStart = QStringLiteral("another start 1");
  EXPECT_TRUE(RunIsGone(run));  // the number is that of this process
  run.process = 4'194'305;      // beyond every number that is given
  EXPECT_TRUE(RunIsGone(run));
  run.process = 0;
  EXPECT_FALSE(RunIsGone(run));  // nothing is known of it
}

TEST(ProgramRunTest, AnotherProcessIsGoneOnlyWhenItHasEnded) {
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    const QByteArray start = BeginRun().processStart.toUtf8();
    if (::write(ends[1], start.constData(), static_cast<size_t>(start.size())) > 0) ::pause();
    ::_exit(0);
  }
  char start[200] = {};
  ASSERT_GT(::read(ends[0], start, sizeof start - 1), 0);
  ProgramRun run = BeginRun();
  EndRun(run);
  run.process = child;
  run.processStart = QString::fromUtf8(start);
  EXPECT_FALSE(RunIsGone(run));
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  EXPECT_TRUE(RunIsGone(run));
  ::close(ends[0]);
  ::close(ends[1]);
}

}  // namespace
}  // namespace tamo::test
