// Every record of the data folder: what is read, written and read again is the same, whatever the
// file looks like.

#include <gtest/gtest.h>

#include <QFile>

#include "common/failure.h"
#include "records/everyrecord.h"
#include "records/oddfiles.h"

namespace tamo::test {
namespace {

constexpr int kFiles = 60;  // odd files for each record

class Record : public ::testing::TestWithParam<size_t> {
 protected:
  const RecordCase& Case() const { return EveryRecord()[GetParam()]; }
  QString Path() { return Case().path(folder_); }
  QStringList Read() { return Case().read(folder_, error_); }
  void Write(const QStringList& texts) { ASSERT_EQ(Case().write(folder_, texts), kNoError); }
  void Put(const QByteArray& bytes) {
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << Path().toStdString();
    file.write(bytes);
  }
  QByteArray Bytes() {
    QFile file(Path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  QStringList Expected(QStringList texts) const {
    if (Case().notesGrow) texts.front() += QStringLiteral("\r\n");
    return texts;
  }

  RecordFolder folder_;
  int error_ = kNoError;
};

TEST_P(Record, IsTheSameReadWrittenAndReadAgain) {
  std::mt19937 dice(1);
  for (int i = 0; i < kFiles; ++i) {
    const QByteArray bytes = OddFile(dice);
    Put(bytes);
    const QStringList first = Read();
    EXPECT_EQ(error_, kNoError);
    Write(first);
    EXPECT_EQ(Read(), Expected(first)) << i << ": " << bytes.toHex(' ').toStdString();
  }
}

TEST_P(Record, IsWrittenAlikeFromWhatWasWritten) {
  std::mt19937 dice(2);
  for (int i = 0; i < kFiles && !Case().notesGrow; ++i) {
    Put(OddFile(dice));
    Write(Read());
    const QByteArray bytes = Bytes();
    Write(Read());
    EXPECT_EQ(Bytes(), bytes) << i;
    EXPECT_TRUE(bytes.isEmpty() || bytes.endsWith("\r\n")) << i;
    EXPECT_FALSE(bytes.startsWith("\xEF\xBB\xBF")) << i;
  }
}

TEST_P(Record, EachLineEndMeansTheSame) {
  std::mt19937 dice(3);
  for (int i = 0; i < kFiles; ++i) {
    QByteArray bytes = OddFile(dice);
    bytes.replace("\r\n", "\n").replace('\r', '\n');
    Put(bytes);
    const QStringList lineFeeds = Read();
    Put(QByteArray(bytes).replace('\n', "\r\n"));
    EXPECT_EQ(Read(), lineFeeds) << i;
    Put(QByteArray(bytes).replace('\n', '\r'));
    EXPECT_EQ(Read(), lineFeeds) << i;
  }
}

TEST_P(Record, CutAtAnyByteIsReadAsFarAsItGoes) {
  std::mt19937 dice(4);
  const QByteArray bytes = OddFile(dice) + OddFile(dice) + "last line, of all\r\n";
  for (qsizetype size = 0; size <= bytes.size(); size += 1 + size / 40) {
    Put(bytes.first(size));
    const QStringList first = Read();
    Write(first);
    EXPECT_EQ(Read(), Expected(first)) << size;
  }
}

TEST_P(Record, IsMissingUntilItIsWritten) {
  Read();
  EXPECT_EQ(error_, kFileNotFound);
  Write(Read());
  EXPECT_EQ(error_, kFileNotFound);
  Read();
  EXPECT_EQ(error_, kNoError);
}

INSTANTIATE_TEST_SUITE_P(Every, Record, ::testing::Range<size_t>(0, EveryRecord().size()),
                         [](const auto& info) { return EveryRecord()[info.param].name; });

}  // namespace
}  // namespace tamo::test
