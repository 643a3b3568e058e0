#include <gtest/gtest.h>

#include "common/failure.h"
#include "common/files.h"
#include "support/room.h"

// What another program stored in a file since this one read or saved it.

namespace tamo::test {
namespace {

class ChangedElsewhere : public MachineRoom, public ::testing::Test {
 protected:
  const QString path = Path("home") + QStringLiteral("/list.tamo");
  Files files{disk};
  QString Text() const { return QString::fromUtf8(Bytes(path)); }
  QStringList Read() {
    QStringList lines;
    files.ReadLines(path, lines);
    return lines;
  }
};

TEST_F(ChangedElsewhere, AListKeepsWhatBothAddedAndNotWhatEitherTookOut) {
  PutLines(path, {"a", "b", "c"});
  Read();
  PutLines(path, {"a", "c", "theirs"});
  EXPECT_EQ(files.SaveLines(path, {"a", "b", "mine"}, FileKind::List), kNoError);
  EXPECT_EQ(WholeLinesOf(path), (QStringList{"a", "theirs", "mine"}));
  EXPECT_EQ(files.Notice(), QString());
  // The next save goes on from the own list; the others' entries stay.
  EXPECT_EQ(files.SaveLines(path, {"a", "b", "mine", "more"}, FileKind::List), kNoError);
  EXPECT_EQ(WholeLinesOf(path), (QStringList{"a", "theirs", "mine", "more"}));
}

TEST_F(ChangedElsewhere, AnOlderListTakesNothingOutThatWasReadSince) {
  PutLines(path, {"a"});
  Read();
  PutLines(path, {"a", "theirs"});
  Read();  // by another form
  EXPECT_EQ(files.SaveLines(path, {"a", "mine"}, FileKind::List, QStringLiteral("a\r\n")),
            kNoError);
  EXPECT_EQ(WholeLinesOf(path), (QStringList{"a", "theirs", "mine"}));
}

TEST_F(ChangedElsewhere, OfOtherFilesTheEstimatorChooses) {
  int asked = 0;
  bool yes = false;
  files.keepMine = [&](const QString& file, const QString& mine, const QString& theirs) {
    ++asked;
    EXPECT_EQ(file, path);
    EXPECT_EQ(mine, QStringLiteral("mine"));
    EXPECT_EQ(theirs, QStringLiteral("theirs"));
    return yes;
  };
  Put(path, "old");
  Read();
  Put(path, "theirs");
  EXPECT_EQ(files.SaveText(path, QStringLiteral("mine")), kTheirsTaken);
  EXPECT_EQ(Text(), QStringLiteral("theirs"));
  EXPECT_TRUE(files.PendingSaves().empty());
  yes = true;
  EXPECT_EQ(files.SaveText(path, QStringLiteral("mine")), kNoError);
  EXPECT_EQ(Text(), QStringLiteral("mine"));
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(files.SaveText(path, QStringLiteral("mine again")), kNoError);
  EXPECT_EQ(asked, 2);
}

TEST_F(ChangedElsewhere, TheSameTextWrittenAgainIsNoChange) {
  Put(path, "old");
  Read();
  Put(path, "old");
  EXPECT_EQ(files.SaveText(path, QStringLiteral("mine")), kNoError);
  EXPECT_EQ(Text(), QStringLiteral("mine"));
}

TEST_F(ChangedElsewhere, AListThatTwoBeginHoldsTheEntriesOfBoth) {
  Read();
  PutLines(path, {"theirs"});
  EXPECT_EQ(files.SaveLines(path, {"mine"}, FileKind::List), kNoError);
  EXPECT_EQ(WholeLinesOf(path), (QStringList{"theirs", "mine"}));
}

TEST_F(ChangedElsewhere, WithNobodyToAskTheSaveIsHeld) {
  Put(path, "old");
  Read();
  Put(path, "theirs");
  EXPECT_EQ(files.SaveText(path, QStringLiteral("mine")), kChangedMeanwhile);
  EXPECT_EQ(Text(), QStringLiteral("theirs"));
  EXPECT_NE(files.Notice(), QString());
  // The latest of a file that nobody cares about wins unasked.
  EXPECT_EQ(files.SaveText(path, QStringLiteral("mine"), FileKind::Latest), kNoError);
}

}  // namespace
}  // namespace tamo::test
