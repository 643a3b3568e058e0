#include "plans/planguide.h"

#include "engine/mupdfcontentdocument.h"
#include "plans/pagelabels.h"
#include "plans/planfixture.h"
#include "plans/sheetbook.h"
#include "plans/sheetfinder.h"

// What a plan says of itself: labels, bookmarks, links, layers, through the real engine.

using namespace tamo;
using namespace tamo::test;

namespace {

// A plan of so many pages with a catalog of its own entries, further objects behind the pages.
QByteArray Plan(const QList<PdfPage>& pages, const QByteArray& catalog,
                const QList<QByteArray>& more = {}) {
  PdfOptions options;
  options.more = more;
  QByteArray pdf = MakePdf(pages, options);
  // The engine repairs the table of places that this shifts.
  return pdf.replace("<</Type/Catalog/Pages 2 0 R>>",
                     "<</Type/Catalog/Pages 2 0 R" + catalog + ">>");
}

QByteArray Number(int number) {
  return QByteArray::number(number);
}

}  // namespace

struct PlanGuides : PlanFixture {
  std::shared_ptr<EnginePlan> plan;
  PlanContents contents;

  void Open(const QByteArray& pdf) {
    std::shared_ptr<FileReader> reader;
    ASSERT_EQ(disk.OpenToRead(Write("plan.pdf", pdf), reader), 0);
    plan = engine.NewPlan(std::make_shared<PlanSource>(reader, reader->Size()));
    contents = plan->Open("");
    ASSERT_EQ(contents.error, 0) << contents.problem.toStdString();
  }
};

TEST(PageLabels, EveryStyle) {
  EXPECT_TRUE(PageLabels({}, 3).isEmpty());
  EXPECT_EQ(PageLabels({{0, 'r', "", 1}, {3, 'D', "A-", 601}, {5, 0, "Cover", 1}}, 7),
            QStringList({"i", "ii", "iii", "A-601", "A-602", "Cover", "Cover"}));
  EXPECT_EQ(PageLabels({{0, 'A', "", 26}}, 3), QStringList({"Z", "AA", "BB"}));
  EXPECT_EQ(PageLabels({{1, 'R', "", 1999}}, 2), QStringList({"1", "MCMXCIX"}));
  // Numbers that no label has.
  EXPECT_EQ(PageLabels({{-5, 'r', "", -9}, {1, 'a', "", 2000000000}}, 2),
            QStringList({"0", "1073741824"}));
}

TEST_F(PlanGuides, LabelsThroughATree) {
  Open(Plan(
      QList<PdfPage>(4, PdfPage{}),
      "/PageLabels<</Kids[<</Nums[0<</P(A-)/S/D/St 101>>]>> <</Nums[2<</P(M-201 ROOF)>>]>>]>>"));
  EXPECT_EQ(plan->ReadGuide().labels, QStringList({"A-101", "A-102", "M-201 ROOF", "M-201 ROOF"}));
}

TEST_F(PlanGuides, BookmarksAndWhereTheyLead) {
  // Objects from 9 on: the outline and its items, and a named destination.
  Open(Plan(QList<PdfPage>(3, PdfPage{}), "/Outlines 9 0 R/Dests<</Roof[7 0 R/XYZ 100 692 0]>>",
            {"<</First 10 0 R/Last 13 0 R>>",
             "<</Title(Architectural)/Parent 9 0 R/Next 13 0 R/First 11 0 R>>",
             "<</Title(A-101 - FLOOR\nPLAN)/Parent 10 0 R/Next 12 0 R/Dest[3 0 R/FitH 592]>>",
             "<</Title(Roof)/Parent 10 0 R/A<</S/GoTo/D/Roof>>>>",
             "<</Title(Web)/Parent 9 0 R/Next 14 0 R/A<</S/URI/URI(http://example.org/a)>>>>",
             "<</Title(Gone)/Parent 9 0 R/Next 10 0 R/Dest[99 0 R/Fit]>>"}));
  const PlanGuide guide = plan->ReadGuide();
  ASSERT_EQ(guide.bookmarks.size(), 5U);
  const std::vector<PlanBookmark>& marks = guide.bookmarks;
  EXPECT_EQ(marks[0].title, "Architectural");
  EXPECT_EQ(marks[0].target.kind, PlanTarget::Kind::None);
  EXPECT_EQ(marks[1].title, "A-101 - FLOOR PLAN");
  EXPECT_EQ(marks[1].depth, 1);
  EXPECT_EQ(marks[1].target.page, 1);
  EXPECT_TRUE(marks[1].target.placed);
  EXPECT_EQ(marks[1].target.at.y, 200);
  EXPECT_EQ(marks[2].target.page, 3);
  EXPECT_EQ(marks[2].target.at.x, 100);
  EXPECT_EQ(marks[2].target.at.y, 100);
  EXPECT_EQ(marks[3].target.kind, PlanTarget::Kind::Web);
  EXPECT_EQ(marks[3].target.outside, "http://example.org/a");
  EXPECT_EQ(marks[4].target.kind, PlanTarget::Kind::None);  // a page there is not; no circle
}

TEST_F(PlanGuides, LinksOnEveryTurnOfAPage) {
  const QByteArray box =
      "/Annots[<</Subtype/Link/Rect[100 600 200 620]/Dest[1/Fit]>>"
      "<</Subtype/Link/F 2/Rect[0 0 9 9]/Dest[1/Fit]>>"
      "<</Subtype/Link/Rect[10 10 60 30]/A<</S/Launch/F(calc.exe)>>>>"
      "<</Subtype/Link/Rect[10 50 60 70]/A<</S/JavaScript/JS(app.alert)>>>>"
      "<</Subtype/Link/Rect[10 80 60 90]/A<</S/GoToR/F<</UF(other.pdf)>>>>>>"
      "<</Subtype/Link/Rect[10 80 60 90]/A<</S/Named/N/NextPage>>>>]";
  QList<PdfPage> pages;
  for (const int turn : {0, 90, 180, 270})
    pages += {"/MediaBox[0 0 612 792]/Rotate " + Number(turn) + box, ""};
  Open(Plan(pages, ""));
  const PageBox boxes[] = {
      {100, 172, 200, 192}, {600, 100, 620, 200}, {412, 600, 512, 620}, {172, 412, 192, 512}};
  for (int page = 1; page <= 4; ++page) {
    const std::vector<PageLink> links = plan->ReadLinks(page);
    ASSERT_EQ(links.size(), 5U);
    EXPECT_EQ(links[0].target.page, 2);
    EXPECT_NEAR(links[0].box.left, boxes[page - 1].left, 0.01) << page;
    EXPECT_NEAR(links[0].box.top, boxes[page - 1].top, 0.01) << page;
    EXPECT_NEAR(links[0].box.right, boxes[page - 1].right, 0.01) << page;
    EXPECT_NEAR(links[0].box.bottom, boxes[page - 1].bottom, 0.01) << page;
    EXPECT_EQ(links[1].target.kind, PlanTarget::Kind::Program);
    EXPECT_EQ(links[1].target.outside, "calc.exe");
    EXPECT_EQ(links[2].target.kind, PlanTarget::Kind::Script);
    EXPECT_EQ(links[3].target.kind, PlanTarget::Kind::File);
    EXPECT_EQ(links[3].target.outside, "other.pdf");
    EXPECT_EQ(links[4].target.kind, PlanTarget::Kind::Other);
  }
  EXPECT_TRUE(plan->ReadLinks(9).empty());
}

namespace {

// A page with a red square on layer object 5 and a blue one on layer object 6.
QByteArray Layered(const QByteArray& rest = {}) {
  return Plan({{"/MediaBox[0 0 100 100]/Resources<</Properties<</L1 5 0 R/L2 6 0 R>>/Font<</F "
                "<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>>>>>",
                "/OC/L1 BDC 1 0 0 rg 10 10 30 30 re f EMC /OC/L2 BDC 0 0 1 rg 60 60 30 30 re f "
                "BT /F 10 Tf 10 80 Td (BLUE) Tj ET EMC"}},
              "/OCProperties<</OCGs[5 0 R 6 0 R]/D<</Order[5 0 R 6 0 R]/OFF[6 0 R]" + rest + ">>>>",
              {"<</Type/OCG/Name(A-WALL)>>", "<</Type/OCG/Name(A-DIMS)>>"});
}

}  // namespace

TEST_F(PlanGuides, LayersAreListedAndSwitched) {
  Open(Layered("/Locked[5 0 R]"));
  PlanGuide guide = plan->ReadGuide();
  ASSERT_EQ(guide.layers.size(), 2U);
  EXPECT_EQ(guide.layers[0].name, "A-WALL");
  EXPECT_TRUE(guide.layers[0].shown);
  EXPECT_TRUE(guide.layers[0].locked);
  EXPECT_FALSE(guide.layers[1].shown);
  const auto colourAt = [&](int x, int y) {
    CancelFlag cancel;
    const auto page = plan->LoadPage(1, cancel);
    std::vector<uint32_t> pixels(100 * 100);
    plan->Paint(*page, {1, 0, 0, 0, 100, 100, false}, cancel, pixels.data());
    return pixels[size_t(y * 100 + x)] & 0xffffff;
  };
  const auto paths = [&] {
    CancelFlag cancel;
    return plan->ReadContent(1, cancel).paths.size();
  };
  EXPECT_EQ(colourAt(25, 75), 0xff0000U);
  EXPECT_EQ(colourAt(75, 25), 0xffffffU);
  EXPECT_EQ(paths(), 1U);
  EXPECT_TRUE(plan->ShowLayers({false, true}));
  EXPECT_EQ(colourAt(25, 75), 0xffffffU);
  EXPECT_EQ(colourAt(75, 25), 0x0000ffU);
  EXPECT_EQ(paths(), 1U);
  EXPECT_TRUE(plan->ReadGuide().layers[1].shown);  // as they now stand
  EXPECT_FALSE(plan->ShowLayers(std::vector<bool>(3, true)));
}

TEST_F(PlanGuides, TextsAloneAreTheTexts) {
  Open(Layered());
  CancelFlag cancel;
  plan->ShowLayers({true, true});
  const PageContent whole = plan->ReadContent(1, cancel);
  const PageContent texts = plan->ReadTexts(1, cancel);
  EXPECT_EQ(whole.paths.size(), 2U);
  EXPECT_TRUE(texts.paths.empty());
  ASSERT_EQ(texts.texts.size(), whole.texts.size());
  EXPECT_EQ(texts.texts[0].text, "BLUE");
  EXPECT_EQ(texts.size.width, 100);
  EXPECT_TRUE(texts.whole);
}

// Trees that run in circles, and what is no tree at all.
TEST_F(PlanGuides, DamageEndsSomewhere) {
  Open(Plan(QList<PdfPage>(2, PdfPage{}), "/Outlines 7 0 R/PageLabels 9 0 R/OCProperties 12",
            {"<</First 8 0 R>>", "<</Title 5/First 8 0 R/Next 7 0 R/Dest/Nowhere>>",
             "<</Kids[9 0 R 9 0 R]/Nums[0 7 1]>>"}));
  const PlanGuide guide = plan->ReadGuide();
  EXPECT_LE(guide.bookmarks.size(), 2U);
  EXPECT_TRUE(guide.layers.empty());
}
