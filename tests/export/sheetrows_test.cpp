#include <gtest/gtest.h>

#include "export/csvfile.h"
#include "export/sheetrows.h"
#include "export/xlsxfile.h"
#include "tables.h"

namespace tamo::test {
namespace {

QByteArray BookOf(const std::vector<QStringList>& rows) {
  BytesInMemory bytes;
  XlsxFile book(bytes, QStringLiteral("Sheet"));
  std::vector<TableColumn> columns;
  for (const QString& name : rows.front()) columns.push_back({name});
  book.Begin(columns);
  for (size_t i = 1; i < rows.size(); ++i) {
    std::vector<TableCell> cells;
    for (const QString& text : rows[i]) cells.emplace_back(text);
    book.Row(cells, RowWeight::Plain);
  }
  EXPECT_EQ(book.Finish(), 0);
  return bytes.all;
}

TEST(SheetRows, CsvKeepsTheNumbersOfItsLines) {
  const SheetRows read = ReadCsvRows(
      "\xEF\xBB\xBF"
      "System,Unit\r\n\r\n\"two\r\nlines\",SF\r\n,,\r\n\"a \"\"b\"\"\",EA");
  ASSERT_EQ(read.problem, QString());
  ASSERT_EQ(read.rows.size(), 3U);
  EXPECT_EQ(read.rows[0].cells, QStringList({QStringLiteral("System"), QStringLiteral("Unit")}));
  EXPECT_EQ(read.rows[1].line, 3);
  EXPECT_EQ(read.rows[1].cells[0], QStringLiteral("two\r\nlines"));
  EXPECT_EQ(read.rows[2].line, 6);
  EXPECT_EQ(read.rows[2].cells[0], QStringLiteral("a \"b\""));
}

TEST(SheetRows, CsvTakesSemicolonsAndOtherLineEnds) {
  const SheetRows read = ReadCsvRows("System;Unit\nWall;SF\rDoor;EA\n");
  ASSERT_EQ(read.rows.size(), 3U);
  EXPECT_EQ(read.rows[2].cells, QStringList({QStringLiteral("Door"), QStringLiteral("EA")}));
  EXPECT_EQ(read.rows[2].line, 3);
}

TEST(SheetRows, CsvSaysWhatIsWrongWithIt) {
  EXPECT_EQ(ReadCsvRows("a,b\n\"open,1\n").problem,
            QStringLiteral("line 2: a quotation mark is opened and never closed"));
  EXPECT_EQ(ReadCsvRows("a,b\n\"x\"y,1\n").problem,
            QStringLiteral("line 2: something stands behind a closing quotation mark"));
  EXPECT_FALSE(ReadCsvRows(QByteArray("\x89PNG\0\0", 6)).problem.isEmpty());
  EXPECT_FALSE(ReadCsvRows(QByteArray(2000, ',')).problem.isEmpty());
  EXPECT_TRUE(ReadCsvRows({}).rows.empty());
}

TEST(SheetRows, CsvTakesAsManyRowsAsItSays) {
  const QByteArray most = QByteArray("a\n").repeated(static_cast<qsizetype>(kMostSheetRows));
  EXPECT_EQ(ReadCsvRows(most).problem, QString());
  EXPECT_EQ(ReadCsvRows(most).rows.size(), kMostSheetRows);
  EXPECT_FALSE(ReadCsvRows(most + "a\n").problem.isEmpty());
}

TEST(SheetRows, CsvOfTooManyCellsIsRefused) {
  const QByteArray row = QByteArray(900, ',') + "a\n";
  EXPECT_FALSE(ReadCsvRows(row.repeated(5000)).problem.isEmpty());
}

TEST(SheetRows, ABookComesBackAsItWasWritten) {
  std::vector<QStringList> rows = {{QStringLiteral("Name"), QStringLiteral("Other")}};
  for (const QString& name : kStrangeNames) rows.push_back({name, QStringLiteral("x")});
  const SheetRows read = ReadSheetRows(BookOf(rows));
  ASSERT_EQ(read.problem, QString());
  ASSERT_EQ(read.rows.size(), rows.size());
  for (size_t i = 1; i < rows.size(); ++i) {
    QString expected = rows[i][0];
    expected.replace(QStringLiteral("\r\n"), QStringLiteral("\r\n"));
    EXPECT_EQ(read.rows[i].cells.value(0), expected) << i;
    EXPECT_EQ(read.rows[i].line, static_cast<int>(i) + 1);
  }
}

// However a book is cut off or damaged, it is refused or read; never a crash.
TEST(SheetRows, DamagedBooksAreRefused) {
  const QByteArray book = BookOf({{QStringLiteral("Name")}, {QStringLiteral("Wall")}});
  for (qsizetype size = 4; size < book.size(); size += 7) {
    const SheetRows read = ReadSheetRows(book.left(size));
    EXPECT_FALSE(read.problem.isEmpty()) << size;
  }
  for (qsizetype at = 4; at < book.size(); at += 3) {
    QByteArray other = book;
    other[at] = static_cast<char>(other[at] ^ 0x55);
    const SheetRows read = ReadSheetRows(other);
    EXPECT_LE(read.rows.size(), 2U);
  }
}

}  // namespace
}  // namespace tamo::test
