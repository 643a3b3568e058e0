#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include "windows/application.h"
#include "windows/pagecomposer.h"
#include "windows/qtservices.h"
#include "windows/reportprinter.h"

namespace tamo {
namespace {

constexpr double kLetterWidth = 612 - 36;
constexpr double kLetterHeight = 792 - 36;

// A page as the report prints it: a head, two empty lines, and `lines` lines behind 20 blanks.
void AddPage(PageComposer& pages, int lines, int columns) {
  pages.SetFont(QStringLiteral("MS Gothic"), 10);
  pages.Add(QStringLiteral("00-2112002") + QString(70, QLatin1Char(' ')) +
            QStringLiteral("Riverside Clinic     Page 1"));
  pages.SetFont(QStringLiteral("MS Gothic"), 12);
  pages.Add({});
  pages.Add({});
  for (int i = 0; i < lines; ++i)
    pages.Add(QString(20, QLatin1Char(' ')) + QString(columns, QLatin1Char('x')));
  pages.EndPage();
}

struct PrintingTest : test::WithApplication, testing::Test {};

TEST_F(PrintingTest, EachEndedPageIsASheet) {
  PageComposer pages;
  AddPage(pages, 51, 60);
  AddPage(pages, 55, 60);
  EXPECT_EQ(pages.Sheets(kLetterWidth, kLetterHeight).size(), 2U);
}

TEST_F(PrintingTest, AFullPageWithTheLinesLookedAheadStaysOnOneSheet) {
  PageComposer pages;
  AddPage(pages, 61, 70);
  EXPECT_EQ(pages.Sheets(kLetterWidth, kLetterHeight).size(), 1U);
  EXPECT_EQ(pages.Sheets(595 - 36, 842 - 36).size(), 1U) << "A4";
}

TEST_F(PrintingTest, APageWithoutAnEndRunsOnOverSheets) {
  PageComposer pages;
  AddPage(pages, 300, 40);
  const auto sheets = pages.Sheets(kLetterWidth, kLetterHeight);
  EXPECT_GT(sheets.size(), 3U);
  size_t lines = 0;
  for (const auto& sheet : sheets) lines += sheet.lines.size();
  EXPECT_EQ(lines, 303U);
  for (const auto& sheet : sheets) EXPECT_EQ(sheet.scale, sheets.front().scale);
}

TEST_F(PrintingTest, AFileIsOneDocumentOfAllPages) {
  QTemporaryDir folder;
  PageComposer pages;
  AddPage(pages, 51, 76);
  AddPage(pages, 20, 76);
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  const QString path = folder.path() + QStringLiteral("/report.pdf");
  printer.setOutputFileName(path);
  PaintDocument(pages, printer);
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray bytes = file.readAll();
  EXPECT_TRUE(bytes.startsWith("%PDF"));
  EXPECT_TRUE(bytes.contains("/Count 2"));
  if (qEnvironmentVariableIsSet("TAMO_KEEP_PDF"))
    QFile::copy(path, qEnvironmentVariable("TAMO_KEEP_PDF"));
}

TEST_F(PrintingTest, AnEmptyPrintHasNoPages) {
  PageComposer pages;
  pages.EndPage();
  EXPECT_TRUE(pages.Empty());
}

TEST(ProgramFolder, IsTheExecutablesOwnOrTheOneThatBelongsToIt) {
  QTemporaryDir root;
  QDir(root.path()).mkpath(QStringLiteral("bin"));
  QDir(root.path()).mkpath(QStringLiteral("share/tamo"));
  const QString bin = root.path() + QStringLiteral("/bin");
  EXPECT_EQ(FindProgramFolder(bin), bin);
  QFile shared(root.path() + QStringLiteral("/share/tamo/Blank.pdf"));
  ASSERT_TRUE(shared.open(QIODevice::WriteOnly));
  EXPECT_EQ(FindProgramFolder(bin), root.path() + QStringLiteral("/share/tamo"));
  QFile beside(bin + QStringLiteral("/Blank.pdf"));
  ASSERT_TRUE(beside.open(QIODevice::WriteOnly));
  EXPECT_EQ(FindProgramFolder(bin), bin);
}

}  // namespace
}  // namespace tamo
