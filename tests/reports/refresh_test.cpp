#include <gtest/gtest.h>

#include <random>

#include "everyreport.h"
#include "livedisk.h"
#include "reports/reportmemory.h"

// A report that is made anew reads only what has changed; it is the same as if all were read.

namespace tamo::test {
namespace {

constexpr qint64 kSecond = 1'000'000'000;

ReportSource SourceOf(Files& files) {
  return {files, {QStringLiteral("/p/"), QStringLiteral("/")}, {}, false};
}

class Changes {
 public:
  Changes(LiveDisk& disk, Files& files, unsigned seed)
      : disk_(disk), files_(files), random_(seed) {}

  void Begin() {
    FillWithRandomProject(disk_, random_);
    const QHash<QString, QByteArray> contents = disk_.contents;
    for (auto at = contents.begin(); at != contents.end(); ++at) disk_.Replace(at.key(), *at);
  }

  // Nothing, a little, or more than a coarse clock needs.
  void PassTime() {
    static constexpr qint64 kTimes[] = {0,       0,           1000,       kSecond / 10,
                                        kSecond, 2 * kSecond, 5 * kSecond};
    disk_.now += kTimes[random_() % std::size(kTimes)];
  }

  // Of some file, of the same size or another one.
  void One() {
    QStringList paths = disk_.contents.keys();
    if (paths.isEmpty()) return;
    paths.sort();
    const QString path =
        paths.at(static_cast<int>(random_() % static_cast<unsigned>(paths.size())));
    const QByteArray text = Changed(disk_.contents.value(path));
    switch (random_() % 6) {
      case 0:
      case 1:
        files_.SaveText(path, QString::fromUtf8(text));
        files_.BeginAnew();  // what would wait beside another program's change is stored
        break;
      case 2:
        disk_.Overwrite(path, text);
        break;
      case 3:
        disk_.Replace(path, text);
        break;
      case 4:
        disk_.OverwriteWithOldTime(path, text);
        break;
      default:
        if (random_() % 8 != 0) break;
        disk_.Drop(path);
        files_.Forget(path);  // a program that never saw it can't tell that it is gone
    }
  }

 private:
  QByteArray Changed(QByteArray text) {
    for (int i = 0; i < text.size(); ++i) {
      char& c = text[static_cast<int>((random_() + static_cast<unsigned>(i)) %
                                      static_cast<unsigned>(text.size()))];
      if (c >= '0' && c <= '9') {
        c = static_cast<char>('0' + random_() % 10);
        break;
      }
    }
    return random_() % 3 == 0 ? text + "\r\n" : text;
  }

  LiveDisk& disk_;
  Files& files_;
  std::mt19937 random_;
};

TEST(Refresh, AReportAnewIsTheSameAsIfAllWereRead) {
  int spared = 0;
  for (unsigned project = 0; project < 60; ++project) {
    LiveDisk disk(project % 3 == 0 ? 2 * kSecond : project % 3 == 1 ? kSecond : 4'000'000);
    Files files(disk);
    Changes changes(disk, files, project);
    changes.Begin();
    const Markups markups = RandomMarkups(project);
    ReportMemory memory;
    for (int step = 0; step < 60; ++step) {
      changes.PassTime();
      for (int i = step % 3; i > 0; --i) changes.One();
      const int report = step % kReports;
      disk.reads = 0;
      ReportSource source = SourceOf(files);
      source.memory = &memory;
      const Outcome anew = Play(report, source, markups);
      const int read = std::exchange(disk.reads, 0);
      Files fresh(disk);
      ASSERT_EQ(anew, Play(report, SourceOf(fresh), markups)) << project << ", step " << step;
      spared += disk.reads - read;
    }
  }
  EXPECT_GT(spared, 1000);  // it is not by reading all that they are the same
}

TEST(Refresh, WhatWasChangedJustBeforeItWasReadIsReadAgain) {
  LiveDisk disk(2 * kSecond);
  Files files(disk);
  disk.Replace(QStringLiteral("/p/a"), "1");
  QString text;
  for (int i = 0; i < 3; ++i) files.ReadText(QStringLiteral("/p/a"), text);
  EXPECT_EQ(disk.reads, 3);
  disk.now += 4 * kSecond;
  for (int i = 0; i < 3; ++i) files.ReadText(QStringLiteral("/p/a"), text);
  EXPECT_EQ(disk.reads, 4);
  files.SaveText(QStringLiteral("/p/a"), QStringLiteral("2"));
  files.ReadText(QStringLiteral("/p/a"), text);
  EXPECT_EQ(text, QStringLiteral("2"));
}

TEST(Refresh, ATimeInTheFutureIsTrustedByNobody) {
  LiveDisk disk(1);
  Files files(disk);
  disk.Replace(QStringLiteral("/p/a"), "1");
  disk.now -= 3600 * kSecond;
  QString text;
  for (int i = 0; i < 3; ++i) files.ReadText(QStringLiteral("/p/a"), text);
  EXPECT_EQ(disk.reads, 3);
}

}  // namespace
}  // namespace tamo::test
