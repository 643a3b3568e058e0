#include "pricing/exchange.h"

#include <gtest/gtest.h>

#include <QFile>

#include "pricing/pricingroom.h"

namespace tamo {
namespace {

using test::Drywall;
using test::PricingRoom;
using test::Stud;

SystemFile Wall() {
  SystemFile system;
  system.description = "Wall";
  system.units = "SF";
  system.unitPrice = "0.00";
  system.lineColor = "255000000";
  system.notes = "a note\r\n";
  system.blocks = Stud() + Drywall();
  return system;
}

QString RefusalOf(const QString& text) {
  return CheckedExport(text, "it.sys").refusal;
}

TEST(Export, HasNoNotesAndNoEndMark) {
  EXPECT_EQ(ExportedText(Wall()),
            "Wall\r\nSF\r\n0.00\r\n255000000\r\n\r\n\r\n\r\n"
            "Stud\r\nLF\r\n0.62\r\n.75\r\nopu\r\n42\r\nupm\r\n5\r\n46.50\r\n\r\n\r\n\r\n"
            "Drywall\r\nSHT\r\n13.40\r\n16\r\nupo\r\n38\r\nupm\r\n10\r\n46.50\r\n\r\n\r\n\r\n");
}

TEST(Import, TakesExactlyWhatTheFileHolds) {
  const ImportedSystem imported = CheckedExport(ExportedText(Wall()), "it.sys");
  EXPECT_EQ(imported.refusal, "");
  EXPECT_EQ(imported.system.description, "Wall");
  EXPECT_EQ(imported.system.units, "SF");
  EXPECT_EQ(imported.system.unitPrice, "0.00");
  EXPECT_EQ(imported.system.lineColor, "255000000");
  EXPECT_EQ(imported.system.notes, "");
  EXPECT_EQ(imported.system.blocks, Wall().blocks);
}

TEST(Import, AFileThatIsNoSystemFillsTheFieldsWithItsLines) {
  const ImportedSystem imported = CheckedExport("Dear customer\r\nthank you", "letter.sys");
  EXPECT_EQ(imported.refusal, "");
  EXPECT_EQ(imported.system.description, "Dear customer");
  EXPECT_EQ(imported.system.units, "thank you");
}

TEST(Import, SpareRowsMayBeCutOffAtTheEnd) {
  QString text = ExportedText(Wall());
  text.chop(6);
  const ImportedSystem imported = CheckedExport(text, "it.sys");
  EXPECT_EQ(imported.refusal, "");
  EXPECT_EQ(imported.system.blocks, Wall().blocks);
}

TEST(Import, NamesThatLeaveTheFolderAreRefused) {
  for (const char* name : {"../up", "..", "a/b", "a\\b", "NUL", "con.sys", ""}) {
    SystemFile system = Wall();
    system.description = name;
    EXPECT_NE(RefusalOf(ExportedText(system)), "") << name;
    system = Wall();
    system.blocks[12] = QString(name).isEmpty() ? "   " : name;
    EXPECT_NE(RefusalOf(ExportedText(system)), "") << "material " << name;
  }
}

TEST(Import, HalfABlockIsRefused) {
  const QStringList lines = WholeLines(ExportedText(Wall()));
  for (int cut = 8; cut < 7 + 24; ++cut) {
    const int rest = (cut - 7) % 12;
    const QString refusal = RefusalOf(JoinedLines(lines.mid(0, cut)));
    EXPECT_EQ(refusal.isEmpty(), rest == 0 || rest >= 9) << cut;
  }
}

TEST(Import, BinaryGarbageIsRefused) {
  QByteArray bytes;
  for (int i = 0; i < 2000; ++i) bytes += static_cast<char>((i * 7919) >> 3);
  EXPECT_NE(RefusalOf(DecodedText(bytes)), "");
  EXPECT_NE(RefusalOf(QString(QChar(0)) + "Wall"), "");
}

TEST(Import, AFileOfTheLibraryItselfIsToldFromAnExport) {
  EXPECT_TRUE(RefusalOf(SystemFileText(Wall())).contains("Export System"));
}

TEST(Import, LinesThatAreNoMaterialsAreRefused) {
  QStringList lines = {"A letter", "SF", "0.00", "", "", "", ""};
  for (int i = 0; i < 12; ++i) lines += "line of text";
  EXPECT_TRUE(RefusalOf(JoinedLines(lines)).contains("line of text"));
}

TEST(Import, MoreMaterialsThanAnySystemHasAreRefused) {
  SystemFile system = Wall();
  system.blocks.clear();
  for (int i = 0; i <= kMostImportMaterials; ++i) system.blocks += Stud();
  EXPECT_NE(RefusalOf(ExportedText(system)), "");
}

TEST(Import, AHugeFileIsNotEvenRead) {
  PricingRoom room;
  const QString path = room.folder.path() + "/huge.sys";
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_TRUE(file.resize(qint64{2} * 1024 * 1024 * 1024));  // sparse
  file.close();
  const ImportedSystem imported = ReadExported(room.files, path);
  EXPECT_TRUE(imported.refusal.contains("16 MB")) << imported.refusal.toStdString();
}

TEST(Import, AFileThatIsNotThereIsRefused) {
  PricingRoom room;
  EXPECT_NE(ReadExported(room.files, room.folder.path() + "/none.sys").refusal, "");
}

TEST(Print, ColumnsOfTheHead) {
  SystemFile system = Wall();
  system.unitPrice = "4.15";
  EXPECT_EQ(PrintedSystem(system), (QStringList{"", "System Name                   Wall",
                                                "TakeOff Units                SF",
                                                "Unit Price                    4.15", "", ""}));
}

TEST(Print, MaterialsFollowWhenThePriceIsZero) {
  SystemFile system = Wall();
  system.blocks = Stud() + test::Compound();
  EXPECT_EQ(PrintedSystem(system).mid(6),
            (QStringList{
                "Material                      Stud", "Order Units                   LF",
                "Cost per Order Unit           0.62", "Order Units per Takeoff Unit  .75",
                "TakeOff Units per Manhour     42", "Waste Percentage              5",
                "Wage Rate                     46.50", "", "Material                      Compound",
                "Order Units                   PL", "Cost per Order Unit           17.80",
                "TakeOff units per Order Unit  460", "Manhours per TakeOff Unit    .008",
                "Waste Percentage              5", "Wage Rate                     48.00", ""}));
}

}  // namespace
}  // namespace tamo
