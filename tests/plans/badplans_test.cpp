#include <QCoreApplication>
#include <QElapsedTimer>
#include <cmath>
#include <set>

#include "common/failure.h"
#include "engine/mupdfcontentreader.h"
#include "engine/mupdfcontexts.h"
#include "plans/planfixture.h"
#include "support/helddisk.h"
#include "support/sourcefile.h"

// Damaged and hostile plans: a message or a sheet, never a crash, a hang or unbounded memory.

using namespace tamo;
using namespace tamo::test;

namespace {

struct BadPlans : PlanFixture {
  QString bad = Path("bad");

  void SetUp() override {
    const Ran ran =
        Run("python3", {test::SourceFile(QStringLiteral("scripts/make_bad_pdfs.py")), bad});
    if (!ran.present) GTEST_SKIP() << "python3 is not here";
    ASSERT_EQ(ran.exit, 0) << ran.output.toStdString();
    ASSERT_GE(ran.output.trimmed().toInt(), 60);
  }
  QStringList Names() const { return QDir(bad).entryList(QDir::Files); }
  // Those that are no plan at all or hold no page that could be shown.
  static bool IsHopeless(const QString& name) {
    static const std::set<QString> names = {
        "zero_bytes.pdf",        "one_byte.pdf",      "header_only.pdf",
        "garbage.pdf",           "zeros.pdf",         "text.pdf",
        "picture.pdf",           "archive.pdf",       "web_page.pdf",
        "truncated_10.pdf",      "tree_no_pages.pdf", "header_then_garbage.pdf",
        "locked_old.pdf",        "locked_usual.pdf",  "locked_unknown.pdf",
        "catalog_lost.pdf",

        "xref_stream_broken.pdf"};
    return names.count(name) != 0;
  }
};

}  // namespace

TEST_F(BadPlans, EachIsAMessageOrASheetAndTheFileStaysAsItIs) {
  qint64 most = 0;
  for (const QString& name : Names()) {
    SCOPED_TRACE(name.toStdString());
    const QString path = bad + "/" + name;
    const qint64 size = QFileInfo(path).size();
    PdfDraw viewer(files, engine);
    viewer.Patience().Set(1000);
    const int result = viewer.OpenFile(path, "");
    EXPECT_TRUE(result == 0 || result == kFileOther) << result;
    if (IsHopeless(name)) {
      EXPECT_EQ(result, kFileOther);
    }
    EXPECT_EQ(result == 0, viewer.Problem().isEmpty()) << viewer.Problem().toStdString();
    EXPECT_GE(viewer.PageCount(), 1);
    EXPECT_LE(viewer.PageCount(), 100000);
    const PageSize sheet = viewer.SizeOfPage(1);
    EXPECT_TRUE(std::isfinite(sheet.width) && sheet.width > 0) << sheet.width;
    EXPECT_TRUE(std::isfinite(sheet.height) && sheet.height > 0) << sheet.height;
    for (const Mark& mark : viewer.Marks()) {
      for (const PagePoint point : mark.points) {
        EXPECT_TRUE(std::isfinite(point.x) && std::isfinite(point.y));
      }
    }
    PlanView view;
    view.width = 800;
    view.height = 600;
    viewer.Pictures().Look(view);
    viewer.Pictures().WaitUntilSharp(300);
    viewer.Pictures().PicturesFor(view);
    most = std::max(most, MuPdfContexts::MemoryInUse());
    EXPECT_EQ(QFileInfo(path).size(), size);
  }
  EXPECT_LE(most, qint64(320) << 20);
}

TEST_F(BadPlans, MarkingOneEitherSucceedsWholeOrLeavesNothing) {
  for (const QString& name : Names()) {
    if (name.contains("bomb") || name.contains("wide") || name.contains("many")) continue;
    SCOPED_TRACE(name.toStdString());
    PdfDraw viewer(files, engine);
    viewer.Patience().Set(1000);
    if (viewer.OpenFile(bad + "/" + name, "") != 0) continue;
    const size_t before = viewer.Marks().size();
    viewer.DrawLine({10, 10}, {82, 10});
    const QString marked = Path(name + "-Marked.pdf");
    const int result = viewer.SaveAs(marked);
    if (result != 0) {
      EXPECT_FALSE(QFileInfo::exists(marked));
      EXPECT_FALSE(viewer.Problem().isEmpty());
      EXPECT_TRUE(viewer.HasUnsavedMarks());
      continue;
    }
    PdfDraw again(files, engine);
    EXPECT_EQ(again.OpenFile(marked, ""), 0) << again.Problem().toStdString();
    EXPECT_EQ(again.Marks().size(), before + 1);
  }
}

TEST_F(BadPlans, AGoodPlanOpensRightAfterEachHostileOne) {
  const QString good = Write("good.pdf", MakePdf({PdfPage()}));
  PlanView view;
  view.width = 800;
  view.height = 600;
  for (const QString& name : Names().filter("bomb")) {
    draw->OpenFile(bad + "/" + name, "");
    draw->Pictures().Look(view);
    ASSERT_EQ(draw->OpenFile(good, ""), 0) << name.toStdString();
    draw->Pictures().Look(view);
    EXPECT_TRUE(draw->Pictures().WaitUntilSharp(20000)) << name.toStdString();
  }
}

TEST_F(BadPlans, AHostilePlanNeverHoldsTheWindowAndTheMessageComesLater) {
  int count = 1;
  char name[] = "test";
  char* arguments[] = {name};
  QCoreApplication application(count, arguments);
  draw->Patience().Set(0);
  draw->Patience().SetLongest(300);
  QString told;
  draw->onProblem = [&](const QString& text) { told = text; };
  for (const char* file : {"xref_stream_wide.pdf", "locked_usual.pdf"}) {
    told.clear();
    draw->OpenFile(bad + "/" + file, "");
    EXPECT_EQ(draw->PageCount(), 1);
    QElapsedTimer clock;
    clock.start();
    while (told.isEmpty() && draw->Problem().isEmpty() && clock.elapsed() < 20000) {
      QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    }
    EXPECT_TRUE(draw->Problem().contains(file)) << draw->Problem().toStdString();
    EXPECT_TRUE(draw->ShownFile().isEmpty());
  }
}

TEST_F(BadPlans, ABlankSheetStandsForASlowPlanUntilItIsRead) {
  int count = 1;
  char name[] = "test";
  char* arguments[] = {name};
  QCoreApplication application(count, arguments);
  HeldDisk slow;
  Files slowFiles(slow);
  PdfDraw viewer(slowFiles, engine);
  viewer.Patience().Set(0);
  viewer.Patience().SetLongest(30000);
  int pages = 0;
  viewer.onPageChanged = [&] { ++pages; };
  viewer.OpenFile(Write("good.pdf", MakePdf({PdfPage(), PdfPage()})), "");
  EXPECT_EQ(viewer.PageCount(), 1);
  EXPECT_EQ(pages, 1);
  *slow.held = false;
  QElapsedTimer clock;
  clock.start();
  while (viewer.PageCount() != 2 && clock.elapsed() < 20000) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
  }
  EXPECT_EQ(viewer.PageCount(), 2);
  EXPECT_EQ(pages, 2);
}

TEST_F(BadPlans, OnlyAPlanInSightIsWaitedFor) {
  HeldDisk slow;
  Files slowFiles(slow);
  PdfDraw viewer(slowFiles, engine);
  const QString good = Write("good.pdf", MakePdf({PdfPage(), PdfPage()}));
  viewer.Patience().Set(10000, 0);
  viewer.Patience().SetSeen(false);
  viewer.OpenFile(good, "");
  EXPECT_EQ(viewer.PageCount(), 1);
  *slow.held = false;
  ASSERT_TRUE(viewer.FinishOpening(10000));
  EXPECT_EQ(viewer.PageCount(), 2);
  viewer.Patience().SetSeen(true);
  ASSERT_EQ(viewer.OpenFile(good, ""), 0);
  EXPECT_EQ(viewer.PageCount(), 2);
}

namespace {

// Three pages of different sizes under a tree of its own making; `kids` and `count` of its root.
QByteArray OddTree(const QByteArray& kids, const QByteArray& count) {
  QByteArray pdf = MakePdf({{"/MediaBox[0 0 100 200]", "BT /F1 9 Tf 9 9 Td (one) Tj ET"},
                            {"/MediaBox[0 0 200 200]", "BT /F1 9 Tf 9 9 Td (two) Tj ET"},
                            {"/MediaBox[0 0 300 200]", "BT /F1 9 Tf 9 9 Td (three) Tj ET"}});
  const qsizetype at = pdf.indexOf("2 0 obj\n");
  const qsizetype end = pdf.indexOf("\nendobj", at);
  QByteArray body = "2 0 obj\n<</Type/Pages/Count " + count + "/Kids[" + kids + "]>>";
  // The places in the file stay.
  return pdf.replace(at, end - at, body.leftJustified(end - at, ' '));
}

}  // namespace

// What is marked, measured, painted and read as page N is one and the same sheet, whatever the tree
// says of its counts.
TEST_F(BadPlans, PageNIsOneSheetForEveryone) {
  struct Tree {
    const char* kids;
    const char* count;
    QList<double> widths;
  };
  const Tree trees[] = {{"null 3 0 R 5 0 R", "3", {100, 200}},
                        {"3 0 R 5 0 R 7 0 R", "1", {100, 200, 300}},
                        {"3 0 R 5 0 R 7 0 R", "9", {100, 200, 300}},
                        {"3 0 R 2 0 R 7 0 R", "3", {100, 300}},
                        {"5 0 R 5 0 R 3 0 R", "3", {200, 200, 100}}};
  for (const Tree& tree : trees) {
    const QString path = Write("tree.pdf", OddTree(tree.kids, tree.count));
    draw = std::make_unique<PdfDraw>(files, engine);
    ASSERT_EQ(draw->OpenFile(path, ""), 0) << tree.kids;
    ASSERT_EQ(draw->PageCount(), tree.widths.size()) << tree.kids;
    for (int page = 1; page <= draw->PageCount(); ++page) {
      EXPECT_DOUBLE_EQ(draw->SizeOfPage(page).width, tree.widths[page - 1]) << tree.kids;
      EXPECT_NEAR(ReadPageContent(disk, path, page).size.width, tree.widths[page - 1], 1e-3);
      PlanView part;
      part.page = page;
      part.width = 20;
      part.height = 20;
      EXPECT_NE(draw->Pictures().PrintPicture(part, {}), nullptr) << tree.kids << " page " << page;
    }
  }
}

TEST_F(BadPlans, MarksOnASheetThatIsNamedTwiceAreAllKept) {
  const QString path = Write("twice.pdf", OddTree("5 0 R 5 0 R 3 0 R", "3"));
  ASSERT_EQ(draw->OpenFile(path, ""), 0);
  for (int page = 1; page <= 3; ++page) {
    draw->SetPage(page);
    draw->DrawLine({10, 10.0 * page}, {90, 10.0 * page});
  }
  ASSERT_EQ(draw->SaveAs(Path("twice-Marked.pdf")), 0) << draw->Problem().toStdString();
  Reopen(Path("twice-Marked.pdf"));
  EXPECT_EQ(draw->Marks().size(), 3U);
}
