#include "records/recoveryfile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <memory>

#include "support/faultdisk.h"

namespace tamo::test {
namespace {

class CountingDisk : public FaultDisk {
 public:
  int Sync(int handle) override {
    ++syncs;
    return FaultDisk::Sync(handle);
  }
  int SyncFolder(const QString& folder) override {
    ++folderSyncs;
    return FaultDisk::SyncFolder(folder);
  }
  int syncs = 0;
  int folderSyncs = 0;
};

class RecoveryFileTest : public ::testing::Test {
 protected:
  static QList<WaitingEntries> Entries(const char* text) {
    return {{"Settings", {}, {}, {{"EstimatorName", QString::fromLatin1(text)}}}};
  }
  QStringList Names() { return disk.Names(dir.path()); }
  QString Path(const QString& name) const { return dir.path() + '/' + name; }
  // What the next run finds after this one was killed.
  QString Left(std::unique_ptr<RecoveryFile>& file) {
    file.reset();
    QStringList files;
    const QList<WaitingEntries> left = ReadLeftRecoveries(disk, dir.path(), files);
    EXPECT_EQ(files.size(), Names().size());
    return left.isEmpty() ? QString() : left[0].Value(QStringLiteral("EstimatorName"));
  }

  QTemporaryDir dir;
  CountingDisk disk;
  std::unique_ptr<RecoveryFile> file = std::make_unique<RecoveryFile>(disk, dir.path());
};

TEST_F(RecoveryFileTest, AnEntryDoesNotWaitForTheDevice) {
  EXPECT_EQ(file->Write(Entries("Ann")), 0);
  EXPECT_EQ(file->Write(Entries("Bob")), 0);
  EXPECT_EQ(disk.syncs + disk.folderSyncs, 0);
  EXPECT_EQ(Names().size(), 1);
  EXPECT_EQ(Left(file), "Bob");
}

TEST_F(RecoveryFileTest, WhatTheDeviceHasStaysUntilItHasTheNext) {
  file->Write(Entries("Ann"));
  EXPECT_EQ(file->Confirm(), 0);
  EXPECT_EQ(disk.syncs, 1);
  EXPECT_EQ(disk.folderSyncs, 1);
  const QString confirmed = Names().value(0);
  file->Write(Entries("Bob"));
  file->Write(Entries("Cleo"));
  EXPECT_EQ(Names().size(), 2);
  EXPECT_TRUE(Names().contains(confirmed));
  file->Confirm();
  EXPECT_EQ(Names().size(), 1);
  EXPECT_FALSE(Names().contains(confirmed));
  EXPECT_EQ(Left(file), "Cleo");
}

TEST_F(RecoveryFileTest, NothingNewIsNotConfirmedAgain) {
  file->Write(Entries("Ann"));
  file->Confirm();
  file->Confirm();
  EXPECT_EQ(disk.syncs, 1);
}

TEST_F(RecoveryFileTest, OfAHalfWrittenOneTheOneBeforeCounts) {
  file->Write(Entries("Ann"));
  file->Confirm();
  file->Write(Entries("Bob"));
  QFile newest(Path(Names().value(1)));
  const qint64 whole = newest.size();
  ASSERT_GT(whole, 5);
  ASSERT_TRUE(newest.resize(whole - 5));
  EXPECT_EQ(Left(file), "Ann");
}

TEST_F(RecoveryFileTest, AFailureLeavesTheOneBefore) {
  file->Write(Entries("Ann"));
  disk.SetFull(true);
  EXPECT_NE(file->Write(Entries("Bob")), 0);
  disk.SetFull(false);
  EXPECT_EQ(Names().size(), 1);
  EXPECT_EQ(Left(file), "Ann");
}

TEST_F(RecoveryFileTest, WhatIsStoredElsewhereIsGoneForTheDevice) {
  file->Write(Entries("Ann"));
  file->Confirm();
  file->Write(Entries("Bob"));
  EXPECT_EQ(file->Write({}), 0);
  EXPECT_TRUE(Names().isEmpty());
  EXPECT_EQ(file->Confirm(), 0);
  EXPECT_EQ(disk.folderSyncs, 2);
  EXPECT_EQ(Left(file), "");
}

}  // namespace
}  // namespace tamo::test
