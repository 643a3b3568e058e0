#include "records/systemfile.h"

#include <gtest/gtest.h>

#include "pricing/exchange.h"
#include "pricing/pricingroom.h"
#include "records/materialfile.h"

namespace tamo {
namespace {

using test::Drywall;
using test::Stud;

SystemFile Wall() {
  SystemFile system;
  system.description = "Wall";
  system.units = "SF";
  system.unitPrice = "0.00";
  system.lineColor = "255000000";
  system.notes = "both sides\r\nto deck\r\n";
  system.blocks = Stud() + Drywall();
  return system;
}

TEST(SystemFileTest, IsWrittenByteForByte) {
  EXPECT_EQ(SystemFileText(Wall()),
            "Wall\r\nSF\r\n0.00\r\n255000000\r\nboth sides\r\nto deck\r\n\r\n\x01\r\n\r\n\r\n"
            "Stud\r\nLF\r\n0.62\r\n.75\r\nopu\r\n42\r\nupm\r\n5\r\n46.50\r\n\r\n\r\n\r\n"
            "Drywall\r\nSHT\r\n13.40\r\n16\r\nupo\r\n38\r\nupm\r\n10\r\n46.50\r\n\r\n\r\n\r\n");
}

TEST(SystemFileTest, AFixedPriceWithoutNotes) {
  SystemFile system;
  system.description = "Caulk";
  system.units = "LF";
  system.unitPrice = "4.15";
  EXPECT_EQ(SystemFileText(system), "Caulk\r\nLF\r\n4.15\r\n\r\n\r\n\x01\r\n\r\n\r\n");
}

TEST(SystemFileTest, ComesBackAsItWasSaved) {
  const SystemFile read = ReadSystemFile(SystemFileText(Wall()));
  EXPECT_EQ(read.description, "Wall");
  EXPECT_EQ(read.units, "SF");
  EXPECT_EQ(read.unitPrice, "0.00");
  EXPECT_EQ(read.lineColor, "255000000");
  EXPECT_EQ(read.blocks, Wall().blocks);
}

TEST(SystemFileTest, ANoteGrowsByOneLineEndWithEachSaveAndLoad) {
  SystemFile system;
  system.notes = "a";
  system = ReadSystemFile(SystemFileText(system));
  EXPECT_EQ(system.notes, "a\r\n");
  system = ReadSystemFile(SystemFileText(system));
  EXPECT_EQ(system.notes, "a\r\n\r\n");
  system = ReadSystemFile(SystemFileText(system));
  EXPECT_EQ(system.notes, "a\r\n\r\n\r\n");
}

TEST(SystemFileTest, WithoutAnEndMarkEverythingIsNotes) {
  const SystemFile read = ReadSystemFile(ExportedText(Wall()));
  EXPECT_TRUE(read.blocks.isEmpty());
  EXPECT_TRUE(read.notes.startsWith("\r\n\r\n\r\nStud\r\nLF\r\n")) << read.notes.toStdString();
}

TEST(SystemFileTest, ABlockWithoutAMaterialIsNotWritten) {
  SystemFile system = Wall();
  system.blocks = Stud() + QStringList(12, QString()) + Drywall();
  EXPECT_EQ(ReadSystemFile(SystemFileText(system)).blocks, Stud() + Drywall());
}

TEST(SystemFileTest, SpareRowsAreAlwaysWrittenEmpty) {
  SystemFile system = Wall();
  system.blocks = Stud();
  system.blocks[9] = "left over";
  EXPECT_EQ(ReadSystemFile(SystemFileText(system)).blocks, Stud());
}

TEST(SystemFileTest, CutAtAnyByteItGivesWhatIsLeft) {
  const QByteArray whole = SystemFileText(Wall()).toUtf8();
  const SystemFile full = ReadSystemFile(QString::fromUtf8(whole));
  for (qsizetype size = 0; size <= whole.size(); ++size) {
    const SystemFile read = ReadSystemFile(DecodedText(whole.left(size)));
    EXPECT_TRUE(full.description.startsWith(read.description)) << size;
    EXPECT_LE(read.blocks.size(), full.blocks.size());
    // What was read can be written and is then read the same.
    const SystemFile again = ReadSystemFile(SystemFileText(read));
    EXPECT_EQ(again.blocks, StoredBlocks(read.blocks)) << size;
  }
}

TEST(SystemFileTest, ANoteCanHoldNoEndMark) {
  SystemFile system = Wall();
  system.notes = "before\r\n\x01\r\nafter";
  const SystemFile read = ReadSystemFile(SystemFileText(system));
  EXPECT_EQ(read.notes, "before\r\n\x01 \r\nafter\r\n");
  EXPECT_EQ(read.blocks, system.blocks);
}

TEST(SystemFileTest, OlderFilesWithOtherLineEndsAndBytesOpen) {
  EXPECT_EQ(ReadSystemFile("Wall\nSF\n1.00\n\nnote\n\x01\n\n\nStud\n").blocks, QStringList{"Stud"});
  EXPECT_EQ(ReadSystemFile(DecodedText("T\xFCr\r\nEA\r\n")).description, QString("T\u00FCr"));
}

TEST(MaterialFileTest, IsTheFirstNineRowsOfABlock) {
  const MaterialBlock block = MaterialBlock::At(Stud(), 0);
  const QString text = MaterialFileText(block);
  EXPECT_EQ(text, "Stud\r\nLF\r\n0.62\r\n.75\r\nopu\r\n42\r\nupm\r\n5\r\n46.50\r\n");
  const MaterialFile read = ReadMaterialFile(text);
  EXPECT_EQ(read.reached, 9);
  EXPECT_EQ(read.block.Rows(), Stud());
}

TEST(MaterialFileTest, ALostTagLineOfAnOlderFileShiftsWhatFollows) {
  QStringList lines = Stud().mid(0, 9);
  lines.removeAt(4);
  const MaterialFile read = ReadMaterialFile(JoinedLines(lines));
  EXPECT_EQ(read.reached, 8);
  EXPECT_EQ(read.block.upoTag, "42");
  EXPECT_EQ(read.block.mnhrPO, "upm");
  EXPECT_EQ(read.block.mnhrTag, "5");
  EXPECT_EQ(read.block.waste, "46.50");
  EXPECT_EQ(read.block.wageRate, "");
}

TEST(MaterialFileTest, ADoubledTagLineOfAnOlderFileShiftsWhatFollows) {
  QStringList lines = Stud().mid(0, 9);
  lines.insert(4, "upo");
  const MaterialFile read = ReadMaterialFile(JoinedLines(lines));
  EXPECT_EQ(read.reached, 9);
  EXPECT_EQ(read.block.upoTag, "upo");
  EXPECT_EQ(read.block.mnhrPO, "opu");
  EXPECT_EQ(read.block.mnhrTag, "42");
  EXPECT_EQ(read.block.wageRate, "5");
}

}  // namespace
}  // namespace tamo
