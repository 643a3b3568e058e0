#include "records/sheetscalefile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace tamo;

namespace {

struct SheetScaleFile : ::testing::Test {
  QTemporaryDir folder;
  Disk& disk = RealDiskOf();
  Files files{disk};
  static Disk& RealDiskOf() {
    static RealDisk disk;
    return disk;
  }
  QString Path() const { return folder.filePath("SheetScales.tamo"); }
  void Store(const QByteArray& bytes) const {
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  std::vector<KeptSheetScale> Read() { return ReadSheetScales(files, folder.path(), "/"); }
};

}  // namespace

TEST_F(SheetScaleFile, ComesBackAsItWasKept) {
  EXPECT_TRUE(Read().empty());
  WriteSheetScales(files, folder.path(), "/",
                   {{"12-1", "Set.pdf", 3, "1/8", "1", "\" =             '", true},
                    {"12-1", "Set.pdf", 4, "1/4", "1", "\"", false}});
  const auto scales = Read();
  ASSERT_EQ(scales.size(), 2U);
  EXPECT_EQ(scales[0].text5, "\" =             '");
  EXPECT_TRUE(scales[0].checked);
  EXPECT_EQ(scales[1].page, 4);
}

TEST_F(SheetScaleFile, DamageIsPassedOver) {
  Store(QByteArray("junk\r\n\r\n") +
        "12-1\tSet.pdf\tx\t1/8\t1\t\"\t0\r\n"  // no page
        "12-1\tSet.pdf\t0\t1/8\t1\t\"\t0\r\n"  // no page either
        "12-1\t\t2\t1/8\t1\t\"\t0\r\n"         // no plan
        "12-1\tSet.pdf\t2\t1/8\t1\t\"\r\n"     // too short
        "12-1\tSet.pdf\t2\t" +
        QByteArray(99, '1') +
        "\t1\t\"\t0\r\n"
        "12-1\tSet.pdf\t2\t1/8\t1\t\"\t1\r\n"
        "12-1\tSet.pdf\t2\t1/4\t1\t\"\t1\r\n");  // the same sheet again: the newer stands above
  const auto scales = Read();
  ASSERT_EQ(scales.size(), 1U);
  EXPECT_EQ(scales[0].scale1, "1/8");
}

TEST_F(SheetScaleFile, WhatIsNoTextGivesNothing) {
  Store(QByteArray("\xff\xfe\0\1\2", 5));
  EXPECT_TRUE(Read().empty());
}

TEST_F(SheetScaleFile, TheOldestGo) {
  std::vector<KeptSheetScale> many;
  for (int page = 1; page <= 700; ++page) many.push_back({"1", "P", page, "1", "1", "\"", false});
  WriteSheetScales(files, folder.path(), "/", many);
  EXPECT_EQ(Read().size(), kMostSheetScales);
  EXPECT_EQ(Read().back().page, int(kMostSheetScales));
}
