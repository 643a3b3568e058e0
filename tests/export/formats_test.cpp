#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "common/failure.h"
#include "export/csvfile.h"
#include "export/jsonfile.h"
#include "export/safefile.h"
#include "export/xlsxfile.h"
#include "support/room.h"
#include "tables.h"

namespace tamo::test {
namespace {

const std::vector<TableColumn> kColumns = {{QStringLiteral("Name"), ColumnKind::Text},
                                           {QStringLiteral("Quantity"), ColumnKind::Number},
                                           {QStringLiteral("Amount"), ColumnKind::Money}};

TEST(PlainNumber, IsReadByEveryProgram) {
  EXPECT_EQ(PlainNumber(.5), "0.5");
  EXPECT_EQ(PlainNumber(-.05), "-0.05");
  EXPECT_EQ(PlainNumber(0), "0");
  EXPECT_EQ(PlainNumber(1234567.25), "1234567.25");
  EXPECT_EQ(PlainNumber(1e15), "1000000000000000");
}

TEST(Csv, RowsEndInCrLfAndHaveAllTheirCells) {
  BytesInMemory bytes;
  CsvFile csv(bytes, false);
  csv.Begin(kColumns);
  csv.Add({QString(QStringLiteral("Wall, painted")), 12.5, 100});
  csv.Add({u"Door"});
  csv.Remark(QStringLiteral("Not counted: the room \"101\"."));
  EXPECT_EQ(csv.Finish(), 0);
  EXPECT_EQ(bytes.all,
            "Name,Quantity,Amount\r\n\"Wall, painted\",12.5,100\r\nDoor,,\r\n"
            "\"Not counted: the room \"\"101\"\".\",,\r\n");
}

TEST(Csv, NoTextIsAFormulaAndEachComesBack) {
  for (const QString& name : kStrangeNames) {
    const QString cell = GuardedCell(name);
    EXPECT_FALSE(QStringLiteral("=+-@\t\r").contains(cell.front())) << cell.toStdString();
    EXPECT_EQ(UnguardedCell(cell), name);
  }
  EXPECT_EQ(GuardedCell(u"'quoted'"), QStringLiteral("'quoted'"));
}

TEST(Csv, StrangeNamesAndManyColumnsAreRereadAsTheyWere) {
  std::vector<TableColumn> columns;
  for (int i = 0; i < 200; ++i) columns.push_back({QStringLiteral("C%1").arg(i)});
  BytesInMemory bytes;
  CsvFile csv(bytes, true);
  csv.Begin(columns);
  for (const QString& name : kStrangeNames) {
    const std::vector<TableCell> cells(200, TableCell(name));
    csv.Row(cells, RowWeight::Plain);
  }
  csv.Finish();
  ASSERT_TRUE(bytes.all.startsWith("\xEF\xBB\xBF"));
  const std::vector<QStringList> records = ReadCsv(bytes.all.mid(3));
  ASSERT_EQ(records.size(), static_cast<size_t>(kStrangeNames.size()) + 1);
  for (size_t i = 1; i < records.size(); ++i) {
    ASSERT_EQ(records[i].size(), 200);
    EXPECT_EQ(UnguardedCell(records[i][199]), kStrangeNames[static_cast<qsizetype>(i) - 1]);
  }
}

TEST(Json, IsReadBackWithItsTypes) {
  BytesInMemory bytes;
  JsonFile json(bytes, {{QStringLiteral("title"), QStringLiteral("Recap \"Sheet\"")}});
  json.Begin(kColumns);
  for (const QString& name : kStrangeNames) json.Add({name, .5});
  json.Remark(QStringLiteral("a remark"));
  EXPECT_EQ(json.Finish(), 0);
  QJsonParseError problem{};
  const QJsonObject all = QJsonDocument::fromJson(bytes.all, &problem).object();
  ASSERT_EQ(problem.error, QJsonParseError::NoError) << bytes.all.toStdString();
  EXPECT_EQ(all[QStringLiteral("title")].toString(), QStringLiteral("Recap \"Sheet\""));
  EXPECT_EQ(all[QStringLiteral("columns")].toArray()[2][QStringLiteral("type")].toString(),
            QStringLiteral("money"));
  const QJsonArray rows = all[QStringLiteral("rows")].toArray();
  ASSERT_EQ(rows.size(), kStrangeNames.size());
  for (qsizetype i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i][QStringLiteral("Name")].toString(), kStrangeNames[i]);
    EXPECT_EQ(rows[i][QStringLiteral("Quantity")].toDouble(), .5);
  }
  EXPECT_EQ(all[QStringLiteral("remarks")].toArray().size(), 1);
}

TEST(Json, WithoutRowsIsWhole) {
  BytesInMemory bytes;
  JsonFile json(bytes, {});
  json.Begin(kColumns);
  json.Finish();
  QJsonParseError problem{};
  QJsonDocument::fromJson(bytes.all, &problem);
  EXPECT_EQ(problem.error, QJsonParseError::NoError);
}

class SafeFile : public MachineRoom, public ::testing::Test {};

// Each step of the making fails once: what was there before stays, and nothing else is left.
TEST_F(SafeFile, StaysAsItWasWhateverFails) {
  const QString path = Path("out/report.csv");
  Put(path, "before");
  for (int step = 1; step < 20; ++step) {
    disk.ResetSteps();
    disk.FailStep(step, kDiskFull);
    const int error = MakeFileSafely(disk, path, [](ByteSink& sink) {
      sink.Write("one ");
      return sink.Write("two");
    });
    disk.FailStep(0, 0);
    const QByteArray held = Bytes(path);
    EXPECT_TRUE(held == "before" || held == "one two");
    EXPECT_TRUE(error == 0 || held == "before") << step;
    EXPECT_EQ(disk.Names(Path("out")).size(), 1) << step;
    if (error == 0 && disk.StepsTaken() < step) return;
    Put(path, "before");
  }
  ADD_FAILURE() << "the making has no end";
}

TEST_F(SafeFile, SaysWhyItCannotBeMade) {
  EXPECT_EQ(WriteReason(MakeFileSafely(disk, Path("nowhere/report.csv"),
                                       [](ByteSink& sink) { return sink.Write("x"); })),
            QStringLiteral("there is no such folder"));
  Put(Path("denied.csv"), "before");
  disk.Deny(Path("denied.csv"));
  EXPECT_EQ(
      MakeFileSafely(disk, Path("denied.csv"), [](ByteSink& sink) { return sink.Write("x"); }),
      kNoAccess);
  EXPECT_EQ(Bytes(Path("denied.csv")), "before");
}

TEST_F(SafeFile, AWorkbookLongerThanASheetGoesOnOnTheNext) {
  const QString path = Path("long.xlsx");
  const int error = MakeFileSafely(disk, path, [](ByteSink& sink) {
    XlsxFile book(sink, QStringLiteral("Quantities"));
    book.rowsOfSheet = 3;
    book.Begin(kColumns);
    for (const double i : {0., 1., 2., 3., 4.}) book.Add({u"Wall", i, i});
    book.Remark(QStringLiteral("the end"));
    return book.Finish();
  });
  EXPECT_EQ(error, 0);
  EXPECT_TRUE(Bytes(path).startsWith("PK"));
  EXPECT_TRUE(Bytes(path).contains("xl/worksheets/sheet3.xml"));
}

}  // namespace
}  // namespace tamo::test
