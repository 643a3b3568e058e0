#include "common/textsahead.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <atomic>
#include <chrono>
#include <thread>

#include "common/failure.h"
#include "common/paths.h"
#include "support/faultdisk.h"

using namespace tamo;

namespace {

// Counts what is read, and how much of it by another thread.
class CountingDisk : public test::FaultDisk {
 public:
  std::atomic<int> reads = 0;
  std::atomic<int> elsewhere = 0;

  int Read(const QString& path, QByteArray& bytes) override {
    if (std::this_thread::get_id() != asking_) ++elsewhere;
    ++reads;
    return FaultDisk::Read(path, bytes);
  }
  // Until `count` files have been read, and then nothing more for a while.
  void Rest(int count) const {
    for (int i = 0; reads < count && i < 20000; ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    for (int before = -1; before != reads;) {
      before = reads;
      std::this_thread::sleep_for(std::chrono::milliseconds(60));
    }
  }

 private:
  std::thread::id asking_ = std::this_thread::get_id();
};

std::function<QString(size_t)> PathOf(const QStringList& paths) {
  return [paths](size_t at) { return paths.at(static_cast<qsizetype>(at)); };
}

struct TextsAheadTest : ::testing::Test {
  QTemporaryDir folder;
  CountingDisk disk;
  Files files{disk};

  QString Path(int number) const { return folder.filePath(QStringLiteral("f%1.txt").arg(number)); }
  QStringList Written(int count) const {
    QStringList paths;
    for (int i = 0; i < count; ++i) {
      QFile file(Path(i));
      EXPECT_TRUE(file.open(QIODevice::WriteOnly));
      file.write("text " + QByteArray::number(i) + "\r\n");
      paths += file.fileName();
    }
    return paths;
  }
  void ExpectAsReadOneByOne(const QStringList& paths) {
    TextsAhead texts(files, static_cast<size_t>(paths.size()), PathOf(paths));
    for (const QString& path : paths) {
      QString plain;
      const int error = path.isEmpty() ? kFileNotFound : files.ReadText(path, plain);
      QString ahead = QStringLiteral("old");
      EXPECT_EQ(texts.Next(ahead), error) << path.toStdString();
      EXPECT_EQ(ahead, plain) << path.toStdString();
    }
  }
};

}  // namespace

TEST_F(TextsAheadTest, GivesEachTextAsPlainReadingDoes) {
  for (const int count : {0, 1, 23, 24, 25, 500}) ExpectAsReadOneByOne(Written(count));
}

TEST_F(TextsAheadTest, MissingFilesAndNamesInAnotherCaseAreAsInPlainReading) {
  QStringList paths = Written(100);
  for (int i = 0; i < 100; i += 3) paths[i] = folder.filePath(QStringLiteral("F%1.TXT").arg(i));
  for (int i = 1; i < 100; i += 3) ASSERT_TRUE(QFile::remove(paths[i]));
  paths[50].clear();
  paths[98] = folder.filePath(QStringLiteral("none/f.txt"));
  ExpectAsReadOneByOne(paths);
}

TEST_F(TextsAheadTest, APendingTextIsReadInsteadOfItsFile) {
  const QStringList paths = Written(60);
  disk.SetFull(true);
  EXPECT_NE(files.SaveText(Path(40), QStringLiteral("kept")), kNoError);
  ExpectAsReadOneByOne(paths);
  QString text;
  TextsAhead texts(files, static_cast<size_t>(paths.size()), PathOf(paths));
  for (int i = 0; i <= 40; ++i) texts.Next(text);
  EXPECT_EQ(text, QStringLiteral("kept"));
}

TEST_F(TextsAheadTest, ItMayEndAtAnyPlace) {
  const QStringList paths = Written(300);
  for (int asked = 0; asked < 300; asked += 7) {
    TextsAhead texts(files, static_cast<size_t>(paths.size()), PathOf(paths));
    QString text;
    for (int i = 0; i < asked; ++i) ASSERT_EQ(texts.Next(text), kNoError);
  }
}

TEST_F(TextsAheadTest, AThreadReadsSomeFilesAheadAndNoMore) {
  const QStringList paths = Written(500);
  ReadingPace pace;
  pace.ahead = 64;
  TextsAhead texts(files, static_cast<size_t>(paths.size()), PathOf(paths), pace);
  QString text;
  ASSERT_EQ(texts.Next(text), kNoError);
  disk.Rest(11);
  EXPECT_GE(disk.elsewhere, 10);
  EXPECT_LE(disk.reads, static_cast<int>(pace.ahead) + 1);
  for (int i = 1; i < 400; ++i) ASSERT_EQ(texts.Next(text), kNoError);
  disk.Rest(401);
  EXPECT_LE(disk.reads, 400 + static_cast<int>(pace.ahead));
  EXPECT_GT(disk.reads, 400);
}

TEST_F(TextsAheadTest, FewLargeTextsWait) {
  const QStringList paths = Written(300);
  ReadingPace pace;
  pace.most = 40;  // five or six of these texts
  TextsAhead texts(files, static_cast<size_t>(paths.size()), PathOf(paths), pace);
  QString text;
  ASSERT_EQ(texts.Next(text), kNoError);
  disk.Rest(2);
  EXPECT_LE(disk.reads, 8);
  for (int i = 1; i < 300; ++i) {
    ASSERT_EQ(texts.Next(text), kNoError);
    EXPECT_EQ(text, QStringLiteral("text %1\r\n").arg(i));
  }
}

TEST_F(TextsAheadTest, FewFilesAreReadWhenTheyAreAskedFor) {
  const QStringList paths = Written(20);
  const TextsAhead texts(files, static_cast<size_t>(paths.size()), PathOf(paths));
  disk.Rest(0);
  EXPECT_EQ(disk.reads, 0);
}
