#include <cstdint>
#include <memory>
#include <vector>

#include "plans/planfixture.h"

// A set whose notes take more memory than a plan may have: each sheet can be looked at, read and
// followed all the same, as often as one likes.

namespace tamo::test {
namespace {

constexpr int kPages = 30;
constexpr int kNotes = 40;  // on each page
constexpr int kWords = 100'000;

// A letter drawn by the plan itself, a link to the next page, and notes.
QByteArray NotedPlan() {
  const QByteArray note =
      "<</Type/Annot/Subtype/Popup/Rect[0 0 1 1]/Contents(" + QByteArray(kWords, 'x') + ")>>";
  const int first = 3 + 2 * kPages;
  QList<PdfPage> pages;
  PdfOptions options;
  for (int i = 0; i < kPages; ++i) {
    PdfPage page;
    QByteArray notes = QByteArray::number(first + 2 + i) + " 0 R ";
    for (int n = 0; n < kNotes; ++n)
      notes += QByteArray::number(first + 2 + kPages + i * kNotes + n) + " 0 R ";
    page.entries = "/MediaBox[0 0 300 200]/Resources<</Font<</F " + QByteArray::number(first) +
                   " 0 R>>>>/Annots[" + notes + "]";
    page.content = "BT /F 100 Tf 20 40 Td (a) Tj ET";
    pages.push_back(page);
  }
  options.more.push_back(
      "<</Type/Font/Subtype/Type3/FontBBox[0 0 1 1]/FontMatrix[1 0 0 1 0 0]/FirstChar 97/LastChar "
      "97/Widths[1]/Encoding<</Differences[97/a]>>/Resources<<>>/CharProcs<</a " +
      QByteArray::number(first + 1) + " 0 R>>>>");
  options.more.push_back("<</Length 28>>\nstream\n1 0 d0 0 0 .5 1 re f        \nendstream");
  for (int i = 0; i < kPages; ++i) {
    const int next = 3 + 2 * ((i + 1) % kPages);
    options.more.push_back("<</Type/Annot/Subtype/Link/Rect[10 10 90 90]/Dest[" +
                           QByteArray::number(next) + " 0 R/Fit]>>");
  }
  for (int i = 0; i < kPages * kNotes; ++i) options.more.push_back(note);
  return MakePdf(pages, options);
}

struct ManyNotes : PlanFixture {
  static std::vector<uint32_t> Painted(EnginePlan& plan, const LoadedPage* page) {
    std::vector<uint32_t> pixels(300 * 200);
    CancelFlag cancel;
    EXPECT_TRUE(page != nullptr &&
                plan.Paint(*page, {1, 0, 0, 0, 300, 200, false}, cancel, pixels.data()));
    return pixels;
  }
};

TEST_F(ManyNotes, AreForgottenAndReadAgainAndEverySheetIsThere) {
  const QString path = Write("notes.pdf", NotedPlan());
  std::shared_ptr<FileReader> reader;
  ASSERT_EQ(disk.OpenToRead(path, reader), 0);
  const auto plan = engine.NewPlan(std::make_shared<PlanSource>(reader, reader->Size()));
  const PlanContents contents = plan->Open("");
  ASSERT_EQ(contents.error, 0) << contents.problem.toStdString();
  ASSERT_EQ(contents.sizes.size(), size_t(kPages));
  CancelFlag cancel;
  const auto first = plan->LoadPage(1, cancel);
  const std::vector<uint32_t> picture = Painted(*plan, first.get());
  EXPECT_EQ(picture[150 * 300 + 30], 0xff000000U);  // the letter
  EXPECT_EQ(picture[150 * 300 + 100], 0xffffffffU);
  for (int round = 0; round < 2; ++round) {
    for (int page = 1; page <= kPages; ++page) {
      EXPECT_EQ(Painted(*plan, plan->LoadPage(page, cancel).get()), picture) << page;
      const PageContent texts = plan->ReadTexts(page, cancel);
      EXPECT_TRUE(texts.whole) << page << texts.problem.toStdString();
      const std::vector<PageLink> links = plan->ReadLinks(page);
      ASSERT_EQ(links.size(), 1U) << page;
      EXPECT_EQ(links[0].target.page, page % kPages + 1);
    }
  }
  EXPECT_EQ(Painted(*plan, first.get()), picture) << "of a page read before all was forgotten";
  EXPECT_LT(MuPdfContexts::MemoryInUse(), qint64(220) << 20);
}

}  // namespace
}  // namespace tamo::test
