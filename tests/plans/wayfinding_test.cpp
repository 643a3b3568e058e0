#include <gtest/gtest.h>

#include "plans/jumptrail.h"
#include "plans/planfixture.h"
#include "plans/sheetbook.h"
#include "plans/sheetfinder.h"

using namespace tamo;
using namespace tamo::test;

namespace {

// A sheet with a title block; letters of Helvetica.
PdfPage Sheet(const QByteArray& number, const QByteArray& name, const QByteArray& entries = {}) {
  const QByteArray content = "BT /F 6 Tf 640 120 Td (SHEET TITLE) Tj ET BT /F 10 Tf 640 105 Td (" +
                             name + ") Tj ET BT /F 6 Tf 640 80 Td (SHEET NUMBER) Tj ET " +
                             "BT /F 28 Tf 640 40 Td (" + number +
                             ") Tj ET BT /F 8 Tf 200 300 Td (SCALE: 1/8\" = 1'-0\") Tj ET";
  return {
      "/MediaBox[0 0 792 612]/Resources<</Font<</F <</Type/Font/Subtype/Type1/BaseFont/"
      "Helvetica>>>>>>" +
          entries,
      content};
}

}  // namespace

struct Books : PlanFixture {
  std::shared_ptr<EnginePlan> plan;
  SheetBook book;

  void Read(const QByteArray& pdf) {
    std::shared_ptr<FileReader> reader;
    ASSERT_EQ(disk.OpenToRead(Write("plan.pdf", pdf), reader), 0);
    plan = engine.NewPlan(std::make_shared<PlanSource>(reader, reader->Size()));
    const PlanContents contents = plan->Open("");
    ASSERT_EQ(contents.error, 0);
    book.Want(plan, int(contents.sizes.size()), 1);
    book.Wait(120000);  // a sanitizer takes its time
  }
  static QByteArray Labelled(const QList<PdfPage>& pages, const QByteArray& labels) {
    return MakePdf(pages).replace("/Type/Catalog",
                                  "/Type/Catalog/PageLabels<</Nums[" + labels + "]>>");
  }
};

TEST_F(Books, TheTitleBlockGoesBeforeTheLabel) {
  Read(Labelled({Sheet("A-101", "FLOOR PLAN"), PdfPage{}, Sheet("", "DETAILS")},
                "0<</P(X-9)>>1<</P(A-102 ROOF)>>2<</P(A-103)>>"));
  EXPECT_TRUE(book.Done());
  EXPECT_EQ(book.TitleOf(1), (SheetTitle{"A-101", "FLOOR PLAN"}));
  EXPECT_EQ(book.TitleOf(2), (SheetTitle{"A-102", "ROOF"}));
  EXPECT_EQ(book.TitleOf(3), (SheetTitle{"A-103", "DETAILS"}));
  EXPECT_EQ(book.TitleOf(9), SheetTitle());
  ASSERT_EQ(book.Of(1).scales.size(), 1U);
  EXPECT_EQ(book.Of(1).scales[0].feetPerInch, 8);
  EXPECT_TRUE(book.Of(2).scales.empty());
}

TEST_F(Books, EveryRotationOfAPage) {
  QList<PdfPage> pages;
  for (const char* turn : {"/Rotate 0", "/Rotate 90", "/Rotate 180", "/Rotate 270", "/UserUnit 4"})
    pages += Sheet("M2.01", "DUCTS", turn);
  Read(MakePdf(pages));
  for (int page = 1; page <= 5; ++page)
    EXPECT_EQ(book.TitleOf(page), (SheetTitle{"M2.01", "DUCTS"})) << page;
}

TEST_F(Books, HeldUntilItIsLetGo) {
  book.Hold(true);
  std::shared_ptr<FileReader> reader;
  ASSERT_EQ(disk.OpenToRead(Write("plan.pdf", MakePdf({Sheet("A-1", "PLAN")})), reader), 0);
  plan = engine.NewPlan(std::make_shared<PlanSource>(reader, reader->Size()));
  plan->Open("");
  book.Want(plan, 1, 1);
  std::this_thread::sleep_for(std::chrono::milliseconds(60));
  book.Take();
  EXPECT_EQ(book.SheetsRead(), 0);
  book.Wait(20000);
  EXPECT_EQ(book.TitleOf(1).number, "A-1");
  book.Want(nullptr, 0, 1);
  EXPECT_EQ(book.Sheets(), 0);
  EXPECT_EQ(book.TitleOf(1), SheetTitle());
}

// A hundred thousand pieces of text on one sheet take no time that anybody notices.
TEST_F(Books, AHundredThousandPiecesOfText) {
  PdfPage page = Sheet("A-101", "FLOOR PLAN");
  QByteArray words = page.content + " BT /F 4 Tf 0 0 Td ";
  for (int i = 0; i < 100000; ++i) {
    words += "1 0 0 1 " + QByteArray::number(20 + i % 300 * 2) + " " +
             QByteArray::number(130 + i / 300) + " Tm (A101) Tj ";
  }
  page.content = words + "ET";
  Read(MakePdf({page}));
  EXPECT_EQ(book.TitleOf(1).number, "A-101");
}

TEST_F(Books, SheetsByWhatIsTyped) {
  Read(Labelled({Sheet("A-101", "FLOOR PLAN"), Sheet("A-102", "ROOF PLAN"), Sheet("M-101", "DUCTS"),
                 Sheet("A-1.03", "STAIRS"), PdfPage{}},
                "0<</S/r>>4<</P(SK-1)>>"));
  using Pages = std::vector<int>;
  for (const char* text : {"A-101", "a101", " A 101 ", "A.101", "a-1.01"})
    EXPECT_EQ(SheetsCalled(text, book), Pages{1}) << text;
  EXPECT_EQ(SheetsCalled("A103", book), Pages{4});
  EXPECT_EQ(SheetsCalled("101", book), (Pages{1, 3}));  // the digits of two
  EXPECT_EQ(SheetsCalled("2", book), Pages{2});         // a page
  EXPECT_EQ(SheetsCalled("page 5", book), Pages{5});
  EXPECT_EQ(SheetsCalled("iv", book), Pages{4});  // as the plan calls it
  EXPECT_EQ(SheetsCalled("sk1", book), Pages{5});
  EXPECT_EQ(SheetsCalled("A-1", book), (Pages{1, 2, 4}));
  EXPECT_EQ(SheetsCalled("plan", book), (Pages{1, 2}));
  EXPECT_TRUE(SheetsCalled("Z-9", book).empty());
  EXPECT_TRUE(SheetsCalled("", book).empty());
  EXPECT_TRUE(SheetsCalled("6", book).empty());
  EXPECT_EQ(SheetInWords(book, 1), "A-101  FLOOR PLAN  (page 1)");
  EXPECT_EQ(
      NoSheetInWords("Z-9", book),
      "No sheet is called \"Z-9\". 5 numbers are known, A-101 to SK-1. A page goes too: 1 to 5.");
}

TEST_F(Books, ScansSaySo) {
  Read(MakePdf({PdfPage{}, PdfPage{}}));
  EXPECT_EQ(SheetInWords(book, 2), "Page 2");
  EXPECT_TRUE(NoSheetInWords("A-1", book).contains("scanned, drawn as lines"));
}

TEST(JumpTrail, BackAndForward) {
  JumpTrail trail;
  EXPECT_FALSE(trail.Back({1, 0, 0}).has_value());
  trail.Leave({1, 0, 0});
  trail.Leave({5, 10, 0});
  EXPECT_EQ(trail.Back({9, 0, 0}), (SheetPlace{5, 10, 0}));
  EXPECT_EQ(trail.Back({5, 10, 0}), (SheetPlace{1, 0, 0}));
  EXPECT_FALSE(trail.Back({1, 0, 0}).has_value());
  EXPECT_EQ(trail.Forward({1, 0, 0}), (SheetPlace{5, 10, 0}));
  EXPECT_EQ(trail.Forward({5, 10, 0}), (SheetPlace{9, 0, 0}));
  EXPECT_FALSE(trail.Forward({9, 0, 0}).has_value());
  // A jump from the middle of the way: what lay ahead is gone.
  trail.Back({9, 0, 0});
  trail.Leave({5, 10, 0});
  EXPECT_FALSE(trail.Forward({7, 0, 0}).has_value());
  for (int page = 1; page < 2000; ++page) trail.Leave({page, 0, 0});
  int steps = 0;
  while (trail.Back({9999, steps, 0}).has_value()) ++steps;
  EXPECT_EQ(steps, 500);
}
