#include "support/faultdisk.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "common/failure.h"
#include "common/files.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class FaultDiskTest : public testing::Test {
 protected:
  FaultDiskTest() : files(disk), root(folder.path()) {
    files.MakeFolders(root + "/Systems");
    files.SaveText(Path("Systems/A.sys"), "a");
    files.SaveText(Path("Jobs.lst"), "1");
  }
  QString Path(const char* name) const { return root + QLatin1Char('/') + QLatin1String(name); }
  int Read(const char* name) {
    QByteArray bytes;
    const int error = disk.Read(Path(name), bytes);
    std::shared_ptr<FileReader> reader;
    EXPECT_EQ(disk.OpenToRead(Path(name), reader), error) << name;
    EXPECT_EQ(bytes.isEmpty(), error != kNoError) << name;
    return error;
  }

  QTemporaryDir folder;
  FaultDisk disk;
  Files files;
  QString root;
};

}  // namespace

TEST_F(FaultDiskTest, AHiddenFileIsNotFound) {
  disk.Hide(Path("Jobs.lst"));
  EXPECT_EQ(Read("Jobs.lst"), kFileNotFound);
  EXPECT_FALSE(disk.Exists(Path("Jobs.lst")));
  EXPECT_EQ(disk.Size(Path("Jobs.lst")), -1);
  EXPECT_FALSE(disk.Stamp(Path("Jobs.lst")).Known());
  EXPECT_EQ(disk.Names(root), QStringList({"Systems"}));
  EXPECT_EQ(disk.RemoveFile(Path("Jobs.lst")), kFileNotFound);
  disk.Unhide(Path("Jobs.lst"));
  EXPECT_EQ(Read("Jobs.lst"), kNoError);
  EXPECT_EQ(disk.Names(root), QStringList({"Jobs.lst", "Systems"}));
}

TEST_F(FaultDiskTest, InAHiddenFolderNothingIsFoundAndNothingCanBeMade) {
  disk.Hide(root);
  EXPECT_EQ(Read("Jobs.lst"), kPathNotFound);
  EXPECT_EQ(Read("Systems/A.sys"), kPathNotFound);
  EXPECT_FALSE(disk.IsFolder(root));
  EXPECT_FALSE(disk.CanWrite(Path("Jobs.lst")));
  EXPECT_TRUE(disk.Names(root).isEmpty());
  EXPECT_EQ(disk.MakeFolder(root), kPathNotFound);
  EXPECT_EQ(disk.MakeFolder(Path("Systems/More")), kPathNotFound);
  EXPECT_EQ(files.SaveText(Path("Jobs.lst"), "2"), kGone);
  EXPECT_EQ(disk.Rename(Path("Jobs.lst"), Path("Other.lst")), kPathNotFound);
}

TEST_F(FaultDiskTest, WhatWasHiddenComesBackWithWhatItHeld) {
  disk.Hide(root);
  files.SaveText(Path("Systems/B.sys"), "b");
  EXPECT_FALSE(files.TryAgain());
  disk.Unhide(root);
  QString text;
  EXPECT_EQ(files.ReadText(Path("Systems/A.sys"), text), kNoError);
  EXPECT_EQ(text.toStdString(), "a");
  EXPECT_TRUE(files.TryAgain());
  EXPECT_EQ(disk.Names(Path("Systems")), QStringList({"A.sys", "B.sys"}));
}

TEST_F(FaultDiskTest, AnUnreadableFolderKeepsItsNamesToItself) {
  disk.DenyReading(Path("Systems"));
  EXPECT_EQ(Read("Systems/A.sys"), kNoAccess);
  EXPECT_TRUE(disk.Exists(Path("Systems/A.sys")));
  EXPECT_TRUE(disk.Names(Path("Systems")).isEmpty());
  EXPECT_EQ(Read("Jobs.lst"), kNoError);
  // What may have been changed there can't be looked at, so nothing is written over it.
  EXPECT_EQ(files.SaveText(Path("Systems/A.sys"), "new"), kNoAccess);
  disk.AllowReading(Path("Systems"));
  EXPECT_TRUE(files.TryAgain());
  QString text;
  files.ReadText(Path("Systems/A.sys"), text);
  EXPECT_EQ(text.toStdString(), "new");
}

TEST_F(FaultDiskTest, AReaderThatIsOpenGoesOn) {
  std::shared_ptr<FileReader> reader;
  ASSERT_EQ(disk.OpenToRead(Path("Jobs.lst"), reader), kNoError);
  disk.Hide(Path("Jobs.lst"));
  char byte = 0;
  qint64 got = 0;
  EXPECT_EQ(reader->ReadAt(0, &byte, 1, got), kNoError);
  EXPECT_EQ(byte, '1');
}
