#include "common/failure.h"
#include "plans/planfixture.h"
#include "plans/workerengine.h"

// A worker that a plan has taken over, and that lies: it harms nobody.

using namespace tamo;
using namespace tamo::test;

using LyingWorker = PlanFixture;

TEST_F(LyingWorker, HarmsNobody) {
  const QString path = Write("plan.pdf", MakePdf(QList<PdfPage>(3, PdfPage{})));
  const QByteArray before = Read(path);
  WorkerEngine liars(TAMO_LIAR);
  int opened = 0;
  for (int i = 0; i < 60; ++i) {
    std::shared_ptr<FileReader> reader;
    ASSERT_EQ(disk.OpenToRead(path, reader), 0);
    const auto plan = liars.NewPlan(std::make_shared<PlanSource>(reader, reader->Size()));
    const PlanContents contents = plan->Open("");
    EXPECT_TRUE(contents.error == 0 || !contents.problem.isEmpty() || contents.wantsPassword);
    if (contents.error != 0) continue;
    ++opened;
    EXPECT_GE(contents.sizes.size(), 1U);
    EXPECT_LE(contents.sizes.size(), 100000U);
    CancelFlag cancel;
    const auto page = plan->LoadPage(1, cancel);
    std::vector<uint32_t> pixels(100 * 100);
    if (page != nullptr) {
      EXPECT_GT(page->Size().height, 0);
      plan->Paint(*page, {1, 0, 0, 0, 100, 100, false}, cancel, pixels.data());
    }
    plan->ReadContent(1, cancel);
    plan->ReadTexts(1, cancel);
    for (const PlanBookmark& bookmark : plan->ReadGuide().bookmarks)
      EXPECT_LE(bookmark.title.size(), kLongestEntryTitle);
    EXPECT_LE(plan->ReadLinks(1).size(), size_t(kMostLinks));
    plan->ShowLayers({true, false});
    const PlanUpdate update = plan->BuildUpdate({});
    EXPECT_TRUE(update.bytes.isEmpty() || update.bytes.endsWith("%%EOF\n"));
    QString problem;
    plan->WriteWhole([](const QByteArray& part) { return part.startsWith("%PDF") ? 0 : 57; },
                     problem);
  }
  EXPECT_GT(opened, 5);
  EXPECT_EQ(Read(path), before);
}
