#include "reports/systemsahead.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include <QHash>
#include <QSet>
#include <atomic>
#include <chrono>
#include <mutex>
#include <random>
#include <thread>
#include <utility>

#include "common/failure.h"
#include "everyreport.h"
#include "plaincopies.h"
#include "randomproject.h"
#include "reportbench.h"
#include "reports/copies.h"
#include "reports/reportmemory.h"

// Whatever the reading thread does with the systems of a report, the report is the one that a
// single thread makes, and tells the same of what it could not read.

namespace tamo::test {
namespace {

#define S(text) QStringLiteral(text)

ReportSource SourceOf(Files& files) {
  return {files, {S("/p/"), S("/")}, {}, false};
}

// With a save waiting nothing is read ahead.
struct OneThread {
  explicit OneThread(Files& files) {
    files.KeepTrying(S("/elsewhere"), kDiskFull, [] { return kDiskFull; });
  }
};

// Some systems of a project are damaged or locked, or sheets are.
class BadDisk : public MemoryDisk {
 public:
  QSet<QString> locked;

  int Read(const QString& path, QByteArray& bytes) override {
    return locked.contains(path) ? kNoAccess : MemoryDisk::Read(path, bytes);
  }
  void Damage(std::mt19937& random) {
    locked.clear();
    for (auto at = contents.begin(); at != contents.end(); ++at) {
      if (random() % 20 == 0) locked += at.key();
      if (random() % 20 == 0) at->insert(at->size() / 2, '\0');
    }
  }
};

QStringList FailedReads(const Files& files) {
  QStringList failures;
  for (const ReadFailure& failure : files.ReadFailures())
    failures += failure.path + QString::number(failure.number);
  return failures;
}

TEST(SystemsAhead, EveryReportIsThatOfOneThread) {
  BadDisk disk;
  std::mt19937 random(20240229);
  int whole = 0;
  int failures = 0;
  for (int i = 0; i < 400; ++i) {
    FillWithRandomProject(disk, random, 60);
    disk.locked.clear();
    if (i % 2 == 0) disk.Damage(random);
    const Markups markups = RandomMarkups(random());
    ReportMemory memory;
    for (int report = 0; report < kReports; ++report) {
      Files files(disk);
      Files others(disk);
      const OneThread one(others);
      ReportSource source = SourceOf(files);
      if (i % 4 > 1) source.memory = &memory;
      const Outcome outcome = Play(report, source, markups);
      ASSERT_EQ(outcome, Play(report, SourceOf(others), markups)) << i << ", report " << report;
      ASSERT_EQ(FailedReads(files), FailedReads(others)) << i << ", report " << report;
      whole += outcome.lines.isEmpty() ? 0 : 1;
      failures += files.ReadFailures().empty() ? 0 : 1;
    }
  }
  EXPECT_GT(whole, 300);
  EXPECT_GT(failures, 300);
}

// Many rooms of some systems each.
class ManyDisk : public MemoryDisk {
 public:
  ManyDisk(int rooms, int systems) {
    QByteArray list;
    for (int room = 0; room < rooms; ++room) {
      const QByteArray name = "Room " + QByteArray::number(room);
      list += name + "\r\nTrue\r\n";
      QByteArray lines = "9\r\n";
      for (int line = 0; line < 20; ++line) {
        lines += Name((room * 20 + line * 7) % systems).leftJustified(32) +
                 QByteArray::number(line + 1).rightJustified(14) + " SF\r\n";
      }
      contents.insert(S("/p/Rooms/") + QString::fromUtf8(name) + S(".rfs"), lines);
    }
    contents.insert(S("/p/Rooms/Rooms.tamo"), list);
    for (int system = 0; system < systems; ++system)
      contents.insert(PathOf(system), Text(system, 1 + system % 9));
  }
  static QByteArray Name(int system) { return "System " + QByteArray::number(system); }
  static QString PathOf(int system) {
    return S("/p/Systems/") + QString::fromUtf8(Name(system)) + S(".sys");
  }
  static QByteArray Text(int system, int price) {
    return Name(system) + "\r\nSF\r\n0.00\r\n\r\n\x01\r\n\r\n\r\nBoard\r\nEA\r\n" +
           QByteArray::number(price) +
           ".50\r\n32\r\nupo\r\n45\r\nupm\r\n5\r\n41.50\r\n\r\n\r\n\r\n";
  }

  int Read(const QString& path, QByteArray& bytes) override {
    const std::lock_guard lock(mutex_);
    if (path.endsWith(S(".sys"))) {
      ++reads[path];
      if (std::this_thread::get_id() != asking_) ++elsewhere;
    }
    ++all;
    const int error = MemoryDisk::Read(path, bytes);
    Changed(path, bytes);
    return error;
  }

  QHash<QString, int> reads;
  std::atomic<int> elsewhere = 0;
  std::atomic<int> all = 0;

 protected:
  virtual void Changed(const QString&, QByteArray&) {}

 private:
  const std::thread::id asking_ = std::this_thread::get_id();
  std::mutex mutex_;
};

TEST(SystemsAhead, EachFileIsReadOnceByOneOfTheTwo) {
  int elsewhere = 0;
  for (int i = 0; i < 50; ++i) {
    ManyDisk disk(200, 300);
    Files files(disk);
    FieldCopy(SourceOf(files));
    EXPECT_EQ(disk.reads.size(), 300);
    for (const int reads : std::as_const(disk.reads)) ASSERT_EQ(reads, 1);
    elsewhere += disk.elsewhere;
  }
  EXPECT_GT(elsewhere, 0);
}

TEST(SystemsAhead, ALibraryOfTenThousandSystems) {
  ManyDisk disk(1000, 10'000);
  Files files(disk);
  Files others(disk);
  const OneThread one(others);
  EXPECT_EQ(OfficeCopy(SourceOf(files), {}).lines.ToList(),
            MakePlainCopy(SourceOf(others), {}, true).lines);
}

// A text that waits is not read past what may wait; it is read when it is asked for.
TEST(SystemsAhead, FewLargeSystemsWait) {
  ManyDisk disk(30, 600);
  for (int system = 0; system < 600; ++system)
    disk.contents[ManyDisk::PathOf(system)] += QByteArray(100'000, ' ');
  Files files(disk);
  const ReportSource source = SourceOf(files);
  SystemsAhead systems(source);
  const std::atomic<bool> stopped = false;
  QString lines;
  for (int system = 0; system < 600; ++system)
    lines += QString::fromUtf8(ManyDisk::Name(system)) + u'\n';
  systems.Look(LineScanner(lines), stopped);
  const auto ahead = disk.reads.size();
  EXPECT_GT(ahead, 10);
  EXPECT_LE(ahead, SystemsAhead::kMost / 100'000 + 1);
  SystemAhead system;
  EXPECT_FALSE(systems.Take(S("System 599"), system));
  for (int i = 0; i < 10; ++i)
    EXPECT_TRUE(systems.Take(QString::fromUtf8(ManyDisk::Name(i)), system)) << i;
  systems.Look(LineScanner(lines), stopped);
  EXPECT_EQ(disk.reads.size(), ahead + 10);
}

// Another program goes on changing a system's price: each read finds another one.
TEST(SystemsAhead, ASystemThatChangesMeanwhileIsOneSystemInTheWholeReport) {
  class ChangingDisk : public ManyDisk {
   public:
    ChangingDisk() : ManyDisk(200, 40) {}

   protected:
    void Changed(const QString& path, QByteArray& bytes) override {
      if (path.endsWith(S(".sys"))) bytes.replace("41.50", QByteArray::number(++times_) + ".00");
    }

   private:
    int times_ = 0;
  };
  ChangingDisk disk;
  Files files(disk);
  const TakeoffCopy copy = OfficeCopy(SourceOf(files), {});
  QHash<QString, QSet<QString>> versions;  // of a system with its quantity
  for (qsizetype row = 0; row < copy.lines.size(); ++row) {
    const QString line = copy.lines[row];
    if (line.startsWith(S("   System "))) versions[line.left(60)] += line;
  }
  EXPECT_EQ(versions.size(), 40);
  for (const QSet<QString>& lines : std::as_const(versions)) EXPECT_EQ(lines.size(), 1);
}

// A save that waits since the report began counts for the systems that it has not come to.
TEST(SystemsAhead, AWaitingSaveIsReadInsteadOfWhatWasReadBefore) {
  ManyDisk disk(200, 40);
  Files files(disk);
  ReportSource source = SourceOf(files);
  const QString path = ManyDisk::PathOf(38);  // in each second room
  bool saved = false;
  source.progress = [&](int, int) {
    if (!std::exchange(saved, true)) {
      files.SaveText(path, QString::fromUtf8(ManyDisk::Text(38, 1)).replace(S("Board"), S("Beam")));
    }
    return true;
  };
  const TakeoffCopy copy = FieldCopy(source);
  ASSERT_FALSE(files.PendingSaves().empty());  // this disk can't be written
  int beams = 0;
  for (qsizetype row = 0; row < copy.lines.size(); ++row)
    beams += copy.lines[row].contains(S("Beam"));
  EXPECT_EQ(beams, 100);
}

TEST(SystemsAhead, AStoppedReportLeavesNoThreadBehind) {
  for (int sheets = 1; sheets < 60; sheets += 3) {
    ManyDisk disk(300, 3000);
    Files files(disk);
    ReportSource source = SourceOf(files);
    source.progress = [&](int done, int) { return done < sheets; };
    EXPECT_THROW(OfficeCopy(source, {}), RunTimeFailure);
    const int reads = disk.all;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
    EXPECT_EQ(disk.all, reads);
  }
}

// One room names thousands of systems: the thread that reads them ends with the file it is at.
TEST(SystemsAhead, ItStopsInTheMiddleOfASheet) {
  ManyDisk disk(1, 3000);
  Files files(disk);
  const ReportSource source = SourceOf(files);
  SystemsAhead systems(source);
  QString lines;
  for (int system = 0; system < 3000; ++system)
    lines += QString::fromUtf8(ManyDisk::Name(system)) + u'\n';
  std::atomic<bool> stopped = false;
  std::thread reading([&] { systems.Look(LineScanner(lines), stopped); });
  while (disk.all == 0) std::this_thread::yield();
  stopped = true;
  reading.join();
  EXPECT_LT(disk.all, 3000);
}

#ifdef __GLIBC__
// No thread can be had: its stack would be larger than any memory.
TEST(SystemsAhead, WithoutAThreadTheReportIsTheSame) {
  ManyDisk disk(100, 50);
  Files files(disk);
  pthread_attr_t usual;
  pthread_attr_t vast;
  ASSERT_EQ(pthread_getattr_default_np(&usual), 0);
  ASSERT_EQ(pthread_getattr_default_np(&vast), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&vast, size_t(1) << 52), 0);
  ASSERT_EQ(pthread_setattr_default_np(&vast), 0);
  const QStringList lines = OfficeCopy(SourceOf(files), {}).lines.ToList();
  ASSERT_EQ(pthread_setattr_default_np(&usual), 0);
  EXPECT_EQ(disk.elsewhere, 0);
  EXPECT_EQ(lines, MakePlainCopy(SourceOf(files), {}, true).lines);
}
#endif

}  // namespace
}  // namespace tamo::test
