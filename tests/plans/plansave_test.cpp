#include <algorithm>

#include "common/failure.h"
#include "plans/filetail.h"
#include "plans/planfixture.h"
#include "support/memoryreader.h"

using namespace tamo;
using namespace tamo::test;

namespace {

struct PlanSave : PlanFixture {
  QString marked = Path("Floor2-Marked.pdf");

  // A plan of some size with one saved mark, shown.
  void Begin(int pages = 20) {
    QList<PdfPage> list(pages, PdfPage());
    list[0].content = "% " + QByteArray(300000, 'x') + "\n1 w 0 0 m 10 10 l S";
    ASSERT_EQ(draw->OpenFile(Write("Floor2.PDF", MakePdf(list)), ""), 0);
    draw->DrawLine({100, 100}, {200, 100});
    ASSERT_EQ(draw->SaveAs(marked), 0) << draw->Problem().toStdString();
  }
  size_t MarksOnDisk() {
    PdfDraw other(files, engine);
    EXPECT_EQ(other.OpenFile(marked, ""), 0) << other.Problem().toStdString();
    return other.Marks().size();
  }
};

}  // namespace

TEST_F(PlanSave, TheFirstMarkedCopyIsTheOriginalAndAnAddition) {
  Begin();
  const QByteArray original = Read(Path("Floor2.PDF"));
  const QByteArray copy = Read(marked);
  EXPECT_TRUE(copy.startsWith(original));
  EXPECT_LT(copy.size() - original.size(), 4000);
  EXPECT_EQ(draw->ShownFile(), "Floor2-Marked.pdf");
  ExpectValid(marked);
}

TEST_F(PlanSave, SavingWithNoNewMarkWritesNothing) {
  Begin();
  const QByteArray before = Read(marked);
  disk.ResetSteps();
  EXPECT_EQ(draw->SaveAs(marked), 0);
  EXPECT_EQ(disk.StepsTaken(), 0);
  EXPECT_EQ(Read(marked), before);
  draw->DrawLine({1, 1}, {2, 2});
  draw->Undo();
  EXPECT_EQ(draw->SaveAs(marked), 0);
  EXPECT_EQ(disk.StepsTaken(), 0);
}

TEST_F(PlanSave, ANewMarkIsAppendedAndEverythingBeforeItStays) {
  Begin();
  for (int i = 0; i < 10; ++i) {
    const QByteArray before = Read(marked);
    draw->SetPage(i % 3 + 1);
    draw->DrawLine({100, 110.0 + i}, {200, 110.0 + i});
    ASSERT_EQ(draw->SaveAs(marked), 0);
    const QByteArray after = Read(marked);
    EXPECT_TRUE(after.startsWith(before));
    EXPECT_LT(after.size() - before.size(), 4000);
  }
  EXPECT_EQ(MarksOnDisk(), 11U);
  ExpectValid(marked);
}

TEST_F(PlanSave, ATornTailIsCutBackAtTheNextOpeningWhereverItWasTorn) {
  Begin(2);
  const QByteArray first = Read(marked);
  draw->DrawLine({100, 120}, {200, 120});
  ASSERT_EQ(draw->SaveAs(marked), 0);
  const QByteArray second = Read(marked);
  draw.reset();
  for (qsizetype cut = first.size() + 1; cut < second.size();
       cut += cut < first.size() + 30 || cut > second.size() - 60 ? 1 : 37) {
    Write("Floor2-Marked.pdf", second.left(cut));
    PdfDraw after(files, engine);
    ASSERT_EQ(after.OpenFile(marked, ""), 0) << "cut at " << cut - first.size();
    // Only the last line end may be missing from a whole state.
    const bool whole = cut >= second.size() - 1;
    EXPECT_EQ(after.Marks().size(), whole ? 2U : 1U) << "cut at " << cut - first.size();
    const QByteArray now = Read(marked);
    const bool kept = whole ? now == second.left(cut) : now == first || now == first + "\n";
    EXPECT_TRUE(kept) << "cut at " << cut - first.size();
    after.DrawLine({100, 140}, {200, 140});
    ASSERT_EQ(after.SaveAs(marked), 0);
    EXPECT_EQ(MarksOnDisk(), whole ? 3U : 2U) << "cut at " << cut - first.size();
  }
  ExpectValid(marked);
}

TEST_F(PlanSave, ATailWhoseBlocksNeverReachedTheDiskIsCutBack) {
  Begin(2);
  const QByteArray first = Read(marked);
  draw->DrawLine({100, 120}, {200, 120});
  ASSERT_EQ(draw->SaveAs(marked), 0);
  const QByteArray second = Read(marked);
  draw.reset();
  const qsizetype added = second.size() - first.size();
  const auto zeroed = [&](qsizetype from, qsizetype count) {
    QByteArray bytes = second;
    for (qsizetype i = 0; i < count; ++i) bytes[first.size() + from + i] = '\0';
    return bytes;
  };
  for (const QByteArray& torn :
       {zeroed(0, added), zeroed(0, added / 2), zeroed(added / 2, added / 2), zeroed(40, 100),
        zeroed(added - 1, 1)}) {
    Write("Floor2-Marked.pdf", torn);
    PdfDraw after(files, engine);
    ASSERT_EQ(after.OpenFile(marked, ""), 0);
    if (torn.endsWith('\0') && torn.count('\0') == first.count('\0') + 1) continue;
    EXPECT_EQ(after.Marks().size(), 1U);
    EXPECT_EQ(Read(marked), first);
  }
}

TEST_F(PlanSave, WhatAnotherProgramDamagedIsNotCut) {
  Begin(2);
  const QByteArray whole = Read(marked);
  draw.reset();
  for (const QByteArray& junk : {QByteArray("<!-- mail gateway -->"), QByteArray(3000, 'j')}) {
    Write("Floor2-Marked.pdf", whole + junk);
    PdfDraw after(files, engine);
    ASSERT_EQ(after.OpenFile(marked, ""), 0);
    EXPECT_EQ(Read(marked), whole + junk);
    EXPECT_EQ(after.Marks().size(), 1U);
  }
  const QByteArray foreign = MakePdf({PdfPage()});
  Write("other.pdf", foreign + QByteArray(512, '\0'));
  PdfDraw after(files, engine);
  ASSERT_EQ(after.OpenFile(Path("other.pdf"), ""), 0);
  EXPECT_EQ(Read(Path("other.pdf")).size(), foreign.size() + 512);
}

TEST_F(PlanSave, EveryStepOfASaveMayFailAndTheOldStateStays) {
  Begin(2);
  const QByteArray before = Read(marked);
  for (int step = 1; step <= 8; ++step) {
    for (const int error : {kDiskFull, kNoAccess, kFileOther}) {
      draw = std::make_unique<PdfDraw>(files, engine);
      Write("Floor2-Marked.pdf", before);
      ASSERT_EQ(draw->OpenFile(marked, ""), 0);
      draw->DrawLine({100, 120}, {200, 120});
      disk.ResetSteps();
      disk.FailStep(step, error);
      const int result = draw->SaveAs(marked);
      disk.FailStep(0, 0);
      if (result != 0) {
        EXPECT_EQ(result, error);
        EXPECT_FALSE(draw->Problem().isEmpty());
        EXPECT_TRUE(draw->HasUnsavedMarks());
        EXPECT_EQ(draw->Marks().size(), 2U);
        const size_t onDisk = MarksOnDisk();
        EXPECT_TRUE(onDisk == 1U || onDisk == 2U);
        ASSERT_EQ(draw->SaveAs(marked), 0) << draw->Problem().toStdString();
      }
      EXPECT_EQ(MarksOnDisk(), 2U) << "step " << step << " error " << error;
      ExpectValid(marked);
    }
  }
}

TEST_F(PlanSave, EveryStepOfTheFirstCopyMayFailAndNothingHalfIsLeft) {
  for (int step = 1; step <= 10; ++step) {
    draw = std::make_unique<PdfDraw>(files, engine);
    QFile::remove(marked);
    ASSERT_EQ(draw->OpenFile(Write("Floor2.PDF", MakePdf({PdfPage()})), ""), 0);
    draw->DrawLine({100, 100}, {200, 100});
    disk.ResetSteps();
    disk.FailStep(step, kDiskFull);
    const int result = draw->SaveAs(marked);
    disk.FailStep(0, 0);
    if (result != 0) {
      EXPECT_EQ(result, kDiskFull);
      EXPECT_FALSE(QFileInfo::exists(marked)) << step;
      EXPECT_EQ(draw->ShownFile(), "Floor2.PDF");
      ASSERT_EQ(draw->SaveAs(marked), 0);
    }
    EXPECT_EQ(MarksOnDisk(), 1U) << step;
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 2) << step;
  }
}

TEST_F(PlanSave, AFullDiskAndADeniedFolderLeaveThePlanWhole) {
  Begin(2);
  const QByteArray before = Read(marked);
  draw->DrawLine({100, 120}, {200, 120});
  disk.SetFull(true);
  EXPECT_EQ(draw->SaveAs(marked), kDiskFull);
  disk.SetFull(false);
  disk.Deny(marked);
  EXPECT_EQ(draw->SaveAs(marked), kNoAccess);
  disk.Allow(marked);
  EXPECT_EQ(Read(marked), before);
  EXPECT_EQ(draw->SaveAs(Path("no/such-Marked.pdf")), kPathNotFound);
  EXPECT_EQ(draw->SaveAs(marked), 0);
  EXPECT_EQ(MarksOnDisk(), 2U);
}

TEST_F(PlanSave, APlanThatVanishesWhileItIsOpenIsWrittenAgain) {
  Begin(2);
  ASSERT_TRUE(QFile::remove(marked));
  ASSERT_TRUE(QFile::remove(Path("Floor2.PDF")));
  draw->DrawLine({100, 120}, {200, 120});
  ASSERT_EQ(draw->SaveAs(marked), 0) << draw->Problem().toStdString();
  EXPECT_EQ(MarksOnDisk(), 2U);
  ExpectValid(marked);
}

TEST_F(PlanSave, WhatAnotherProgramSavedMeanwhileIsKept) {
  Begin(2);
  {
    PdfDraw other(files, engine);
    ASSERT_EQ(other.OpenFile(marked, ""), 0);
    other.DrawLine({300, 300}, {400, 300});
    ASSERT_EQ(other.SaveAs(marked), 0);
  }
  draw->DrawLine({100, 120}, {200, 120});
  ASSERT_EQ(draw->SaveAs(marked), 0) << draw->Problem().toStdString();
  EXPECT_EQ(draw->Marks().size(), 3U);
  EXPECT_EQ(MarksOnDisk(), 3U);
  ExpectValid(marked);
}

TEST_F(PlanSave, ADamagedPlanIsRepairedIntoItsMarkedCopy) {
  QByteArray plan = MakePdf({PdfPage(), PdfPage()});
  const QString source = Write("broken.pdf", plan.left(plan.indexOf("\nxref\n")));
  ASSERT_EQ(draw->OpenFile(source, ""), 0) << draw->Problem().toStdString();
  EXPECT_EQ(draw->PageCount(), 2);
  draw->SetPage(2);
  draw->DrawLine({100, 120}, {200, 120});
  const std::weak_ptr<EnginePlan> damaged = draw->OpenedPlan();
  std::shared_ptr<EnginePlan> told;
  draw->onPageChanged = [&] { told = draw->OpenedPlan(); };
  ASSERT_EQ(draw->SaveAs(marked), 0) << draw->Problem().toStdString();
  EXPECT_EQ(draw->Page(), 2);
  EXPECT_EQ(told, draw->OpenedPlan()) << "whoever reads of the plan has to take the repaired one";
  EXPECT_NE(damaged.lock(), draw->OpenedPlan());
  draw->onPageChanged = nullptr;
  ExpectValid(marked);
  const QByteArray before = Read(marked);
  draw->DrawLine({100, 140}, {200, 140});
  ASSERT_EQ(draw->SaveAs(marked), 0);
  EXPECT_TRUE(Read(marked).startsWith(before));
  EXPECT_EQ(MarksOnDisk(), 2U);
  EXPECT_EQ(Read(source), plan.left(plan.indexOf("\nxref\n")));
}

TEST_F(PlanSave, ALongCopyTellsItsProgressUpToTheEnd) {
  Begin(2);
  QList<int> told;
  draw->onSaveProgress = [&](int perCent) { told.push_back(perCent); };
  ASSERT_EQ(draw->SaveAs(Path("again-Marked.pdf")), 0);
  if (!told.isEmpty()) {
    EXPECT_EQ(told.back(), 100);
  }
}

TEST(FileTail, AnAdditionIsWholeOnlyWithItsSum) {
  QByteArray plan = MakePdf({PdfPage()});
  QByteArray addition = QByteArray("\n") + kAdditionHead + "9 0 obj\nnull\nendobj\n";
  SealAddition(addition, plan.size(), plan.size() + 20);
  EXPECT_FALSE(ReadTail(MemoryReader(plan + addition)).torn);
  QByteArray broken = plan + addition;
  broken[plan.size() + 15] = 'X';
  const FileTail tail = ReadTail(MemoryReader(broken));
  EXPECT_TRUE(tail.torn);
  EXPECT_EQ(tail.whole, plan.size());
  EXPECT_FALSE(ReadTail(MemoryReader(QByteArray())).torn);
  EXPECT_FALSE(ReadTail(MemoryReader(QByteArray(5000, 'x'))).torn);
  EXPECT_FALSE(ReadTail(MemoryReader(QByteArray(5000, '\0'))).torn);
}
