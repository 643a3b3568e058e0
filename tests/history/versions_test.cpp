#include <gtest/gtest.h>

#include "common/failure.h"
#include "history/bringback.h"
#include "history/deletedbid.h"
#include "history/historyroom.h"
#include "history/statedisk.h"
#include "records/projectlist.h"
#include "workspace/projectdelete.h"

namespace tamo::test {
namespace {

using Contents = QMap<QString, QByteArray>;

TEST(Versions, EveryVersionOfAPlayedBidComesBackByteForByte) {
  HistoryRoom room;
  History history(room.platform, room.files, room.shared);
  std::mt19937 random(11);
  std::vector<Contents> kept;
  for (int i = 0; i < 600; ++i) {
    room.Edit(random);
    if (i % 20 != 19) continue;
    ASSERT_EQ(history.KeepVersion(QStringLiteral("number %1").arg(kept.size())), "");
    kept.push_back(room.Everything());
  }
  std::vector<Version> versions = history.VersionsOfBid();
  ASSERT_EQ(versions.size(), kept.size());
  std::shuffle(versions.begin(), versions.end(), random);
  for (const Version& version : versions) {
    const Contents before = room.Everything();
    ASSERT_EQ(history.BringBackVersion(version), "");
    const auto number = version.head.name.mid(7).toULongLong();
    EXPECT_EQ(room.Everything(), kept[number]);
    const Version safety = history.VersionsOfBid().front();
    EXPECT_EQ(safety.head.reason, VersionHead::Reason::BeforeBringingBack);
    VersionHead head;
    BidState state;
    ASSERT_TRUE(ReadVersion(room.disk, safety.path, head, state));
    for (auto file = before.constBegin(); file != before.constEnd(); ++file)
      EXPECT_EQ(state.files.value(FolderOfBid(room.shared.JobID) + file.key()), file.value());
  }
}

TEST(Versions, EachDayComesBackAsItBegan) {
  HistoryRoom room;
  History history(room.platform, room.files, room.shared);
  std::mt19937 random(12);
  std::map<QByteArray, Contents> begun;
  for (int day = 0; day < 5; ++day) {
    begun[room.clock.today.toString(Qt::ISODate).toLatin1()] = room.Everything();
    for (int i = 0; i < 60; ++i) room.Edit(random);
    room.clock.today = room.clock.today.addDays(1);
  }
  const std::vector<QByteArray> days = history.Days();
  ASSERT_EQ(days.size(), 5U);
  EXPECT_GT(days[0], days[4]);
  for (const QByteArray& day : days) {
    ASSERT_EQ(history.BringBackDay(day), "");
    EXPECT_EQ(room.Everything(), begun[day]) << day.constData();
  }
}

Contents Texts(const BidState& state) {
  Contents texts;
  for (auto file = state.files.constBegin(); file != state.files.constEnd(); ++file)
    texts[file.key().mid(FolderOfBid(state.project).size())] = file.value();
  return texts;
}

// From the given step on nothing is written any more, as when the program is killed there.
TEST(Versions, AKillLeavesTheOldOrTheNewStateWhole) {
  HistoryRoom room;
  std::mt19937 random(13);
  for (int i = 0; i < 100; ++i) room.Edit(random);
  const HistoryFolder folder(room.shared);
  BidState then;
  BidState now;
  QString problem;
  ASSERT_EQ(ReadBidState(room.disk, folder, room.shared.JobID, then, problem), kNoError);
  for (int i = 0; i < 60; ++i) room.Edit(random);
  room.files.SaveText(room.Bid("Rooms/New.rfs"), "9\r\n");
  ASSERT_EQ(ReadBidState(room.disk, folder, room.shared.JobID, now, problem), kNoError);
  ASSERT_NE(then, now);
  const VersionHead head{"as sent", room.shared.JobID, "Larkspur", WhenText(room.clock.today)};
  room.disk.quick = false;
  int old = 0;
  int fresh = 0;
  for (int step = 1; step < 2000; ++step) {
    Files files(room.disk);
    room.disk.ResetSteps();
    room.disk.FailStep(step, kFileOther, true);
    const bool done = BringBack(files, folder, head, then) == kNoError;
    const bool untouched = room.disk.StepsTaken() < step;
    room.disk.FailStep(0, 0);
    Files next(room.disk);
    FinishBringingBack(next, folder);
    const Contents found = room.Everything();
    ASSERT_TRUE(found == Texts(now) || found == Texts(then)) << "step " << step;
    if (done) {
      EXPECT_EQ(found, Texts(then));
    }
    ++(found == Texts(now) ? old : fresh);
    EXPECT_FALSE(room.disk.Exists(folder.BringingBackState(room.shared.JobID)));
    if (untouched) break;
    ASSERT_EQ(BringBack(next, folder, head, now), kNoError);
  }
  EXPECT_GT(old, 3);
  EXPECT_GT(fresh, 20);
}

TEST(Versions, AKillWhileKeepingLeavesNoHalfVersion) {
  HistoryRoom room;
  std::mt19937 random(14);
  for (int i = 0; i < 60; ++i) room.Edit(random);
  History history(room.platform, room.files, room.shared);
  for (int step = 1; step < 12; ++step) {
    room.disk.ResetSteps();
    room.disk.FailStep(step, kDiskFull, true);
    history.KeepVersion("as sent");
    room.disk.FailStep(0, 0);
    for (const Version& version : history.VersionsOfBid()) {
      EXPECT_NE(history.LookAt(version), nullptr);
      QFile::remove(version.path);
    }
  }
}

TEST(Versions, ADamagedVersionIsRefused) {
  HistoryRoom room;
  History history(room.platform, room.files, room.shared);
  room.files.SaveText(room.Bid("Rooms/A.rfs"), "9\r\nDrywall\r\n");
  ASSERT_EQ(history.KeepVersion("as sent"), "");
  const Version version = history.VersionsOfBid().front();
  const QByteArray whole = HistoryRoom::Content(version.path);
  room.files.SaveText(room.Bid("Rooms/A.rfs"), "9\r\nPaint\r\n");
  const Contents stands = room.Everything();
  for (qsizetype cut = 0; cut < whole.size(); cut += 11) {
    QFile file(version.path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(whole.left(cut));
    file.close();
    EXPECT_NE(history.BringBackVersion(version), "");
    EXPECT_EQ(room.Everything(), stands);
  }
}

TEST(Versions, TheSentOneIsFoundByItsName) {
  HistoryRoom room;
  History history(room.platform, room.files, room.shared);
  Version version;
  EXPECT_FALSE(history.SentVersion(version));
  for (const char* name : {"first draft", "As Sent to the owner", "with the carpet"})
    ASSERT_EQ(history.KeepVersion(QLatin1String(name)), "");
  ASSERT_TRUE(history.SentVersion(version));
  EXPECT_EQ(version.head.name, "As Sent to the owner");
}

TEST(Versions, TheLockAndThePlansStayOutOfIt) {
  HistoryRoom room;
  History history(room.platform, room.files, room.shared);
  room.files.SaveText(room.Bid("Locked.tamo"), "True\r\n");
  room.files.SaveText(room.Bid("Plans/First-Marked.pdf"), "%PDF");
  room.files.SaveText(room.Bid("Plans/PlanNotes.tamo"), "note\r\n");
  ASSERT_EQ(history.KeepVersion("as sent"), "");
  const auto bid = history.LookAt(history.VersionsOfBid().front());
  ASSERT_NE(bid, nullptr);
  EXPECT_TRUE(bid->GetFiles().Exists(room.Bid("Plans/PlanNotes.tamo")));
  EXPECT_FALSE(bid->GetFiles().Exists(room.Bid("Plans/First-Marked.pdf")));
  EXPECT_FALSE(bid->GetFiles().Exists(room.Bid("Locked.tamo")));
}

TEST(Versions, ADeletedProjectComesBackWithItsPlans) {
  HistoryRoom room;
  History history(room.platform, room.files, room.shared);
  std::mt19937 random(15);
  for (int i = 0; i < 60; ++i) room.Edit(random);
  room.files.SaveText(room.Bid("Plans/First-Marked.pdf"), "%PDF");
  WriteProjectList(room.files, room.shared, {}, {});
  const Contents before = room.Everything();
  ASSERT_EQ(history.KeepDeletedProject(room.shared.JobID, "Larkspur"), "");
  EXPECT_TRUE(DeleteProjectFiles(room.files, room.shared, room.shared.JobID).isEmpty());
  const std::vector<Version> deleted = history.DeletedProjects();
  ASSERT_EQ(deleted.size(), 1U);
  EXPECT_EQ(history.BringBackDeletedProject(deleted[0]), "");
  EXPECT_EQ(room.Everything(), before);
  EXPECT_TRUE(history.DeletedProjects().empty());
  QStringList entries;
  ReadProjectList(room.files, room.shared, entries);
  EXPECT_EQ(entries, QStringList{"12-2611001   Larkspur"});
}

TEST(Versions, TheDaysBeforeADeletionAreKnownBehindIt) {
  HistoryRoom room;
  History history(room.platform, room.files, room.shared);
  room.files.SaveText(room.Bid("Rooms/A.rfs"), "9\r\nfirst\r\n");
  room.clock.today = room.clock.today.addDays(1);
  const QByteArray second = room.clock.today.toString(Qt::ISODate).toLatin1();
  room.files.SaveText(room.Bid("Rooms/B.rfs"), "9\r\nsecond\r\n");
  const Contents before = room.Everything();
  room.clock.today = room.clock.today.addDays(1);
  const QByteArray third = room.clock.today.toString(Qt::ISODate).toLatin1();
  WriteProjectList(room.files, room.shared, {}, {});
  history.KeepDeletedProject(room.shared.JobID, "Larkspur");
  DeleteProjectFiles(room.files, room.shared, room.shared.JobID);
  room.clock.today = room.clock.today.addDays(1);
  ASSERT_EQ(history.BringBackDeletedProject(history.DeletedProjects().at(0)), "");
  ASSERT_EQ(history.BringBackDay(second), "");
  EXPECT_EQ(room.Everything().keys(), QStringList{"Rooms/A.rfs"});
  ASSERT_EQ(history.BringBackVersion(history.VersionsOfBid().front()), "");
  ASSERT_EQ(history.BringBackDay(third), "");
  EXPECT_EQ(room.Everything(), before);
}

TEST(Versions, ADeletedProjectStaysThirtyDays) {
  HistoryRoom room;
  History history(room.platform, room.files, room.shared);
  room.files.SaveText(room.Bid("Plans/First-Marked.pdf"), "%PDF");
  history.KeepDeletedProject(room.shared.JobID, "Larkspur");
  DeleteProjectFiles(room.files, room.shared, room.shared.JobID);
  ForgetDeleted(room.disk, history.Folder(), room.clock.today.addDays(30), 30);
  EXPECT_EQ(history.DeletedProjects().size(), 1U);
  ForgetDeleted(room.disk, history.Folder(), room.clock.today.addDays(31), 30);
  EXPECT_TRUE(history.DeletedProjects().empty());
  EXPECT_TRUE(room.disk.Names(history.Folder().Deleted()).isEmpty());
}

}  // namespace
}  // namespace tamo::test
