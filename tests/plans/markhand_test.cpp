#include <cmath>

#include "plans/marklabel.h"
#include "plans/planfixture.h"

// A mark is chosen and changed: moved by its points, named, coloured, removed; kept in the plan.

using namespace tamo;
using namespace tamo::test;

namespace {

// At a quarter inch a foot is 18 points.
struct ChosenMarks : PlanFixture {
  QString told;
  int edits = 0;

  void Begin(const QByteArray& page = "/MediaBox[0 0 612 792]") {
    Reopen(Write("a.pdf", MakePdf({{page, "q Q"}, {page, "q Q"}})));
    Listen();
  }
  void Listen() {
    const auto length = [](double& length, QString& label) {
      length *= 4;
      label = "feet @ 1/4\"=1'";
    };
    const auto area = [](double& area, QString& label) {
      area *= 16;
      label = "sq ft @ 1/4\"=1'";
    };
    draw->onLineMeasured = draw->onLineRunning = length;
    draw->onAreaMeasured = draw->onAreaRunning = area;
    draw->onToolRefused = [this](const QString& words) { told = words; };
    draw->onMarkEdited = [this] { ++edits; };
  }
  void Press(PlanKey key, bool ctrl = false) { draw->Key({key, false, ctrl}); }
  void Click(PagePoint at) {
    draw->Press(at, false);
    draw->Release(at, false);
  }
  void Drag(PagePoint from, PagePoint to) {
    draw->Press(from, false);
    draw->Move(to, false);
    draw->Release(to, false);
  }
  void DrawLine(PagePoint from, PagePoint to) {
    draw->DrawLine(from, to);
    draw->PickTool(PlanTool::None);
  }
  std::string Chosen() {
    const Mark* mark = draw->Hand().Chosen();
    return mark == nullptr ? "none" : mark->label.toStdString();
  }
  int Count(const QByteArray& what, const QString& path) { return int(Read(path).count(what)); }
};

}  // namespace

TEST_F(ChosenMarks, AClickChoosesAndAClickBesideLetsGo) {
  Begin();
  DrawLine({100, 100}, {280, 100});
  DrawLine({100, 300}, {190, 300});
  EXPECT_EQ(Chosen(), "none");
  Click({150, 102});
  EXPECT_EQ(Chosen(), "10.0 feet @ 1/4\"=1'");
  EXPECT_TRUE(told.contains("Line on sheet 1: 10.0 feet")) << told.toStdString();
  Click({150, 298});
  EXPECT_EQ(Chosen(), "5.0 feet @ 1/4\"=1'");
  Click({400, 400});
  EXPECT_EQ(Chosen(), "none");
  EXPECT_EQ(draw->Marks().size(), 2U);
  EXPECT_EQ(edits, 0) << "choosing changes nothing";
}

TEST_F(ChosenMarks, OfTwoInOnePlaceEachClickTakesTheNext) {
  Begin();
  DrawLine({100, 100}, {280, 100});
  DrawLine({100, 100}, {190, 100});
  Click({120, 100});
  const std::string first = Chosen();
  draw->Hand().Pulled();
  Click({120, 100});
  EXPECT_NE(Chosen(), first);
  Click({120, 100});
  EXPECT_EQ(Chosen(), first);
}

TEST_F(ChosenMarks, AnAreaIsChosenInsideAndWhatLiesInItFirst) {
  Begin();
  draw->DrawOutline(PlanTool::Area, {{100, 100}, {300, 100}, {300, 200}, {100, 200}});
  DrawLine({120, 120}, {210, 120});
  Click({160, 121});
  EXPECT_EQ(Chosen(), "5.0 feet @ 1/4\"=1'");
  Click({250, 180});
  EXPECT_EQ(Chosen(), "61.7 sq ft @ 1/4\"=1'");
}

TEST_F(ChosenMarks, NAndPStepThroughAllSheets) {
  Begin();
  DrawLine({100, 100}, {280, 100});
  DrawLine({100, 200}, {190, 200});
  draw->SetPage(2);
  DrawLine({100, 100}, {136, 100});
  draw->SetPage(1);
  QStringList walked;
  for (int i = 0; i < 4; ++i) {
    Press(PlanKey::No);
    walked << QString::fromStdString(Chosen()).section(' ', 0, 0) +
                  QString(" %1").arg(draw->Page());
  }
  EXPECT_EQ(walked.join(", ").toStdString(), "10.0 1, 5.0 1, 2.0 2, 10.0 1");
  Press(PlanKey::MarkBefore);
  EXPECT_EQ(draw->Page(), 2);
  Press(PlanKey::Escape);
  EXPECT_EQ(Chosen(), "none");
  Press(PlanKey::No);
  EXPECT_EQ(Chosen(), "2.0 feet @ 1/4\"=1'") << "from the sheet in sight on";
}

TEST_F(ChosenMarks, WithoutMarksThatIsSaid) {
  Begin();
  Press(PlanKey::No);
  EXPECT_EQ(told.toStdString(), "There are no marks on this plan.");
}

TEST_F(ChosenMarks, ALineInWorkIsNotGivenUpForAnotherMark) {
  Begin();
  DrawLine({100, 100}, {280, 100});
  draw->PickTool(PlanTool::Area);
  Click({300, 300});
  Press(PlanKey::No);
  EXPECT_TRUE(draw->OutlineInWork().has_value());
  EXPECT_EQ(Chosen(), "none");
  EXPECT_TRUE(told.contains("give it up")) << told.toStdString();
}

TEST_F(ChosenMarks, APointIsDraggedAndTheMeasureFollowsAtTheScaleOfTheMark) {
  Begin();
  DrawLine({100, 100}, {280, 100});
  // Another scale is in force by now.
  draw->onLineRunning = draw->onLineMeasured = [](double& length, QString& label) {
    length *= 8;
    label = "feet @ 1/8\"=1'";
  };
  Click({200, 100});
  Drag({280, 100}, {190, 100});
  EXPECT_EQ(Chosen(), "5.0 feet @ 1/4\"=1'");
  EXPECT_EQ(draw->Marks()[0].points[1], (PagePoint{190, 100}));
  EXPECT_EQ(edits, 1);
  Press(PlanKey::Undo);
  EXPECT_EQ(Chosen(), "10.0 feet @ 1/4\"=1'");
  Press(PlanKey::Redo);
  EXPECT_EQ(Chosen(), "5.0 feet @ 1/4\"=1'");
}

TEST_F(ChosenMarks, WithTheKeysAlone) {
  Begin();
  DrawLine({100, 100}, {280, 100});
  Press(PlanKey::No);
  Press(PlanKey::Right);
  EXPECT_EQ(draw->ViewValue(ViewPart::Horizontal), 36) << "no point in hand: the sheet is scrolled";
  Press(PlanKey::NextSnap);
  Press(PlanKey::NextSnap);
  EXPECT_EQ(draw->Hand().Point(), 1);
  for (int i = 0; i < 2; ++i) Press(PlanKey::Right);
  EXPECT_EQ(Chosen(), "11.0 feet @ 1/4\"=1'");
  Press(PlanKey::Left, true);
  EXPECT_EQ(draw->Marks()[0].points[1].x, 297.5);
  Press(PlanKey::Undo);
  EXPECT_EQ(Chosen(), "10.0 feet @ 1/4\"=1'") << "steps of the arrows are taken back together";
  Press(PlanKey::Delete);
  EXPECT_TRUE(draw->Marks().empty());
  Press(PlanKey::Undo);
  EXPECT_EQ(draw->Marks().size(), 1U);
}

TEST_F(ChosenMarks, AnOutlineThatWouldCrossItselfStaysAsItWas) {
  Begin();
  draw->DrawOutline(PlanTool::Area, {{100, 100}, {300, 100}, {300, 200}, {100, 200}});
  draw->PickTool(PlanTool::None);
  Click({200, 150});
  Drag({100, 100}, {400, 150});
  EXPECT_EQ(draw->Marks()[0].points[0], (PagePoint{100, 100}));
  EXPECT_TRUE(told.contains("crosses")) << told.toStdString();
  EXPECT_TRUE(told.endsWith("The mark stays as it was.")) << told.toStdString();
  EXPECT_EQ(edits, 0);
}

TEST_F(ChosenMarks, ACutOutStaysInItsArea) {
  Begin();
  draw->DrawOutline(PlanTool::Area, {{100, 100}, {300, 100}, {300, 200}, {100, 200}});
  draw->DrawOutline(PlanTool::CutOut, {{250, 120}, {268, 120}, {268, 138}, {250, 138}});
  draw->PickTool(PlanTool::None);
  Click({251, 121});
  Drag({268, 138}, {330, 138});
  EXPECT_TRUE(told.contains("lies in none")) << told.toStdString();
  Drag({268, 138}, {286, 138});
  EXPECT_EQ(Chosen(), "-1.5 sq ft @ 1/4\"=1'");
  Click({110, 190});
  Drag({300, 200}, {200, 200});
  EXPECT_TRUE(told.contains("outside of its area")) << told.toStdString();
}

TEST_F(ChosenMarks, NameAndColourComeBackFromThePlan) {
  Begin();
  draw->SetMarkColour("255000000");
  DrawLine({100, 100}, {280, 100});
  draw->PlaceCircle({300, 300});
  draw->PickTool(PlanTool::None);
  ASSERT_EQ(draw->SaveAs(Path("b.pdf")), 0);
  Click({200, 100});
  draw->Hand().Rename("  North \n wall (ä) ");
  draw->Hand().Recolour("000000255");
  draw->Hand().Recolour("no colour");
  Click({300, 300});
  Drag({303, 300}, {403, 300});
  ASSERT_EQ(draw->SaveAs(Path("b.pdf")), 0);
  ExpectValid(Path("b.pdf"));
  Reopen(Path("b.pdf"));
  ASSERT_EQ(draw->Marks().size(), 2U);
  const Mark line = draw->Marks()[1];
  EXPECT_EQ(line.title.toStdString(), "North wall (ä)");
  EXPECT_EQ(line.colour, "000000255");
  EXPECT_EQ(line.label.toStdString(), "10.0 feet @ 1/4\"=1'") << "the measure is read without it";
  EXPECT_NEAR(draw->Marks()[0].points[0].x, 400, 0.01);
}

TEST_F(ChosenMarks, AChangedMarkStaysTheSameAnnotation) {
  Begin();
  DrawLine({100, 100}, {280, 100});
  DrawLine({100, 200}, {280, 200});
  ASSERT_EQ(draw->SaveAs(Path("b.pdf")), 0);
  const qint64 before = Read(Path("b.pdf")).size();
  Click({200, 100});
  Drag({280, 100}, {190, 100});
  ASSERT_TRUE(draw->HasUnsavedMarks());
  ASSERT_EQ(draw->SaveAs(Path("b.pdf")), 0);
  const QByteArray added = Read(Path("b.pdf")).mid(before);
  EXPECT_EQ(added.count("/Subtype/Line"), 1);
  EXPECT_EQ(added.count("/Type/Page/"), 0) << "its page is not written again";
  ExpectValid(Path("b.pdf"));
  Reopen(Path("b.pdf"));
  ASSERT_EQ(draw->Marks().size(), 2U);
  EXPECT_EQ(draw->Marks()[1].label.toStdString(), "5.0 feet @ 1/4\"=1'");
  EXPECT_FALSE(draw->HasUnsavedMarks());
}

TEST_F(ChosenMarks, TakenBackToWhatIsSavedThereIsNothingToSave) {
  Begin();
  DrawLine({100, 100}, {280, 100});
  ASSERT_EQ(draw->SaveAs(Path("b.pdf")), 0);
  Click({200, 100});
  draw->Hand().Rename("Wall");
  EXPECT_TRUE(draw->HasUnsavedMarks());
  Press(PlanKey::Undo);
  EXPECT_FALSE(draw->HasUnsavedMarks());
}

TEST_F(ChosenMarks, WhatOthersDrewIsNotChosenAndStays) {
  const QByteArray others =
      "/MediaBox[0 0 612 792]/Annots[<</Type/Annot/Subtype/Line/Rect[90 690 300 700]"
      "/L[100 692 280 692]/NM(other-1)/Contents(Not ours)>>]";
  Begin(others);
  Click({200, 100});
  EXPECT_EQ(Chosen(), "none");
  DrawLine({100, 200}, {280, 200});
  ASSERT_EQ(draw->SaveAs(Path("b.pdf")), 0);
  Click({200, 200});
  Press(PlanKey::Delete);
  ASSERT_EQ(draw->SaveAs(Path("b.pdf")), 0);
  ExpectValid(Path("b.pdf"));
  EXPECT_GE(Count("(Not ours)", Path("b.pdf")), 3) << "repeated with each page that is written";
}

TEST_F(ChosenMarks, HostileTextsOfAMarkAreCut) {
  const QByteArray page = "/MediaBox[0 0 612 792]/Annots[5 0 R 6 0 R]";
  const auto mark = [](int number, const QByteArray& more) {
    return "<</Type/Annot/Subtype/Line/Rect[90 690 300 700]/L[100 692 280 692]/NM(tamo-00000" +
           QByteArray::number(number) + "-00000001)/Contents(10.0 feet)" + more + ">>";
  };
  PdfOptions options;
  options.more = {mark(1, "/Tamo_Name(" + QByteArray(5000, 'x') + ")/Tamo_Entry(" +
                              QByteArray(9000, 'y') + ")"),
                  mark(2, "/Tamo_Name[1 2]/Tamo_Entry<</A 1>>")};
  Reopen(Write("a.pdf", MakePdf({{page, "q Q"}}, options)));
  ASSERT_EQ(draw->Marks().size(), 2U);
  EXPECT_EQ(draw->Marks()[1].title.size(), kLongestTitle);
  EXPECT_TRUE(draw->Marks()[1].kept.isEmpty());
  EXPECT_TRUE(draw->Marks()[0].title.isEmpty());
  EXPECT_TRUE(draw->Marks()[0].kept.isEmpty());
}

TEST_F(ChosenMarks, APlanReadAnewMayHaveTheMarkWithFewerPoints) {
  const auto plan = [](const QByteArray& places) {
    PdfOptions options;
    options.more = {
        "<</Type/Annot/Subtype/PolyLine/Rect[90 590 310 700]/Contents(5.0 feet)"
        "/NM(tamo-000001-00000001)/Vertices[" +
        places + "]>>"};
    return MakePdf({{"/MediaBox[0 0 612 792]/Annots[5 0 R]", "q Q"}}, options);
  };
  Reopen(Write("a.pdf", plan("100 692 200 692 200 592 300 592")));
  Listen();
  Press(PlanKey::No);
  for (int i = 0; i < 4; ++i) Press(PlanKey::NextSnap);
  ASSERT_EQ(draw->Hand().Point(), 3);
  // Another program takes two of its points away; a save reads what stands there now.
  Write("a.pdf", plan("100 692 200 692"));
  Mark other;
  other.points = {{10, 10}, {20, 10}};
  other.name = MarkName(7, 7);
  ASSERT_TRUE(draw->PutBack(other));
  ASSERT_EQ(draw->SaveAs(Path("a.pdf")), 0) << draw->Problem().toStdString();
  const Mark* chosen = draw->Hand().Chosen();
  ASSERT_NE(chosen, nullptr);
  ASSERT_EQ(chosen->points.size(), 2U);
  EXPECT_EQ(draw->Hand().Point(), -1);
  Press(PlanKey::Right);
  Press(PlanKey::NextSnap);
  EXPECT_EQ(draw->Hand().Point(), 0);
}

TEST_F(ChosenMarks, AnotherPlanHasNoneChosen) {
  Begin();
  DrawLine({100, 100}, {280, 100});
  ASSERT_EQ(draw->SaveAs(Path("b.pdf")), 0);
  Press(PlanKey::No);
  ASSERT_EQ(draw->OpenFile(Path("a.pdf"), ""), 0);
  ASSERT_EQ(draw->OpenFile(Path("b.pdf"), ""), 0);
  EXPECT_EQ(Chosen(), "none");
}

TEST_F(ChosenMarks, OnAnotherSheetItIsNeitherMovedNorRemovedByAKey) {
  Begin();
  DrawLine({100, 100}, {280, 100});
  Press(PlanKey::No);
  Press(PlanKey::NextSnap);
  draw->TurnPage(2);
  Press(PlanKey::Right);
  EXPECT_EQ(draw->Marks()[0].points[0], (PagePoint{100, 100}));
  EXPECT_EQ(draw->ViewValue(ViewPart::Horizontal), 36) << "the sheet in sight is scrolled";
  Press(PlanKey::Delete);
  EXPECT_EQ(draw->Marks().size(), 1U);
  EXPECT_TRUE(told.contains("stands on sheet 1")) << told.toStdString();
  draw->TurnPage(1);
  Press(PlanKey::Delete);
  EXPECT_EQ(draw->Marks().size(), 0U);
}

TEST_F(ChosenMarks, AStepOfTheArrowsJoinsNoStepThatWasTakenBackInBetween) {
  Begin();
  DrawLine({100, 100}, {280, 100});
  Click({200, 100});
  Drag({280, 100}, {262, 100});
  Press(PlanKey::Right);
  Press(PlanKey::Undo);
  EXPECT_EQ(draw->Marks()[0].points[1].x, 262);
  Press(PlanKey::Right);
  Press(PlanKey::Undo);
  EXPECT_EQ(draw->Marks()[0].points[1].x, 262) << "the drag is a step of its own";
  // At the edge nothing is changed, so that nothing is joined either.
  Drag({262, 100}, {612, 100});
  Press(PlanKey::Right);
  Press(PlanKey::Left);
  Press(PlanKey::Undo);
  EXPECT_EQ(draw->Marks()[0].points[1].x, 612);
}

TEST_F(ChosenMarks, WhatAnotherProgramDrewAskewIsStillNamedAndColoured) {
  const QByteArray page = "/MediaBox[0 0 612 792]/Annots[5 0 R]";
  PdfOptions options;
  options.more = {
      "<</Type/Annot/Subtype/Polygon/Rect[90 590 210 700]/NM(tamo-000001-00000001)/Subj(Area)"
      "/Contents(5.0 sq ft)/Vertices[100 692 200 592 200 692 100 592]>>"};
  Reopen(Write("a.pdf", MakePdf({{page, "q Q"}}, options)));
  Listen();
  Press(PlanKey::No);
  draw->Hand().Rename("Lobby");
  draw->Hand().Recolour("000000255");
  EXPECT_EQ(draw->Marks()[0].title, "Lobby");
  EXPECT_EQ(draw->Marks()[0].colour, "000000255");
  Press(PlanKey::NextSnap);
  Press(PlanKey::Up);
  EXPECT_TRUE(told.contains("The mark stays as it was.")) << told.toStdString();
}

TEST_F(ChosenMarks, HostileWidthsAndLabelsAreBrought) {
  const QByteArray page = "/MediaBox[0 0 612 792]/Annots[5 0 R 6 0 R]";
  const auto mark = [](int number, const QByteArray& more) {
    return "<</Type/Annot/Subtype/Polygon/Subj(Cut-out)/Rect[90 690 300 700]"
           "/Vertices[100 692 200 592 200 692]/NM(tamo-00000" +
           QByteArray::number(number) + "-00000001)" + more + ">>";
  };
  PdfOptions options;
  options.more = {mark(1, "/BS<</W 0>>/Contents(" + QByteArray(1000000, 'x') + ")"),
                  mark(2, "/BS<</W 99999999999999999999>>/Contents(nan feet)")};
  Reopen(Write("a.pdf", MakePdf({{page, "q Q"}}, options)));
  ASSERT_EQ(draw->Marks().size(), 2U);
  EXPECT_EQ(draw->Marks()[1].label.size(), kLongestMarkLabel);
  EXPECT_EQ(draw->Marks()[1].width, 0.75);
  EXPECT_EQ(draw->Marks()[0].width, 0.75);
  EXPECT_FALSE(draw->HasUnsavedMarks());
}

TEST_F(ChosenMarks, OnEveryTurnOfTheSheet) {
  for (const char* turn : {"", "/Rotate 90", "/Rotate 180/UserUnit 2", "/Rotate 270"}) {
    Begin(QByteArray("/MediaBox[0 0 612 792]") + turn);
    DrawLine({100, 100}, {280, 100});
    ASSERT_EQ(draw->SaveAs(Path("b.pdf")), 0);
    Click({200, 100});
    Drag({280, 100}, {280, 190});
    ASSERT_EQ(draw->SaveAs(Path("b.pdf")), 0);
    ExpectValid(Path("b.pdf"));
    Reopen(Path("b.pdf"));
    EXPECT_NEAR(draw->Marks()[0].points[1].x, 280, 0.01) << turn;
    EXPECT_NEAR(draw->Marks()[0].points[1].y, 190, 0.01) << turn;
    EXPECT_EQ(draw->Marks()[0].label.toStdString(), "11.2 feet @ 1/4\"=1'") << turn;
  }
}

TEST_F(ChosenMarks, TenThousandMarksAreSteppedThroughAtOnce) {
  Begin();
  for (int i = 0; i < 10000; ++i)
    draw->DrawLine({10.0 + i % 100 * 5, 10.0 + i / 100 * 7},
                   {13.0 + i % 100 * 5, 10.0 + i / 100 * 7});
  draw->PickTool(PlanTool::None);
  Press(PlanKey::No);
  Drag({13, 10}, {14, 10});
  EXPECT_EQ(draw->SaveAs(Path("b.pdf")), 0);
  Reopen(Path("b.pdf"));
  EXPECT_EQ(draw->Marks().size(), 10000U);
}

namespace {

TEST(MovedLabel, TheScaleOfEveryLabelIsRead) {
  EXPECT_NEAR(ScaleOfLabel("10.0 feet @ 1/4\"=1'").value_or(0), 1 / 18.0, 1e-12);
  EXPECT_NEAR(ScaleOfLabel("10.0 feet @ 1 1/2\"=1'").value_or(0), 1 / 108.0, 1e-12);
  EXPECT_NEAR(ScaleOfLabel("1,500.0 feet @ 1\"=20'").value_or(0), 20 / 72.0, 1e-12);
  EXPECT_NEAR(ScaleOfLabel("5.0 feet @ 1cm:5 feet").value_or(0), 5 * 2.54 / 72, 1e-12);
  EXPECT_NEAR(ScaleOfLabel("5.0 sq ft @ 1mm:5 feet").value_or(0), 5 * 25.4 / 72, 1e-12);
  for (const char* none : {"", "2.5 inches", "10.0 feet @ ", "10.0 feet @ x\"=1'",
                           "10.0 feet @ 1/0\"=1'", "10.0 feet @ 1\"=0'", "1.0 millimeter"})
    EXPECT_FALSE(ScaleOfLabel(QString::fromUtf8(none)).has_value()) << none;
}

TEST(MovedLabel, ALabelWithoutAScaleGoesOnInProportion) {
  Mark mark;
  mark.points = {{0, 0}, {180, 0}};
  mark.label = "2.5 inches";
  EXPECT_EQ(MovedLabel(mark, {{0, 0}, {360, 0}}, {}).toStdString(), "5.0 inches");
  const auto inForce = [](Mark::Kind, const std::vector<PagePoint>& points) {
    return LengthText(Distance(points[0], points[1]) / 72.0) + " inches";
  };
  EXPECT_EQ(MovedLabel(mark, {{0, 0}, {90, 0}}, inForce).toStdString(), "1.3 inches");
  mark.points = {{5, 5}, {5, 5}};
  mark.label = "0.0 inches";
  EXPECT_EQ(MovedLabel(mark, {{0, 0}, {90, 0}}, {}).toStdString(), "0.0 inches");
}

}  // namespace
