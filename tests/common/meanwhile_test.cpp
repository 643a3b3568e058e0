#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <functional>

#include "common/failure.h"
#include "common/files.h"
#include "support/faultdisk.h"

// Another program stores a file in the middle of a save of ours: between the look at it and the
// moment in which ours takes its place.

namespace tamo::test {
namespace {

// Does something just before a file of ours takes its place, as often as it is told.
class BusyDisk : public FaultDisk {
 public:
  int Swap(const QString& one, const QString& other) override {
    Meanwhile();
    return offered ? FaultDisk::Swap(one, other) : kNotOffered;
  }
  int RenameNew(const QString& from, const QString& to) override {
    Meanwhile();
    return offered ? FaultDisk::RenameNew(from, to) : kNotOffered;
  }
  std::function<void()> meanwhile;
  int times = 0;
  bool offered = true;

 private:
  void Meanwhile() {
    if (times > 0 && --times >= 0) meanwhile();
  }
};

class MeanwhileTest : public ::testing::Test {
 protected:
  QString Path() const { return dir.path() + QStringLiteral("/Names.tamo"); }
  QString OnDisk() {
    QByteArray bytes;
    disk.Read(Path(), bytes);
    return QString::fromUtf8(bytes);
  }
  void Others(const QStringList& names) {
    RealDisk plain;
    Files others(plain);
    others.SaveLines(Path(), names, FileKind::List);
  }
  int Save(const QStringList& names, FileKind kind = FileKind::List) {
    return files.SaveLines(Path(), names, kind);
  }

  QTemporaryDir dir;
  BusyDisk disk;
  Files files{disk};
};

TEST_F(MeanwhileTest, AListGetsTheNamesOfBoth) {
  Save({"a"});
  disk.meanwhile = [this] { Others({"a", "theirs"}); };
  disk.times = 1;
  EXPECT_EQ(Save({"a", "mine"}), 0);
  EXPECT_EQ(OnDisk(), "a\r\ntheirs\r\nmine\r\n");
  EXPECT_EQ(disk.Names(dir.path()), QStringList("Names.tamo"));
}

TEST_F(MeanwhileTest, ANewListGetsTheNamesOfBoth) {
  QString text;
  files.ReadText(Path(), text);
  disk.meanwhile = [this] { Others({"theirs"}); };
  disk.times = 1;
  EXPECT_EQ(Save({"mine"}), 0);
  EXPECT_EQ(OnDisk(), "theirs\r\nmine\r\n");
}

TEST_F(MeanwhileTest, SomebodyIsBetweenAgainAndAgain) {
  Save({"a"});
  int number = 0;
  QStringList others{"a"};
  disk.meanwhile = [&] {
    others += QString::number(++number);
    Others(others);
  };
  disk.times = 3;
  EXPECT_EQ(Save({"a", "mine"}), 0);
  EXPECT_EQ(OnDisk(), "a\r\n1\r\n2\r\n3\r\nmine\r\n");
}

TEST_F(MeanwhileTest, TwoPricesAreAskedAbout) {
  Save({"1.00"}, FileKind::Record);
  for (const bool mine : {false, true}) {
    QString seen;
    files.keepMine = [&](const QString&, const QString&, const QString& theirs) {
      seen = theirs;
      return mine;
    };
    const QString price = mine ? QStringLiteral("5.00") : QStringLiteral("2.00");
    disk.meanwhile = [this, price] { Others({price}); };
    disk.times = 1;
    EXPECT_EQ(Save({mine ? "4.00" : "3.00"}, FileKind::Record), mine ? 0 : kTheirsTaken);
    EXPECT_EQ(seen, price + QStringLiteral("\r\n"));
    EXPECT_EQ(OnDisk(), mine ? "4.00\r\n" : "2.00\r\n");
    QString text;
    files.ReadText(Path(), text);
  }
}

TEST_F(MeanwhileTest, TheirsComesBackWhenItCannotBeRead) {
  Save({"a"});
  disk.meanwhile = [this] {
    Others({"a", "theirs"});
    disk.DenyReading(dir.path());
  };
  disk.times = 1;
  EXPECT_EQ(Save({"a", "mine"}), kNoAccess);
  disk.AllowReading(dir.path());
  EXPECT_EQ(OnDisk(), "a\r\ntheirs\r\n");
  EXPECT_TRUE(files.TryAgain());
  EXPECT_EQ(OnDisk(), "a\r\ntheirs\r\nmine\r\n");
}

TEST_F(MeanwhileTest, WithoutSuchRenamesTheSaveIsMadeAllTheSame) {
  disk.offered = false;
  EXPECT_EQ(Save({"a"}), 0);
  EXPECT_EQ(Save({"a", "mine"}), 0);
  EXPECT_EQ(OnDisk(), "a\r\nmine\r\n");
  EXPECT_EQ(disk.Names(dir.path()), QStringList("Names.tamo"));
}

}  // namespace
}  // namespace tamo::test
