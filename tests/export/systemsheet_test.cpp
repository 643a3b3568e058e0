#include <gtest/gtest.h>

#include <QDir>

#include "export/csvfile.h"
#include "export/systemsheet.h"
#include "export/xlsxfile.h"
#include "support/room.h"
#include "support/sourcefile.h"

namespace tamo::test {
namespace {

const char kHead[] =
    "System,Unit,Unit price,Color,Material,Order unit,Price,Ratio,Ratio reads,Labor ratio,"
    "Labor reads,Waste %,Wage\r\n";

class SystemSheetTest : public FormRoom, public ::testing::Test {
 protected:
  SystemSheet Read(const QByteArray& lines) {
    return ReadSystemSheet(ReadCsvRows(kHead + lines), files, shared);
  }
  static QString First(const SystemSheet& sheet) { return sheet.problems.value(0); }
  // The sample's library.
  void CopyLibrary() {
    const QString sample = test::SourceFile(QStringLiteral("data/Sample/Tamo/"));
    for (const QString& name : QDir(sample + QStringLiteral("Systems")).entryList(QDir::Files)) {
      QFile file(sample + QStringLiteral("Systems/") + name);
      ASSERT_TRUE(file.open(QIODevice::ReadOnly));
      Put(Data(QStringLiteral("Systems/") + name), file.readAll());
    }
    QFile list(sample + QStringLiteral("Descriptions.tamo"));
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    Put(Data(QStringLiteral("Descriptions.tamo")), list.readAll());
  }
};

TEST_F(SystemSheetTest, TheLibraryComesBackUnchangedFromBothFormats) {
  CopyLibrary();
  BytesInMemory csv;
  CsvFile table(csv, true);
  EXPECT_TRUE(WriteSystemSheet(files, shared, table).isEmpty());
  table.Finish();
  BytesInMemory book;
  XlsxFile workbook(book, QStringLiteral("Systems"));
  WriteSystemSheet(files, shared, workbook);
  workbook.Finish();
  for (const QByteArray& bytes : {csv.all, book.all}) {
    const SystemSheet sheet = ReadSystemSheet(ReadSheetRows(bytes), files, shared);
    EXPECT_TRUE(sheet.problems.isEmpty()) << First(sheet).toStdString();
    EXPECT_TRUE(sheet.changes.isEmpty()) << sheet.changes.join(u'\n').toStdString();
    EXPECT_EQ(sheet.same, 26);
  }
}

TEST_F(SystemSheetTest, ANewSystemIsStoredAndListed) {
  Put(Data(QStringLiteral("Systems/.keep")), {});
  const SystemSheet sheet = Read(
      "Chair Rail,LF,,255000000,Rail,EA,12.5,16,units per order unit,15,units per manhour,5,40\r\n"
      "Chair Rail,,,,Nails,LB,3,0.01,opu,0,mpu,,40\r\n"
      "Mirror,EA,255,,,,,,,,,,\r\n");
  ASSERT_TRUE(sheet.problems.isEmpty()) << First(sheet).toStdString();
  EXPECT_EQ(sheet.changes, QStringList({QStringLiteral("New: Chair Rail (2 materials)"),
                                        QStringLiteral("New: Mirror (0 materials)")}));
  StoreSystemSheet(sheet, files, shared);
  EXPECT_EQ(Bytes(Data(QStringLiteral("Systems/Chair Rail.sys"))),
            "Chair Rail\r\nLF\r\n0.00\r\n255000000\r\n\r\n\x01\r\n\r\n\r\n"
            "Rail\r\nEA\r\n12.50\r\n16\r\nupo\r\n15\r\nupm\r\n5\r\n40.00\r\n\r\n\r\n\r\n"
            "Nails\r\nLB\r\n3.00\r\n.01\r\nopu\r\n0\r\nmpu\r\n0\r\n40.00\r\n\r\n\r\n\r\n");
  EXPECT_EQ(Bytes(Data(QStringLiteral("Descriptions.tamo"))), "Chair Rail\r\nMirror\r\n");
}

TEST_F(SystemSheetTest, WhatASystemChangesIsSaidAndItsNotesStay) {
  Put(Data(QStringLiteral("Systems/Mirror.sys")),
      "Mirror\r\nEA\r\n255.00\r\n\r\nhang level\r\n\x01\r\n\r\n\r\n");
  const SystemSheet sheet = Read("mirror,EA,260,,,,,,,,,,\r\n");
  EXPECT_EQ(sheet.changes,
            QStringList(QStringLiteral("Changed: Mirror: unit price 260.00 instead of 255.00")));
  EXPECT_TRUE(sheet.newNames.isEmpty());
  StoreSystemSheet(sheet, files, shared);
  EXPECT_EQ(Bytes(Data(QStringLiteral("Systems/Mirror.sys"))),
            "Mirror\r\nEA\r\n260.00\r\n\r\nhang level\r\n\x01\r\n\r\n\r\n");
}

TEST_F(SystemSheetTest, EachWrongLineIsNamedWithItsReason) {
  const char kRest[] = ",EA,1,1,upo,1,upm,0,40\r\n";
  const std::pair<QByteArray, const char*> lines[] = {
      {QByteArray("A/B,SF,1,,,,,,,,,,\r\n"), "A/B"},
      {QByteArray("A name of more than twenty,SF,1,,,,,,,,,,\r\n"), "at most 20 characters"},
      {QByteArray("\"A, B\",SF,1,,,,,,,,,,\r\n"), "without comma"},
      {QByteArray(",SF,1,,Board") + kRest, "name"},
      {QByteArray("Wall,,1,,,,,,,,,,\r\n"), "Unit is missing"},
      {QByteArray("Wall,SQUARE,1,,,,,,,,,,\r\n"), "at most 5 characters"},
      {QByteArray("Wall,SF,\"1,5\",,,,,,,,,,\r\n"), "\"1,5\" is no number"},
      {QByteArray("Wall,SF,1e3,,,,,,,,,,\r\n"), "\"1e3\" is no number"},
      {QByteArray("Wall,SF,-1,,,,,,,,,,\r\n"), "is below 0"},
      {QByteArray("Wall,SF,1,red,,,,,,,,,\r\n"), "not nine digits"},
      {QByteArray("Wall,SF,,,Board,,1,1,upo,1,upm,0,40\r\n"), "Order unit is missing"},
      {QByteArray("Wall,SF,,,Board,EA,,1,upo,1,upm,0,40\r\n"), "Price is missing"},
      {QByteArray("Wall,SF,,,Board,EA,1,0,upo,1,upm,0,40\r\n"), "nothing can be divided by it"},
      {QByteArray("Wall,SF,,,Board,EA,1,1,per,1,upm,0,40\r\n"), "neither"},
      {QByteArray("Wall,SF,,,Board,EA,1,1,upo,1,,0,40\r\n"), "neither"},
      {QByteArray("Wall,SF,,,Board,EA,1,1,upo,1,upm,x,40\r\n"), "no number"},
      {QByteArray("Wall,SF,,,Board,EA,1,1,upo,1,upm,0,\r\n"), "Wage is missing"},
      {QByteArray("Wall,SF,,,\"two\r\nlines\",EA,1,1,upo,1,upm,0,1\r\n"), "control character"},
  };
  for (const auto& [line, words] : lines) {
    const SystemSheet sheet = Read("Good,SF,1,,,,,,,,,,\r\n" + line);
    ASSERT_FALSE(sheet.problems.isEmpty()) << line.toStdString();
    EXPECT_TRUE(First(sheet).startsWith(QLatin1String("Line 3: "))) << First(sheet).toStdString();
    EXPECT_TRUE(First(sheet).contains(QLatin1String(words))) << First(sheet).toStdString();
    EXPECT_TRUE(sheet.systems.empty());
  }
}

TEST_F(SystemSheetTest, RowsOfOneSystemAgree) {
  EXPECT_EQ(First(Read("Wall,SF,1,,,,,,,,,,\r\nwall,LF,,,,,,,,,,,\r\n")),
            QStringLiteral("Line 3: Unit is LF here and SF above, for the same system \"wall\"."));
}

TEST_F(SystemSheetTest, ASheetWithoutHeadsOrSystemsIsRefused) {
  EXPECT_EQ(ReadSystemSheet(ReadCsvRows("Wall,SF\r\n"), files, shared).problems.size(), 1);
  EXPECT_EQ(Read({}).problems.size(), 1);
  EXPECT_TRUE(First(Read("\"open")).contains(QLatin1String("quotation mark")));
}

TEST_F(SystemSheetTest, ALibraryThatCannotBeReadTakesNothing) {
  Put(Data(QStringLiteral("Systems/Wall.sys")), "Wall\r\nSF\r\n1.00\r\n");
  disk.DenyReading(Data(QStringLiteral("Systems/Wall.sys")));
  EXPECT_TRUE(First(Read("Wall,SF,2,,,,,,,,,,\r\n")).contains(QLatin1String("can't be read")));
}

}  // namespace
}  // namespace tamo::test
