#include "common/files.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTemporaryDir>

#include "common/failure.h"
#include "support/faultdisk.h"

namespace tamo {
namespace {

using test::FaultDisk;

class FilesTest : public ::testing::Test {
 protected:
  QString Path(const char* name) const {
    return folder.path() + QLatin1Char('/') + QLatin1String(name);
  }
  QString OnDisk(const char* name) {
    QByteArray bytes;
    RealDisk().Read(Path(name), bytes);
    return QString::fromUtf8(bytes);
  }

  QTemporaryDir folder;
  FaultDisk disk;
  Files files{disk};
};

TEST_F(FilesTest, LinesComeBack) {
  EXPECT_EQ(files.SaveLines(Path("a.txt"), {QStringLiteral("one"), QString()}), 0);
  EXPECT_EQ(OnDisk("a.txt"), QStringLiteral("one\r\n\r\n"));
  QStringList lines;
  EXPECT_EQ(files.ReadLines(Path("a.txt"), lines), 0);
  EXPECT_EQ(lines, QStringList({"one", ""}));
}

TEST_F(FilesTest, ErrorNumbers) {
  QString text;
  EXPECT_EQ(files.ReadText(Path("none.txt"), text), kFileNotFound);
  EXPECT_EQ(files.ReadText(Path("no/none.txt"), text), kPathNotFound);
  EXPECT_EQ(files.ReadText(folder.path(), text), kNoAccess);
  EXPECT_EQ(files.SaveText(Path("no/none.txt"), text), kPathNotFound);
}

TEST_F(FilesTest, ANameFindsItsFileWhateverItsCase) {
  files.SaveText(Path("Lobby.rfs"), QStringLiteral("9"));
  QString text;
  EXPECT_EQ(files.ReadText(Path("LOBBY.rfs"), text), 0);
  EXPECT_EQ(text, QStringLiteral("9"));
  files.SaveText(Path("lobby.RFS"), QStringLiteral("10"));
  EXPECT_EQ(OnDisk("Lobby.rfs"), QStringLiteral("10"));
  EXPECT_EQ(disk.Names(folder.path()).size(), 1);
  EXPECT_EQ(files.Remove(Path("LOBBY.RFS")), 0);
  EXPECT_FALSE(files.Exists(Path("Lobby.rfs")));
}

TEST_F(FilesTest, ExactSpellingFirst) {
  RealDisk real;
  for (const char* name : {"Ab.txt", "aB.txt"}) {
    int handle = 0;
    real.OpenNew(Path(name), handle);
    real.Write(handle, name);
    real.Close(handle);
  }
  QString text;
  files.ReadText(Path("aB.txt"), text);
  EXPECT_EQ(text, QStringLiteral("aB.txt"));
}

// Whatever step of the replace fails, the old file is whole, nothing half-made stays, and the text
// is kept. When only the folder can't be brought to the device, the new file stands, and that is
// said.
TEST_F(FilesTest, AReplaceThatFailsAtAnyStepLeavesTheOldFile) {
  files.SaveText(Path("bid.txt"), QStringLiteral("old"));
  disk.FailStep(0, 0);
  files.SaveText(Path("bid.txt"), QStringLiteral("old"));
  const int removal = disk.StepsTaken();
  ASSERT_EQ(removal, 7);  // open, write, sync, close, swap, folder, remove the old one
  const int steps = removal - 1;
  for (int step = 1; step <= steps; ++step) {
    for (const int error : {kDiskFull, kNoAccess, kFileOther}) {
      files.SaveText(Path("bid.txt"), QStringLiteral("old"));
      disk.FailStep(step, error);
      EXPECT_EQ(files.SaveText(Path("bid.txt"), QStringLiteral("new")),
                step == steps ? kNotConfirmed : error)
          << step;
      EXPECT_EQ(OnDisk("bid.txt"), step == steps ? QStringLiteral("new") : QStringLiteral("old"))
          << step;
      EXPECT_EQ(disk.Names(folder.path()), QStringList({"bid.txt"})) << step;
      ASSERT_EQ(files.PendingSaves().size(), 1U);
      QString text;
      EXPECT_EQ(files.ReadText(Path("BID.txt"), text), 0);
      EXPECT_EQ(text, QStringLiteral("new"));
      EXPECT_TRUE(files.Notice().contains(QStringLiteral("bid.txt")));
      disk.FailStep(0, 0);
      EXPECT_TRUE(files.TryAgain());
      EXPECT_EQ(OnDisk("bid.txt"), QStringLiteral("new"));
      EXPECT_EQ(files.Notice(), QString());
    }
  }
}

TEST_F(FilesTest, AFullDiskIsNoticedForAOneLineFile) {
  files.SaveText(Path("a.txt"), QStringLiteral("old"));
  disk.SetFull(true);
  EXPECT_EQ(files.SaveText(Path("a.txt"), QStringLiteral("n")), kDiskFull);
  EXPECT_EQ(OnDisk("a.txt"), QStringLiteral("old"));
  EXPECT_TRUE(files.Notice().contains(QStringLiteral("full")));
}

TEST_F(FilesTest, APendingSaveIsTriedAtTheNextSaveOfAnyFile) {
  disk.Deny(Path("a.txt"));
  EXPECT_EQ(files.SaveText(Path("a.txt"), QStringLiteral("kept")), kNoAccess);
  EXPECT_EQ(files.SaveText(Path("b.txt"), QStringLiteral("b")), 0);
  EXPECT_FALSE(files.PendingSaves().empty());
  disk.Allow(Path("a.txt"));
  EXPECT_EQ(files.SaveText(Path("b.txt"), QStringLiteral("c")), 0);
  EXPECT_TRUE(files.PendingSaves().empty());
  EXPECT_EQ(OnDisk("a.txt"), QStringLiteral("kept"));
}

TEST_F(FilesTest, TheNewestPendingTextCounts) {
  disk.Deny(folder.path());
  files.SaveText(Path("a.txt"), QStringLiteral("1"));
  files.SaveText(Path("a.txt"), QStringLiteral("2"));
  EXPECT_EQ(files.PendingSaves().size(), 1U);
  disk.Allow(folder.path());
  EXPECT_TRUE(files.TryAgain());
  EXPECT_EQ(OnDisk("a.txt"), QStringLiteral("2"));
}

// A folder that could not be made is made before what belongs into it is tried again.
TEST_F(FilesTest, MissingFoldersAreMadeBeforePendingSaves) {
  disk.SetFull(true);
  EXPECT_NE(files.MakeFolder(Path("job/")), 0);
  EXPECT_EQ(files.SaveText(Path("job/a.txt"), QStringLiteral("kept")), kDiskFull);
  disk.SetFull(false);
  EXPECT_TRUE(files.TryAgain());
  EXPECT_EQ(OnDisk("job/a.txt"), QStringLiteral("kept"));
  EXPECT_EQ(files.SaveText(Path("other/a.txt"), QStringLiteral("x")), kPathNotFound)
      << "nobody asked for that folder";
}

TEST_F(FilesTest, LeftoversAreSweptAndNeverRead) {
  RealDisk real;
  int handle = 0;
  real.OpenNew(Path("a.txt.tamo-unfinished"), handle);
  real.Close(handle);
  QString text;
  EXPECT_EQ(files.ReadText(Path("a.txt"), text), kFileNotFound);
  files.Sweep(folder.path());
  EXPECT_TRUE(disk.Names(folder.path()).isEmpty());
}

// The process ends at each step of a save: what is found afterwards is the old text or the new one,
// whole.
TEST_F(FilesTest, ACrashInsideASaveLeavesOneWholeText) {
  class CrashDisk : public FaultDisk {
   public:
    int steps = 0;
    int crashAt = 0;
    void Step() {
      if (++steps == crashAt) _exit(7);
    }
    int Write(int handle, const QByteArray& bytes) override {
      RealDisk::Write(handle, bytes.left(2));
      Step();
      return RealDisk::Write(handle, bytes.mid(2));
    }
    int Sync(int handle) override {
      Step();
      return RealDisk::Sync(handle);
    }
    int Close(int handle) override {
      Step();
      return RealDisk::Close(handle);
    }
    int Rename(const QString& from, const QString& to) override {
      Step();
      return RealDisk::Rename(from, to);
    }
    int SyncFolder(const QString& path) override {
      Step();
      return RealDisk::SyncFolder(path);
    }
  };
  for (int step = 1; step <= 6; ++step) {
    files.SaveText(Path("bid.txt"), QStringLiteral("old text"));
    const pid_t child = fork();
    if (child == 0) {
      CrashDisk crashing;
      crashing.crashAt = step;
      Files inside(crashing);
      inside.SaveText(Path("bid.txt"), QStringLiteral("new text"));
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), step <= 5 ? 7 : 0);
    const QString found = OnDisk("bid.txt");
    EXPECT_TRUE(found == QStringLiteral("old text") || found == QStringLiteral("new text")) << step;
    files.Sweep(folder.path());
    EXPECT_EQ(disk.Names(folder.path()), QStringList({"bid.txt"}));
  }
}

}  // namespace
}  // namespace tamo
