#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "common/disk.h"
#include "common/failure.h"

using namespace tamo;

TEST(FileReader, ReadsPartsAndGoesOnReadingTheFileItOpened) {
  QTemporaryDir folder;
  RealDisk disk;
  const QString path = folder.filePath("plan.pdf");
  int handle = -1;
  ASSERT_EQ(disk.OpenNew(path, handle), kNoError);
  disk.Write(handle, "0123456789");
  disk.Close(handle);

  std::shared_ptr<FileReader> reader;
  ASSERT_EQ(disk.OpenToRead(path, reader), kNoError);
  EXPECT_EQ(reader->Size(), 10);
  char bytes[8] = {};
  qint64 got = 0;
  EXPECT_EQ(reader->ReadAt(3, bytes, 4, got), kNoError);
  EXPECT_EQ(QByteArray(bytes, got), "3456");
  EXPECT_EQ(reader->ReadAt(8, bytes, 8, got), kNoError);
  EXPECT_EQ(QByteArray(bytes, got), "89");

  disk.RemoveFile(path);
  EXPECT_EQ(reader->ReadAt(0, bytes, 2, got), kNoError);
  EXPECT_EQ(QByteArray(bytes, got), "01");
}

TEST(FileReader, AMissingFileAndAFolderAreErrors) {
  QTemporaryDir folder;
  RealDisk disk;
  std::shared_ptr<FileReader> reader;
  EXPECT_EQ(disk.OpenToRead(folder.filePath("none.pdf"), reader), kFileNotFound);
  EXPECT_EQ(disk.OpenToRead(folder.filePath("no/none.pdf"), reader), kPathNotFound);
  EXPECT_EQ(disk.OpenToRead(folder.path(), reader), kNoAccess);
  EXPECT_EQ(reader, nullptr);
}
