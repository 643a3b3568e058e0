#include <algorithm>

#include "plans/ostfixture.h"

// Marks belong to their plan: what happens to those that are not saved when another plan comes up.

namespace tamo::test {
namespace {

class LeftMarks : public OstTest {
 protected:
  LeftMarks() { Put("Jobs/b.pdf"); }
  void Pick(const char* plan) {
    ost.PlanLocation.SetText(Path(plan));
    desk.Dispatch([this] { ost.LoadPDF(); });
  }
  void Draw(double y) { viewer.DrawLine({100, y}, {200, y}); }
  size_t MarksIn(const QString& path) {
    PdfDraw other(files, engine);
    return other.OpenFile(path, {}) == 0 ? other.Marks().size() : 0;
  }
  bool Waits(const QString& path) const {
    const auto& saves = files.PendingSaves();
    return std::any_of(saves.begin(), saves.end(),
                       [&](const Files::Pending& save) { return save.path == path; });
  }
  QString copyOfA = Path("Tamo/Projects/00-2112002/Plans/a-Marked.pdf");
};

TEST_F(LeftMarks, DrawnAndNotSavedAreSavedWhenAnotherPlanComesUp) {
  Pick("Jobs/a.pdf");
  Draw(100);
  Pick("Jobs/b.pdf");
  EXPECT_EQ(viewer.Marks().size(), 0U);
  EXPECT_EQ(MarksIn(copyOfA), 1U);
  EXPECT_EQ(files.Notice(), "");
}

TEST_F(LeftMarks, GoIntoTheProjectTheyWereDrawnFor) {
  Pick("Jobs/a.pdf");
  Draw(100);
  shared.JobID = QStringLiteral("00-2112003");
  QDir().mkpath(Path("Tamo/Projects/00-2112003/Plans"));
  Pick("Jobs/b.pdf");
  EXPECT_EQ(MarksIn(copyOfA), 1U);
  EXPECT_FALSE(disk.Exists(Path("Tamo/Projects/00-2112003/Plans/a-Marked.pdf")));
}

TEST_F(LeftMarks, AreAddedToACopyThatHasSome) {
  Pick("Jobs/a.pdf");
  Draw(100);
  desk.Dispatch([this] { ost.Save(); });
  Pick("Jobs/a.pdf");
  Draw(120);
  Pick("Jobs/b.pdf");
  EXPECT_EQ(MarksIn(copyOfA), 2U);
}

TEST_F(LeftMarks, ThatWaitForTheDiskWaitWithTheirPlanAndAreSavedLater) {
  Pick("Jobs/a.pdf");
  Draw(100);
  disk.SetFull(true);
  desk.Dispatch([this] { ost.Save(); });
  Pick("Jobs/b.pdf");
  Draw(140);
  Draw(150);
  EXPECT_TRUE(Waits(copyOfA));
  disk.SetFull(false);
  EXPECT_TRUE(files.TryAgain());
  EXPECT_EQ(MarksIn(copyOfA), 1U);
  EXPECT_EQ(viewer.Marks().size(), 2U) << "the plan on the screen has its own";
}

TEST_F(LeftMarks, ComeBackWithTheirPlan) {
  Pick("Jobs/a.pdf");
  Draw(100);
  disk.SetFull(true);
  desk.Dispatch([this] { ost.Save(); });
  Pick("Jobs/b.pdf");
  EXPECT_EQ(viewer.Marks().size(), 0U);
  ost.PlanLocation.SetText(copyOfA);
  desk.Dispatch([this] { ost.LoadPDF(); });
  EXPECT_EQ(viewer.Marks().size(), 1U);
  disk.SetFull(false);
  Draw(120);
  desk.Dispatch([this] { ost.Save(); });
  EXPECT_FALSE(Waits(copyOfA));
  EXPECT_EQ(MarksIn(copyOfA), 2U);
}

TEST_F(LeftMarks, AreSavedAtTheEnd) {
  Pick("Jobs/a.pdf");
  Draw(100);
  ost.SaveMarks();
  EXPECT_EQ(MarksIn(copyOfA), 1U);
}

TEST_F(LeftMarks, WithoutAProjectStayWithTheirPlan) {
  shared.JobID.clear();
  Pick("Jobs/a.pdf");
  Draw(100);
  Pick("Jobs/b.pdf");
  EXPECT_EQ(viewer.Marks().size(), 0U);
  Pick("Jobs/a.pdf");
  EXPECT_EQ(viewer.Marks().size(), 1U);
}

TEST_F(LeftMarks, NothingIsWrittenIntoAProjectThatIsOnlyRead) {
  shared.ReadOnly = QStringLiteral("Another program has it.");
  Pick("Jobs/a.pdf");
  Draw(100);
  Pick("Jobs/b.pdf");
  EXPECT_FALSE(disk.Exists(copyOfA));
  Pick("Jobs/a.pdf");
  EXPECT_EQ(viewer.Marks().size(), 1U) << "they stay with their plan";
  // Nor when another project is in force by then, which may be written.
  shared.JobID = QStringLiteral("00-2112003");
  shared.ReadOnly.clear();
  QDir().mkpath(Path("Tamo/Projects/00-2112003/Plans"));
  Pick("Jobs/b.pdf");
  EXPECT_FALSE(disk.Exists(copyOfA));
  Pick("Jobs/b.pdf");
  ost.SaveMarks();
  EXPECT_FALSE(disk.Exists(copyOfA));
}

TEST_F(LeftMarks, AProjectThatBecameFreeIsWritten) {
  shared.ReadOnly = QStringLiteral("Another program has it.");
  Pick("Jobs/a.pdf");
  Draw(100);
  shared.ReadOnly.clear();
  ost.FollowMarks(1);
  Pick("Jobs/b.pdf");
  EXPECT_EQ(MarksIn(copyOfA), 1U);
}

TEST_F(LeftMarks, AChangeOfAMarkWritesThePlanAndNotTheRecord) {
  Pick("Jobs/a.pdf");
  Draw(100);
  viewer.PickTool(PlanTool::None);
  viewer.Hand().Step(1);
  viewer.Hand().Rename("North");
  EXPECT_EQ(keeper.record.planLocation, copyOfA) << "the plan became the project's";
  keeper.saves = 0;
  viewer.Hand().Rename("South");
  EXPECT_EQ(keeper.saves, 0) << "a locked project has nothing to complain of";
  EXPECT_FALSE(viewer.HasUnsavedMarks());
}

// The project has a copy with marks, and somebody picks the plan that it was made from again.
TEST_F(LeftMarks, ASaveOverACopyThatHasSomeKeepsThem) {
  Pick("Jobs/a.pdf");
  Draw(100);
  desk.Dispatch([this] { ost.SaveIt(); });
  Pick("Jobs/b.pdf");
  Pick("Jobs/a.pdf");
  ASSERT_EQ(viewer.ShownPath(), Path("Jobs/a.pdf"));
  Draw(120);
  desk.Dispatch([this] { ost.SaveIt(); });
  EXPECT_EQ(MarksIn(copyOfA), 2U);
  EXPECT_EQ(viewer.Marks().size(), 2U);
  EXPECT_EQ(ost.PlanLocation.Text(), copyOfA);
  EXPECT_FALSE(viewer.HasUnsavedMarks());
}

TEST_F(LeftMarks, ThoseForACopyThatHasSomeWaitForTheDiskToo) {
  Pick("Jobs/a.pdf");
  Draw(100);
  desk.Dispatch([this] { ost.SaveIt(); });
  Pick("Jobs/b.pdf");
  Pick("Jobs/a.pdf");
  Draw(120);
  disk.SetFull(true);
  Pick("Jobs/b.pdf");
  EXPECT_TRUE(Waits(copyOfA)) << "it is said that they are not saved";
  disk.SetFull(false);
  EXPECT_TRUE(files.TryAgain());
  EXPECT_EQ(MarksIn(copyOfA), 2U);
}

// A copy of another drawing of that name is no copy of this plan: it is replaced.
TEST_F(LeftMarks, AnotherDrawingOfTheSameNameTakesItsPlace) {
  Pick("Jobs/a.pdf");
  Draw(100);
  desk.Dispatch([this] { ost.SaveIt(); });
  Pick("Jobs/b.pdf");
  Put("Other/a.pdf", "%PDF-1.5 another drawing\n");
  Pick("Other/a.pdf");
  Draw(120);
  desk.Dispatch([this] { ost.SaveIt(); });
  EXPECT_EQ(MarksIn(copyOfA), 1U);
}

}  // namespace
}  // namespace tamo::test
