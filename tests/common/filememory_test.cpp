#include "common/filememory.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace tamo {
namespace {

FileStamp StampOf(quint64 number) {
  return {1, number, 10, 0, 0, FileMemory::kSettled};
}

TEST(FileMemory, GivesATextOnlyForTheStampItWasReadWith) {
  FileMemory memory;
  QString text;
  const QString path = QStringLiteral("/a");
  memory.Keep(path, StampOf(1), QStringLiteral("one"));
  EXPECT_TRUE(memory.Find(path, StampOf(1), text));
  EXPECT_EQ(text, QStringLiteral("one"));
  for (int part = 0; part < 5; ++part) {
    FileStamp other = StampOf(1);
    if (part == 0) other.device = 2;
    if (part == 1) other.number = 2;
    if (part == 2) other.size = 11;
    if (part == 3) other.modified = 1;
    if (part == 4) other.changed = 1;
    EXPECT_FALSE(memory.Find(path, other, text)) << part;
  }
  EXPECT_FALSE(memory.Find(path, FileStamp(), text));
  memory.Forget(path);
  EXPECT_FALSE(memory.Find(path, StampOf(1), text));
}

TEST(FileMemory, DropsTheOldestWhenItIsFullAndKeepsNoLongText) {
  FileMemory memory;
  QString text;
  const QString large(FileMemory::kLargestText, u'x');
  const int all = static_cast<int>(2 * FileMemory::kMost / large.size());
  for (int i = 0; i < all; ++i) {
    memory.Keep(QString::number(i), StampOf(1), large);
    EXPECT_TRUE(memory.Find(QStringLiteral("0"), StampOf(1), text)) << "in use, at " << i;
  }
  EXPECT_FALSE(memory.Find(QStringLiteral("1"), StampOf(1), text));
  memory.Keep(QStringLiteral("long"), StampOf(1), large + u'x');
  EXPECT_FALSE(memory.Find(QStringLiteral("long"), StampOf(1), text));
}

TEST(FileMemory, TheStampOfARealFileTellsEveryChange) {
  const QTemporaryDir folder;
  RealDisk disk;
  const QString path = folder.filePath(QStringLiteral("a"));
  EXPECT_FALSE(disk.Stamp(path).Known());
  EXPECT_FALSE(disk.Stamp(folder.path()).Known());
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("1");
  file.close();
  const FileStamp first = disk.Stamp(path);
  ASSERT_TRUE(first.Known());
  EXPECT_EQ(first, disk.Stamp(path));
  EXPECT_GE(first.seen, first.modified);
  ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
  QFile copy(folder.filePath(QStringLiteral("b")));
  ASSERT_TRUE(copy.open(QIODevice::WriteOnly));
  copy.write("2");
  copy.close();
  EXPECT_NE(first, disk.Stamp(copy.fileName()));
  ASSERT_EQ(disk.Rename(copy.fileName(), path), 0);
  EXPECT_NE(first, disk.Stamp(path));
}

}  // namespace
}  // namespace tamo
