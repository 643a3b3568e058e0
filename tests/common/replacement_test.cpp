#include "common/replacement.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <string>

#include "common/failure.h"
#include "common/files.h"
#include "common/programname.h"
#include "support/faultdisk.h"

namespace tamo::test {
namespace {

// What a save keeps of the file whose place it takes, and what it says when it can't do all.
class ReplacementTest : public ::testing::Test {
 protected:
  QString Path(const QString& name) const { return dir.path() + '/' + name; }
  std::string Native(const QString& name) const { return Path(name).toStdString(); }
  QByteArray Content(const QString& name) const {
    QByteArray bytes;
    RealDisk().Read(Path(name), bytes);
    return bytes;
  }
  void Put(const QString& name, const QByteArray& bytes = "old") const {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  QTemporaryDir dir;
  FaultDisk disk;
  Files files{disk};
};

TEST_F(ReplacementTest, ASavedFileKeepsItsRights) {
  for (const mode_t mode : {0600U, 0640U, 0664U, 0755U}) {
    Put("a");
    ASSERT_EQ(::chmod(Native("a").c_str(), mode), 0);
    Files fresh(disk);
    ASSERT_EQ(fresh.SaveText(Path("a"), "new"), 0);
    struct stat info {};
    ASSERT_EQ(::stat(Native("a").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, mode);
    EXPECT_EQ(Content("a"), "new");
    ASSERT_EQ(fresh.SaveText(Path("a"), "newer"), 0);
    ASSERT_EQ(::stat(Native("a").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, mode);
    EXPECT_EQ(Content("a"), "newer");
  }
}

TEST_F(ReplacementTest, ASavedFileKeepsItsOwnerWhereTheSystemLetsIt) {
  if (::getuid() != 0) GTEST_SKIP() << "only root can give files away";
  Put("a");
  ASSERT_EQ(::chown(Native("a").c_str(), 1234, 4321), 0);
  ASSERT_EQ(files.SaveText(Path("a"), "new"), 0);
  struct stat info {};
  ASSERT_EQ(::stat(Native("a").c_str(), &info), 0);
  EXPECT_EQ(info.st_uid, 1234U);
  EXPECT_EQ(info.st_gid, 4321U);
}

TEST_F(ReplacementTest, ASavedFileKeepsItsExtendedAttributes) {
  Put("a");
  if (::setxattr(Native("a").c_str(), "user.colour", "red", 3, 0) != 0)
    GTEST_SKIP() << "this device has no extended attributes";
  ASSERT_EQ(files.SaveText(Path("a"), "new"), 0);
  char value[8] = {};
  EXPECT_EQ(::getxattr(Native("a").c_str(), "user.colour", value, sizeof value), 3);
  EXPECT_STREQ(value, "red");
}

TEST_F(ReplacementTest, ALinkStaysALinkAndItsTargetIsReplaced) {
  ASSERT_TRUE(QDir(dir.path()).mkdir("far"));
  Put("far/real");
  ASSERT_TRUE(QFile::link("far/real", Path("middle")));
  ASSERT_TRUE(QFile::link(Path("middle"), Path("a")));
  ASSERT_EQ(files.SaveText(Path("a"), "new"), 0);
  EXPECT_TRUE(disk.IsLink(Path("a")));
  EXPECT_TRUE(disk.IsLink(Path("middle")));
  EXPECT_FALSE(disk.IsLink(Path("far/real")));
  EXPECT_EQ(Content("far/real"), "new");
  EXPECT_EQ(disk.Names(Path("far")), QStringList("real"));
}

TEST_F(ReplacementTest, ALinkToNothingGetsItsTarget) {
  ASSERT_TRUE(QFile::link(Path("later"), Path("a")));
  ASSERT_EQ(files.SaveText(Path("a"), "new"), 0);
  EXPECT_TRUE(disk.IsLink(Path("a")));
  EXPECT_EQ(Content("later"), "new");
}

TEST_F(ReplacementTest, ALinkInACircleIsAFailureAndStays) {
  ASSERT_TRUE(QFile::link(Path("b"), Path("a")));
  ASSERT_TRUE(QFile::link(Path("a"), Path("b")));
  EXPECT_NE(files.SaveText(Path("a"), "new"), 0);
  EXPECT_TRUE(disk.IsLink(Path("a")));
  EXPECT_TRUE(disk.IsLink(Path("b")));
  EXPECT_FALSE(files.Notice().isEmpty());
}

// Open, write, sync, close and rename may fail and the old file stands; when the folder's sync
// fails the new one does, and nothing else is said.
TEST_F(ReplacementTest, TheNoticeTellsWhatStandsOnTheDiskAfterEachStep) {
  for (int step = 1; step <= 6; ++step) {
    Put("a");
    Files fresh(disk);
    disk.FailStep(step, kFileOther);
    EXPECT_NE(fresh.SaveText(Path("a"), "new"), 0) << step;
    const bool unchanged = fresh.Notice().contains("The file on disk is unchanged");
    EXPECT_EQ(unchanged, Content("a") == "old") << step;
    EXPECT_EQ(step <= 5, unchanged) << step;
    EXPECT_EQ(fresh.Notice().contains("did not confirm"), step == 6) << step;
    disk.FailStep(0, 0);
    EXPECT_TRUE(fresh.TryAgain());
    EXPECT_EQ(fresh.Notice(), "");
    EXPECT_EQ(Content("a"), "new");
    EXPECT_EQ(disk.Names(dir.path()), QStringList("a")) << step;
  }
}

// Counts what is brought to the device.
class SyncDisk : public FaultDisk {
 public:
  int SyncFolder(const QString& folder) override {
    synced += folder;
    return answer == kNoError ? FaultDisk::SyncFolder(folder) : answer;
  }
  QStringList synced;
  int answer = kNoError;
};

TEST_F(ReplacementTest, ANewFolderIsBroughtToTheDevice) {
  SyncDisk syncing;
  Files here(syncing);
  here.MakeFolders(Path("Tamo/Projects/"));
  EXPECT_TRUE(syncing.synced.contains(dir.path()));
  EXPECT_TRUE(syncing.synced.contains(Path("Tamo")));
  syncing.synced.clear();
  here.MakeFolders(Path("Tamo/Projects/"));
  EXPECT_TRUE(syncing.synced.isEmpty()) << "what stands already costs nothing";
}

TEST_F(ReplacementTest, ANewFolderThatTheDeviceDoesNotConfirmIsTold) {
  SyncDisk syncing;
  Files here(syncing);
  syncing.answer = kFileOther;
  EXPECT_EQ(here.MakeFolder(Path("Tamo")), 0);
  EXPECT_TRUE(here.Notice().contains("did not confirm"));
  syncing.answer = kNoError;
  EXPECT_TRUE(here.TryAgain());
  EXPECT_EQ(here.Notice(), "");
}

// --- What a half-made save leaves

TEST_F(ReplacementTest, OneOfALivingProgramIsNotSwept) {
  Replacement living(disk, Path("a"));
  ASSERT_EQ(living.Begin(), 0);
  files.Sweep(dir.path());
  EXPECT_TRUE(disk.Exists(living.Unfinished()));
  EXPECT_EQ(living.Finish(kNoError), 0);
  EXPECT_EQ(disk.Names(dir.path()), QStringList("a"));
}

TEST_F(ReplacementTest, OneOfADeadProgramIsSwept) {
  const pid_t child = ::fork();
  if (child == 0) {
    RealDisk real;
    Replacement dying(real, Path("a"));
    _exit(dying.Begin());
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  ASSERT_EQ(WEXITSTATUS(status), 0);
  ASSERT_EQ(disk.Names(dir.path()).size(), 1);
  files.Sweep(dir.path());
  EXPECT_TRUE(disk.Names(dir.path()).isEmpty());
}

TEST_F(ReplacementTest, OneAtTheEndOfALinkIsSweptByTheNextSave) {
  ASSERT_TRUE(QDir(dir.path()).mkdir("far"));
  Put("far/real");
  Put("far/real.tamo-unfinished");
  Replacement living(disk, Path("far/other"));
  ASSERT_EQ(living.Begin(), 0);
  ASSERT_TRUE(QFile::link(Path("far/real"), Path("a")));
  ASSERT_EQ(files.SaveText(Path("a"), "new"), 0);
  EXPECT_FALSE(disk.Exists(Path("far/real.tamo-unfinished")));
  EXPECT_TRUE(disk.Exists(living.Unfinished()));
  EXPECT_EQ(living.Finish(kNoError), 0);
}

TEST_F(ReplacementTest, OneOfAnotherMachineIsSweptAfterADay) {
  const QString name = QStringLiteral("0123456789abcdef.1.boot-7.1.tamo-unfinished");
  EXPECT_FALSE(LeftByTheDead(name, -1));
  EXPECT_FALSE(LeftByTheDead(name, 3600));
  EXPECT_TRUE(LeftByTheDead(name, 90000));
  EXPECT_FALSE(LeftByTheDead("Lobby.rfs", 90000));
}

TEST_F(ReplacementTest, OneThatNamesNoProgramIsSwept) {
  EXPECT_TRUE(LeftByTheDead("Lobby.rfs.tamo-unfinished", 0));
}

TEST_F(ReplacementTest, TheLongestNameCanBeSaved) {
  const QString name(200, QLatin1Char('x'));
  EXPECT_EQ(files.SaveText(Path(name), "new"), 0);
  EXPECT_LT(ThisProgram().Text().size(), 150);
}

}  // namespace
}  // namespace tamo::test
