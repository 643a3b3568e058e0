#include "history/journal.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "history/historyrecord.h"
#include "history/historyroom.h"
#include "history/journalreader.h"

namespace tamo::test {
namespace {

using std::chrono::seconds;

struct JournalRoom : HistoryRoom {
  std::unique_ptr<Journal> MakeJournal() {
    auto journal = std::make_unique<Journal>(
        Journal::Setting{journalDisk, [this] { return HistoryFolder(shared); },
                         [this] { return WhenText(clock.today); }});
    files.witness = journal.get();
    return journal;
  }
  HistoryFolder Folder() const { return HistoryFolder(shared); }
  QStringList Journals() { return JournalFiles(disk, Folder()); }
  std::vector<FormerState> States(const QString& below = {}) {
    std::vector<FormerState> states;
    ReadJournal(disk, Folder(), below, [&](const FormerState& state) { states.push_back(state); });
    return states;
  }
  qint64 Size() {
    qint64 size = 0;
    for (const QString& name : Journals()) size += disk.Size(Folder().Journal(name));
    return size;
  }
};

TEST(Journal, EachSaveLeavesWhatStoodBefore) {
  JournalRoom room;
  const auto journal = room.MakeJournal();
  const QString path = room.Bid("Rooms/Office.rfs");
  for (int i = 0; i < 5; ++i) room.files.SaveText(path, QStringLiteral("9\r\nline %1\r\n").arg(i));
  room.files.Remove(path);
  ASSERT_TRUE(journal->Drain(seconds(5)));
  const std::vector<FormerState> states = room.States();
  ASSERT_EQ(states.size(), 6U);
  EXPECT_FALSE(states[0].existed);
  for (size_t i = 1; i < 6; ++i) {
    EXPECT_EQ(states[i].path, "Projects/12-2611001/Rooms/Office.rfs");
    EXPECT_EQ(states[i].text, "9\r\nline " + QByteArray::number(static_cast<int>(i) - 1) + "\r\n");
  }
}

TEST(Journal, ItReadsAsText) {
  JournalRoom room;
  auto journal = room.MakeJournal();
  const QString path = room.Data("Units.tamo");
  for (const char* text : {"SF\r\n", "SF\r\nLF\r\n", "SF\r\nLF\r\nEA\r\n", ""})
    room.files.SaveText(path, QLatin1String(text));
  journal.reset();
  ASSERT_EQ(room.Journals().size(), 1);
  QByteArray text = HistoryRoom::Content(room.Folder().Journal(room.Journals()[0]));
  EXPECT_TRUE(text.startsWith("@ 2021-12-14 ")) << text.constData();
  EXPECT_TRUE(text.contains(" -------- new Units.tamo\n@ ")) << text.constData();
  EXPECT_TRUE(text.contains(" whole Units.tamo\n\tSF\r\n@ ")) << text.constData();
  EXPECT_TRUE(text.endsWith("Units.tamo\n=1-1\n\tLF\r\n=2-2\n") || text.endsWith("\tEA\r\n"))
      << text.constData();
}

TEST(Journal, RandomSavesComeBackByteForByte) {
  JournalRoom room;
  const auto journal = room.MakeJournal();
  std::mt19937 random(3);
  std::vector<std::pair<QString, QByteArray>> expected;
  for (int i = 0; i < 800; ++i) {
    const QMap<QString, QByteArray> before = room.Everything();
    room.Edit(random);
    const QMap<QString, QByteArray> after = room.Everything();
    for (auto file = before.constBegin(); file != before.constEnd(); ++file) {
      if (after.value(file.key(), "(none)") != file.value())
        expected.emplace_back(FolderOfBid(room.shared.JobID) + file.key(), file.value());
    }
  }
  ASSERT_TRUE(journal->Drain(seconds(10)));
  size_t at = 0;
  for (const FormerState& state : room.States()) {
    if (at < expected.size() && state.path == expected[at].first &&
        state.text == expected[at].second)
      ++at;
  }
  EXPECT_EQ(at, expected.size());
}

// A day's work: mostly rooms, each entry changes a line; names move to the front of their lists.
TEST(Journal, TenThousandSavesTakeAtMostFiveMegabytes) {
  JournalRoom room;
  auto journal = room.MakeJournal();
  std::mt19937 random(5);
  std::vector<QStringList> rooms(120, QStringList{"9"});
  QStringList systems;
  for (int i = 0; i < 150; ++i) systems += QStringLiteral("Building System %1").arg(i);
  for (int i = 0; i < 10000; ++i) {
    if (i % 3 == 0) {
      systems.move(static_cast<qsizetype>(random() % 150), 0);
      room.files.SaveLines(room.Data("Descriptions.tamo"), systems);
      continue;
    }
    const auto which = static_cast<size_t>(random() % rooms.size());
    QStringList& lines = rooms[which];
    const QString line =
        QStringLiteral("Drywall              WALLS      %1 SF").arg(random() % 99999, 13);
    if (lines.size() < 30) {
      lines += line;
    } else {
      lines[1 + static_cast<qsizetype>(random() % 29)] = line;
    }
    room.files.SaveLines(room.Bid(QStringLiteral("Rooms/Room %1.rfs").arg(which)), lines);
    if (i % 1000 == 0) journal->Drain(seconds(10));
  }
  ASSERT_TRUE(journal->Drain(seconds(20)));
  EXPECT_LT(room.Size(), 5'000'000);
  EXPECT_GE(room.States().size(), 10000U);
  RecordProperty("bytes", std::to_string(room.Size()));
}

TEST(Journal, TwoProgramsShareTheFolder) {
  JournalRoom room;
  auto first = room.MakeJournal();
  room.files.SaveText(room.Bid("Rooms/A.rfs"), "one\r\n");
  room.files.SaveText(room.Bid("Rooms/A.rfs"), "two\r\n");
  auto second = room.MakeJournal();
  room.files.SaveText(room.Bid("Rooms/A.rfs"), "three\r\n");
  room.files.witness = first.get();
  room.files.SaveText(room.Bid("Rooms/A.rfs"), "four\r\n");
  first.reset();
  second.reset();
  room.files.witness = nullptr;
  EXPECT_EQ(room.Journals().size(), 2);
  QByteArrayList texts;
  for (const FormerState& state : room.States()) texts += state.text;
  std::sort(texts.begin(), texts.end());
  EXPECT_EQ(texts, (QByteArrayList{"", "one\r\n", "three\r\n", "two\r\n"}));
}

TEST(Journal, ADamagedOneHindersNoSave) {
  JournalRoom room;
  auto journal = room.MakeJournal();
  const QString path = room.Bid("Rooms/A.rfs");
  for (int i = 0; i < 40; ++i) room.files.SaveText(path, QStringLiteral("9\r\nline %1\r\n").arg(i));
  journal->Drain(seconds(5));
  const QString file = room.Folder().Journal(room.Journals()[0]);
  QByteArray bytes = HistoryRoom::Content(file);
  for (int cut = 0; cut < bytes.size(); cut += 37) {
    QByteArray damaged = bytes;
    damaged[cut] = 'X';
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(cut % 2 == 0 ? damaged : bytes.left(cut));
    out.close();
    for (const FormerState& state : room.States())
      EXPECT_TRUE(state.text.isEmpty() || state.text.startsWith("9\r\nline "))
          << state.text.constData();
  }
  QFile::remove(file);
  EXPECT_EQ(room.files.SaveText(path, "after\r\n"), kNoError);
}

TEST(Journal, WhereItCantBeWrittenSavesGoOn) {
  JournalRoom room;
  room.journalDisk.Deny(room.Folder().Path());
  auto journal = room.MakeJournal();
  EXPECT_EQ(room.files.SaveText(room.Bid("Rooms/A.rfs"), "one\r\n"), kNoError);
  EXPECT_EQ(room.files.SaveText(room.Bid("Rooms/A.rfs"), "two\r\n"), kNoError);
  journal->Drain(seconds(5));
  EXPECT_TRUE(room.States().empty());
  room.journalDisk.Allow(room.Folder().Path());
  EXPECT_EQ(room.files.SaveText(room.Bid("Rooms/A.rfs"), "three\r\n"), kNoError);
  journal->Drain(seconds(5));
  ASSERT_EQ(room.States().size(), 1U);
  EXPECT_EQ(room.States()[0].text, "two\r\n");
}

// The disk is full as long as a journal file of former days stands.
class SmallDisk : public FaultDisk {
 public:
  explicit SmallDisk(QString spare) : spare_(std::move(spare)) {}
  int Write(int handle, const QByteArray& bytes) override {
    return QFile::exists(spare_) ? kDiskFull : FaultDisk::Write(handle, bytes);
  }

 private:
  QString spare_;
};

TEST(Journal, AFullDiskDropsHistoryBeforeAnEntry) {
  JournalRoom room;
  auto journal = room.MakeJournal();
  room.files.SaveText(room.Data("Units.tamo"), "SF\r\n");
  journal->Drain(seconds(5));
  const QString old = room.Folder().Journal("2021-12-01 101010 pc 1-1.journal");
  QFile spare(old);
  ASSERT_TRUE(spare.open(QIODevice::WriteOnly));
  spare.close();
  SmallDisk small(old);
  Files files(small);
  files.witness = journal.get();
  EXPECT_EQ(files.SaveText(room.Data("Units.tamo"), "SF\r\nLF\r\n"), kNoError);
  EXPECT_EQ(HistoryRoom::Content(room.Data("Units.tamo")), "SF\r\nLF\r\n");
  EXPECT_FALSE(QFile::exists(old));
  EXPECT_TRUE(files.PendingSaves().empty());
}

TEST(Journal, AFullDiskInTheMiddleOfAnEntryLeavesTheRestReadable) {
  JournalRoom room;
  auto journal = room.MakeJournal();
  const QString path = room.Data("Units.tamo");
  for (int i = 0; i < 30; ++i) {
    room.journalDisk.SetFull(i % 3 == 1);
    room.files.SaveText(path, QStringLiteral("unit %1\r\n").arg(i));
    journal->Drain(seconds(5));
  }
  EXPECT_GE(room.States().size(), 15U);
  for (const FormerState& state : room.States())
    EXPECT_TRUE(!state.existed || state.text.startsWith("unit ")) << state.text.constData();
}

TEST(Journal, OldDaysAreThinnedToTheirBegin) {
  JournalRoom room;
  const QString path = room.Bid("Rooms/A.rfs");
  room.clock.today = QDate(2021, 12, 1);
  for (int day = 0; day < 12; ++day) {
    auto journal = room.MakeJournal();
    for (int i = 0; i < 20; ++i)
      room.files.SaveText(path, QStringLiteral("day %1 entry %2\r\n").arg(day).arg(i));
    journal.reset();
    room.clock.today = room.clock.today.addDays(1);
  }
  TendJournal(room.disk, room.Folder(), room.clock.today, {});
  const QStringList names = room.Journals();
  ASSERT_EQ(names.size(), 12) << names.join('\n').toStdString();
  EXPECT_EQ(names[0], "2021-12-01.journal");
  std::map<QByteArray, int> counts;
  std::map<QByteArray, QByteArray> first;
  for (const FormerState& state : room.States()) {
    const QByteArray day = state.when.left(10);
    if (++counts[day] == 1) first[day] = state.text;
  }
  EXPECT_EQ(counts["2021-12-02"], 1);
  EXPECT_EQ(counts["2021-12-12"], 20);
  EXPECT_EQ(first["2021-12-02"], "day 0 entry 19\r\n");
  TendJournal(room.disk, room.Folder(), room.clock.today, {.mostBytes = 3000});
  EXPECT_LE(room.Size(), 3000);
  EXPECT_EQ(room.Journals().back(), names.back());
}

TEST(Journal, ItStaysOutOfTheWay) {
  JournalRoom room;
  auto journal = room.MakeJournal();
  room.files.SaveText(room.Data("").chopped(5) + "Other.tamo", "outside\r\n");
  room.files.SaveText(room.shared.DataPath + "History/x.tamo", "its own\r\n");
  journal->Drain(seconds(5));
  EXPECT_TRUE(room.States().empty());
}

}  // namespace
}  // namespace tamo::test
