#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "common/failure.h"
#include "common/files.h"
#include "support/faultdisk.h"

namespace tamo::test {
namespace {

// Saves of files that are no text, such as a marked plan.
class WaitingSaves : public ::testing::Test {
 protected:
  QString Path(const char* name) const { return dir.path() + '/' + QLatin1String(name); }

  QTemporaryDir dir;
  FaultDisk disk;
  Files files{disk};
  int tries = 0;
  int answer = kDiskFull;
};

TEST_F(WaitingSaves, AreNamedInTheNoticeAndTriedAtEveryLaterSave) {
  int changes = 0;
  files.onPendingChanged = [&] { ++changes; };
  files.KeepTrying(Path("plan.pdf"), kDiskFull, [this] {
    ++tries;
    return answer;
  });
  EXPECT_TRUE(files.Notice().contains("plan.pdf"));
  EXPECT_TRUE(files.Notice().contains("the disk is full"));
  files.SaveText(Path("a"), "1");
  EXPECT_EQ(tries, 1);
  EXPECT_FALSE(files.Notice().isEmpty());
  answer = kNoError;
  files.SaveText(Path("a"), "2");
  EXPECT_EQ(tries, 2);
  EXPECT_TRUE(files.Notice().isEmpty());
  files.SaveText(Path("a"), "3");
  EXPECT_EQ(tries, 2);
  EXPECT_EQ(changes, 2);
}

TEST_F(WaitingSaves, AreNoTextToRead) {
  files.KeepTrying(Path("plan.pdf"), kDiskFull, [this] { return answer; });
  QString text;
  EXPECT_EQ(files.ReadText(Path("plan.pdf"), text), kFileNotFound);
  EXPECT_FALSE(files.Exists(Path("plan.pdf")));
}

TEST_F(WaitingSaves, OfOneFileAreOne) {
  files.KeepTrying(Path("plan.pdf"), kDiskFull, [] { return kDiskFull; });
  files.KeepTrying(Path("PLAN.pdf"), kNoAccess, [this] {
    ++tries;
    return answer;
  });
  EXPECT_EQ(files.PendingSaves().size(), 1U);
  EXPECT_FALSE(files.TryAgain());
  EXPECT_EQ(tries, 1);
}

TEST_F(WaitingSaves, AreForgottenWhenAsked) {
  files.KeepTrying(Path("plan.pdf"), kDiskFull, [this] { return answer; });
  files.StopTrying(Path("other.pdf"));
  EXPECT_EQ(files.PendingSaves().size(), 1U);
  files.StopTrying(Path("plan.pdf"));
  EXPECT_TRUE(files.PendingSaves().empty());
}

}  // namespace
}  // namespace tamo::test
