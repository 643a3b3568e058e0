#include <QCoreApplication>
#include <QElapsedTimer>
#include <atomic>
#include <set>
#include <thread>

#include "common/failure.h"
#include "engine/mupdfcontexts.h"
#include "plans/planfixture.h"
#include "support/sourcefile.h"

// Real plans that are odd: protected, certified, scanned, finely hatched, with odd names.

using namespace tamo;
using namespace tamo::test;

namespace {

struct OddPlans : PlanFixture {
  QString odd = Path("odd");
  QString told;  // of pages

  void SetUp() override {
    if (const QString made = qEnvironmentVariable("TAMO_ODD_PLANS"); !made.isEmpty()) {
      odd = made;
      return;
    }
    const Ran ran =
        Run("python3", {test::SourceFile(QStringLiteral("scripts/make_odd_pdfs.py")), odd});
    if (!ran.present) GTEST_SKIP() << "python3 is not here";
    ASSERT_EQ(ran.exit, 0) << ran.output.toStdString();
  }
  QString Odd(const char* name) const { return odd + '/' + name; }
  void Open(const char* name, const char* password = "") {
    draw = std::make_unique<PdfDraw>(files, engine);
    ASSERT_EQ(draw->OpenFile(Odd(name), password), 0) << draw->Problem().toStdString();
  }
  // Marks the plan, saves it, opens the copy and finds the mark.
  void ExpectMarked(const char* name, const char* password = "") {
    SCOPED_TRACE(name);
    Open(name, password);
    draw->DrawLine({100, 100}, {300, 100});
    const QString marked = Path(QString(name) + "-Marked.pdf");
    ASSERT_EQ(draw->SaveAs(marked), 0) << draw->Problem().toStdString();
    draw = std::make_unique<PdfDraw>(files, engine);
    ASSERT_EQ(draw->OpenFile(marked, password), 0) << draw->Problem().toStdString();
    EXPECT_EQ(draw->Marks().size(), 1U);
    const Ran ran = Run("qpdf", {QString("--password=") + password, "--check", marked});
    if (ran.present) {
      EXPECT_EQ(ran.exit, 0) << ran.output.toStdString();
    }
    // And once more, onto the copy itself.
    draw->DrawLine({100, 200}, {300, 200});
    ASSERT_EQ(draw->SaveAs(marked), 0) << draw->Problem().toStdString();
    draw = std::make_unique<PdfDraw>(files, engine);
    ASSERT_EQ(draw->OpenFile(marked, password), 0) << draw->Problem().toStdString();
    EXPECT_EQ(draw->Marks().size(), 2U);
  }
  std::shared_ptr<const Picture> Paint(PlanView view) {
    draw->Pictures().Look(view);
    EXPECT_TRUE(draw->Pictures().WaitUntilSharp(60000));
    return draw->Pictures().PrintPicture(view, {});
  }
  static unsigned At(const Picture& picture, int x, int y) {
    return picture.pixels[size_t(y) * size_t(picture.width) + size_t(x)] & 0xffffff;
  }
};

PlanView Part(double pixelsPerPoint, int left, int top, int width, int height) {
  PlanView view;
  view.pixelsPerPoint = pixelsPerPoint;
  view.left = left;
  view.top = top;
  view.width = width;
  view.height = height;
  return view;
}

}  // namespace

TEST_F(OddPlans, ProtectedPlansAreMarkedSavedAndOpenedAgain) {
  ExpectMarked("protected.pdf");
  ExpectMarked("protected_damaged.pdf");
  ExpectMarked("protected_apart_damaged.pdf");
  ExpectMarked("password.pdf", "plan");
}

TEST_F(OddPlans, APlanThatWantsAPasswordSaysSo) {
  EXPECT_EQ(draw->OpenFile(Odd("password.pdf"), ""), kFileOther);
  EXPECT_TRUE(draw->WantsPassword());
  EXPECT_TRUE(draw->Problem().contains("password")) << draw->Problem().toStdString();
  EXPECT_EQ(draw->OpenFile(Odd("password.pdf"), "wrong"), kFileOther);
  EXPECT_TRUE(draw->WantsPassword());
  EXPECT_EQ(draw->OpenFile(Odd("password.pdf"), "plan"), 0);
  EXPECT_FALSE(draw->WantsPassword());
}

// No owner password means that the user's stands for both; an empty one that was set opens all.
TEST_F(OddPlans, AnEmptyOwnerPasswordOpensOrAsks) {
  const int result = draw->OpenFile(Odd("owner_empty.pdf"), "");
  EXPECT_TRUE(result == 0 || draw->WantsPassword()) << draw->Problem().toStdString();
  ExpectMarked("owner_empty.pdf", "plan");
}

TEST_F(OddPlans, ACertificateProtectedPlanIsRefusedWithTheTrueReason) {
  EXPECT_EQ(draw->OpenFile(Odd("certificate.pdf"), ""), kFileOther);
  EXPECT_FALSE(draw->WantsPassword());
  EXPECT_TRUE(draw->Problem().contains("certificate")) << draw->Problem().toStdString();
}

TEST_F(OddPlans, NotesThatAreNotAllowedAreAskedForOnce) {
  struct Case {
    const char* name;
    int asked;
  };
  for (const Case& one :
       {Case{"notes_forbidden.pdf", 1}, Case{"certified_1.pdf", 1}, Case{"certified_2.pdf", 1},
        Case{"certified_3.pdf", 0}, Case{"protected.pdf", 0}}) {
    SCOPED_TRACE(one.name);
    Open(one.name);
    int asked = 0;
    bool answer = false;
    draw->onReservation = [&](const QString& text) {
      ++asked;
      EXPECT_FALSE(text.isEmpty());
      return answer;
    };
    draw->DrawLine({100, 100}, {300, 100});
    EXPECT_EQ(asked, one.asked == 0 ? 0 : asked);
    EXPECT_EQ(draw->Marks().size(), one.asked == 0 ? 1U : 0U);
    if (one.asked == 0) continue;
    EXPECT_GE(asked, 1);
    EXPECT_EQ(draw->Tool(), PlanTool::None);
    answer = true;
    asked = 0;
    draw->DrawLine({100, 100}, {300, 100});
    draw->PlaceCircle({200, 200});
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(draw->Marks().size(), 2U);
    const QString marked = Path("asked-Marked.pdf");
    ASSERT_EQ(draw->SaveAs(marked), 0);
    Reopen(marked);
    draw->onReservation = [&](const QString&) { return ADD_FAILURE() << "asked again", false; };
    draw->PlaceCircle({300, 200});
    EXPECT_EQ(draw->Marks().size(), 3U);
  }
}

TEST_F(OddPlans, AFineHatchIsDrawn) {
  Open("hatch_once.pdf");
  const auto picture = Paint(Part(1, 1000, 1000, 600, 400));
  ASSERT_NE(picture, nullptr);
  EXPECT_NE(At(*picture, 300, 10), 0xffffffU);
  EXPECT_EQ(At(*picture, 300, 296), 0xff0000U);  // the line over it
}

TEST_F(OddPlans, APageIsDrawnAsFarAsItGoesAndSaysWhatIsMissing) {
  struct Case {
    const char* name;
    const char* words;
  };
  int count = 1;
  char name[] = "test";
  char* arguments[] = {name};
  QCoreApplication application(count, arguments);
  for (const Case& one : {Case{"hatch_often.pdf", "hatch"}, Case{"jpx_bomb.pdf", "picture"},
                          Case{"jpx_damaged.pdf", "picture"}, Case{"scan_cut.pdf", "picture"},
                          Case{"scan.pdf", ""}}) {
    SCOPED_TRACE(one.name);
    Open(one.name);
    QString said;
    draw->onPageProblem = [&](const QString& text) { said = text; };
    const auto picture = Paint(Part(0.5, 0, 0, 900, 900));
    QCoreApplication::processEvents();
    EXPECT_NE(picture, nullptr) << said.toStdString();
    EXPECT_EQ(said.isEmpty(), *one.words == 0) << said.toStdString();
    EXPECT_TRUE(said.contains(one.words)) << said.toStdString();
    EXPECT_LE(MuPdfContexts::MemoryInUse(), qint64(320) << 20);
  }
  Open("hatch_often.pdf");
  const auto picture = Paint(Part(1, 1000, 1000, 600, 400));
  EXPECT_EQ(At(*picture, 300, 296), 0xff0000U);
  draw.reset();  // it posts events, so it goes before the application
}

// The same dots, whether a part is looked at near or the whole from afar, at every turn of the
// page.
TEST_F(OddPlans, AScanIsUnpackedOnceAndShownTrue) {
  Open("scan.pdf");
  const double near = 14400 / 612.0 / 4;  // a quarter of the scan's dots across
  const auto left = Paint(Part(near, 200, 200, 400, 400));
  ASSERT_NE(left, nullptr);
  EXPECT_EQ(At(*left, 200, 200), 0U);
  const auto right = Paint(Part(near, 3000, 200, 400, 400));
  EXPECT_EQ(At(*right, 200, 200), 0xffffffU);
  EXPECT_GT(MuPdfContexts::MemoryInUse(), 14400 / 8 * 9600);  // the samples are kept
  EXPECT_LT(MuPdfContexts::MemoryInUse(), qint64(120) << 20);
  const auto whole = Paint(Part(0.5, 0, 0, 306, 396));
  EXPECT_EQ(At(*whole, 50, 50), 0U);
  EXPECT_EQ(At(*whole, 250, 50), 0xffffffU);
  unsigned grey = 0;
  for (int y = 220; y < 380; ++y) grey += At(*whole, 150, y) & 255;
  EXPECT_NEAR(grey / 160, 128, 25);
  draw.reset();
  QElapsedTimer clock;
  clock.start();
  while (MuPdfContexts::MemoryInUse() > (qint64(1) << 20) && clock.elapsed() < 10000) {
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  EXPECT_LT(MuPdfContexts::MemoryInUse(), qint64(1) << 20);
}

// All that is not ours stays byte for byte: odd names, numbers, strings, also in the page's own
// dictionary, which has to be repeated for a mark.
TEST_F(OddPlans, APageThatIsMarkedKeepsItsBytes) {
  for (const char* name : {"names.pdf", "names_packed.pdf"}) {
    ExpectMarked(name);
    const QByteArray marked = Read(Path(QString(name) + "-Marked.pdf"));
    const qsizetype ours = marked.indexOf("%TamoMarks");
    const QByteArray addition = marked.mid(ours);
    for (const char* kept :
         {"/XObject<</ 5 0 R/#41#23#20x 5 0 R/LLLL", "[ 1.50  +7 (a\\(b\\)) <AB CD> /#E4 ]",
          "/LastModified(D:20260101)", "/MediaBox[0 0 612 792]"}) {
      EXPECT_TRUE(addition.contains(kept)) << name << ' ' << kept;
    }
  }
}

// Two pictures with one dictionary, one of them kept unpacked and one not: many painters at once
// show what one alone does.
TEST_F(OddPlans, ASharedDictionaryIsPaintedByManyThreadsAtManyZooms) {
  const std::vector<double> zooms = {0.4, 1, 1.7, 3.1};
  const auto open = [&] {
    std::shared_ptr<FileReader> reader;
    EXPECT_EQ(disk.OpenToRead(Odd("jbig2.pdf"), reader), 0);
    auto plan = engine.NewPlan(std::make_shared<PlanSource>(reader, reader->Size()));
    EXPECT_EQ(plan->Open("").error, 0);
    return plan;
  };
  const auto paint = [](EnginePlan& plan, const LoadedPage& page, double zoom) {
    std::vector<uint32_t> pixels(300 * 300);
    CancelFlag cancel;
    const int top = static_cast<int>(300 * zoom);
    EXPECT_TRUE(plan.Paint(page, {zoom, 0, 20, top, 300, 300, false}, cancel, pixels.data()));
    return pixels;
  };
  CancelFlag cancel;
  std::vector<std::vector<uint32_t>> alone;
  {
    const auto plan = open();
    const auto page = plan->LoadPage(1, cancel);
    ASSERT_NE(page, nullptr);
    for (const double zoom : zooms) alone.push_back(paint(*plan, *page, zoom));
    EXPECT_TRUE(page->Gaps().None());
    EXPECT_EQ(std::set<uint32_t>(alone[3].begin(), alone[3].end()).count(0xff000000), 1U);
    EXPECT_EQ(std::set<uint32_t>(alone[3].begin(), alone[3].end()).count(0xffffffff), 1U);
  }
  for (int round = 0; round < 5; ++round) {
    const auto plan = open();
    const auto page = plan->LoadPage(1, cancel);
    std::vector<std::thread> painters;
    std::atomic<int> wrong = 0;
    for (size_t i = 0; i < zooms.size(); ++i) {
      painters.emplace_back([&, i] {
        if (paint(*plan, *page, zooms[i]) != alone[i]) ++wrong;
      });
    }
    for (std::thread& painter : painters) painter.join();
    EXPECT_EQ(wrong, 0);
  }
}

TEST_F(OddPlans, TheFirstSaveOfADamagedSetLetsTheWindowLive) {
  QByteArray big = MakePdf(QList<PdfPage>(2000, PdfPage{}));
  const QString path = Write("set.pdf", big.left(big.indexOf("\nxref\n")));
  ASSERT_EQ(draw->OpenFile(path, ""), 0);
  draw->DrawLine({100, 100}, {200, 100});
  QElapsedTimer clock;
  qint64 longest = 0;
  QList<int> told;
  draw->onSaveProgress = [&](int perCent) {
    if (clock.isValid()) longest = std::max(longest, clock.elapsed());
    clock.start();
    told.push_back(perCent);
    EXPECT_NE(draw->SaveAs(Path("other.pdf")), 0);  // one save at a time
  };
  clock.start();
  ASSERT_EQ(draw->SaveAs(Path("set-Marked.pdf")), 0) << draw->Problem().toStdString();
  EXPECT_EQ(told.back(), 100);
  EXPECT_LT(longest, 250);
  draw->onSaveProgress = nullptr;
  Reopen(Path("set-Marked.pdf"));
  EXPECT_EQ(draw->Marks().size(), 1U);
}
