#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>

#include "export/pagecomposer.h"
#include "export/pageframe.h"
#include "windows/application.h"
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

TEST_F(PrintingTest, ThePaperIsThatOfTheCountry) {
  EXPECT_EQ(PaperOf(QLocale(QStringLiteral("en_US"))), QPageSize::Letter);
  EXPECT_EQ(PaperOf(QLocale(QStringLiteral("en_CA"))), QPageSize::Letter);
  EXPECT_EQ(PaperOf(QLocale(QStringLiteral("de_DE"))), QPageSize::A4);
}

TEST_F(PrintingTest, CompanyProjectDateAndPageStandAroundThePage) {
  PageFrame frame{QString(), QStringLiteral("Recap - Clinic"), QStringLiteral("11/22/26")};
  const auto inked = [&](const QRect& part) {
    QImage page(600, 800, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    frame.Paint(painter, QSizeF(600, 800), 2, 3, 72);
    painter.end();
    for (int y = part.top(); y <= part.bottom(); ++y) {
      for (int x = part.left(); x <= part.right(); ++x) {
        if (qGray(page.pixel(x, y)) < 128) return true;
      }
    }
    return false;
  };
  EXPECT_TRUE(inked({0, 780, 100, 20}));
  EXPECT_TRUE(inked({250, 780, 100, 20}));
  EXPECT_TRUE(inked({540, 780, 60, 20}));
  EXPECT_FALSE(inked({0, 0, 600, 770}));
  EXPECT_EQ(frame.Top(), 0);
  frame.company = QStringLiteral("Vale Drywall");
  EXPECT_TRUE(inked({0, 0, 100, 20}));
  EXPECT_GT(frame.Top(), 0);
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
