#include <cmath>

#include "plans/planfixture.h"

// Polylines, areas, cut-outs and perimeters: drawn, refused, kept in the plan.

using namespace tamo;
using namespace tamo::test;

namespace {

using Points = std::vector<PagePoint>;

const Points kHall = {{100, 100}, {300, 100}, {300, 200}, {100, 200}};

// Places in feet at a quarter inch: 18 points a foot.
struct Outlines : PlanFixture {
  QStringList refusals;

  void Begin(const QByteArray& page = "/MediaBox[0 0 612 792]") {
    draw = std::make_unique<PdfDraw>(files, engine);
    ASSERT_EQ(draw->OpenFile(Write("a.pdf", MakePdf({{page, "q Q"}})), ""), 0);
    Listen();
  }
  void Listen() {
    draw->onLineMeasured = [](double& length, QString& label) {
      length *= 4;
      label = "feet @ 1/4\"=1'";
    };
    draw->onAreaMeasured = [](double& area, QString& label) {
      area *= 16;
      label = "sq ft @ 1/4\"=1'";
    };
    draw->onToolRefused = [this](const QString& why) {
      if (!why.isEmpty()) refusals << why;
    };
  }
  std::string LastLabel() { return draw->Marks().at(0).label.toStdString(); }
};

}  // namespace

TEST_F(Outlines, EachToolMakesItsMark) {
  Begin();
  draw->DrawOutline(PlanTool::Polyline, {{100, 100}, {190, 100}, {190, 190}});
  EXPECT_EQ(draw->Marks()[0].kind, Mark::Kind::Polyline);
  EXPECT_EQ(LastLabel(), "10.0 feet @ 1/4\"=1'");
  draw->DrawOutline(PlanTool::Area, kHall);
  EXPECT_EQ(draw->Marks()[0].kind, Mark::Kind::Area);
  EXPECT_EQ(LastLabel(), "61.7 sq ft @ 1/4\"=1'");
  draw->DrawOutline(PlanTool::CutOut, {{120, 120}, {138, 120}, {138, 138}, {120, 138}});
  EXPECT_EQ(draw->Marks()[0].kind, Mark::Kind::CutOut);
  EXPECT_EQ(LastLabel(), "-1.0 sq ft @ 1/4\"=1'");
  draw->DrawOutline(PlanTool::Perimeter, kHall);
  EXPECT_EQ(LastLabel(), "33.3 feet @ 1/4\"=1'");
  draw->DrawOutline(PlanTool::Rectangle, {{400, 400}, {436, 418}});
  EXPECT_EQ(draw->Marks()[0].kind, Mark::Kind::Area);
  EXPECT_EQ(draw->Marks()[0].points.size(), 4U);
  EXPECT_EQ(LastLabel(), "2.0 sq ft @ 1/4\"=1'");
  EXPECT_TRUE(refusals.isEmpty()) << refusals.join(' ').toStdString();
}

TEST_F(Outlines, WithTheKeysAlone) {
  Begin();
  draw->PickTool(PlanTool::Area);
  const auto press = [&](PlanKey key) { draw->Key({key, false, false}); };
  press(PlanKey::Space);
  for (int i = 0; i < 4; ++i) press(PlanKey::Right);
  press(PlanKey::Space);
  press(PlanKey::Down);
  press(PlanKey::Space);
  press(PlanKey::Backspace);
  for (int i = 0; i < 3; ++i) press(PlanKey::Down);
  press(PlanKey::Space);
  ASSERT_TRUE(draw->OutlineInWork().has_value());
  press(PlanKey::Enter);
  ASSERT_EQ(draw->Marks().size(), 1U);
  EXPECT_EQ(draw->Marks()[0].points.size(), 3U);
  EXPECT_EQ(LastLabel(), "2.0 sq ft @ 1/4\"=1'") << "36 by 36 points, halved";
  press(PlanKey::Space);
  press(PlanKey::Escape);
  EXPECT_FALSE(draw->OutlineInWork().has_value());
  EXPECT_EQ(draw->Marks().size(), 1U);
}

TEST_F(Outlines, WithTheMouse) {
  Begin();
  const auto click = [&](PagePoint at) {
    draw->Press(at, false);
    draw->Release(at, false);
  };
  draw->PickTool(PlanTool::Area);
  click({100, 100});
  click({190, 100});
  draw->Move({190, 150}, true);
  EXPECT_EQ(draw->OutlineInWork()->points.size(), 3U);
  click({190, 190});
  click({100, 100});
  EXPECT_EQ(draw->Marks().size(), 1U) << "a press on the first point closes it";
  draw->Press({300, 300}, false);
  draw->Release({390, 345}, false);
  ASSERT_EQ(draw->Marks().size(), 2U) << "a drag is a rectangle";
  EXPECT_EQ(LastLabel(), "12.5 sq ft @ 1/4\"=1'");
  draw->PickTool(PlanTool::Polyline);
  click({100, 400});
  click({190, 400});
  draw->DoubleClick({190, 400}, false);
  EXPECT_EQ(draw->Marks()[0].points.size(), 2U);
  EXPECT_EQ(LastLabel(), "5.0 feet @ 1/4\"=1'");
  click({100, 500});
  draw->PickTool(PlanTool::None);
  EXPECT_FALSE(draw->OutlineInWork().has_value()) << "another tool drops what is in work";
  EXPECT_EQ(draw->Marks().size(), 3U);
}

TEST_F(Outlines, AnArcByThreePoints) {
  Begin();
  draw->PickTool(PlanTool::Polyline);
  draw->Press({100, 100}, false);
  draw->Key({PlanKey::Arc, false, false});
  draw->Press({190, 190}, false);
  draw->Key({PlanKey::Enter, false, false});
  EXPECT_EQ(refusals.size(), 1) << "the arc has no end yet";
  draw->Press({280, 100}, false);
  draw->Key({PlanKey::Enter, false, false});
  ASSERT_EQ(draw->Marks().size(), 1U);
  EXPECT_EQ(LastLabel(), "15.7 feet @ 1/4\"=1'") << "half a circle of 5 feet";
}

TEST_F(Outlines, WhatHasNoSizeIsRefusedAndCanBeMended) {
  Begin();
  draw->DrawOutline(PlanTool::Area, {{100, 100}, {200, 200}, {200, 100}, {100, 200}});
  EXPECT_TRUE(draw->Marks().empty());
  ASSERT_EQ(refusals.size(), 1);
  EXPECT_TRUE(refusals[0].contains("crosses"));
  draw->Key({PlanKey::Backspace, false, false});
  draw->Key({PlanKey::Enter, false, false});
  EXPECT_EQ(draw->Marks().size(), 1U);
  for (const Points& bad : {Points{{10, 10}}, Points{{10, 10}, {20, 20}},
                            Points{{10, 10}, {20, 20}, {30, 30}}, Points{{10, 10}, {10, 10}}}) {
    refusals.clear();
    draw->DrawOutline(PlanTool::Perimeter, bad);
    EXPECT_EQ(refusals.size(), 1);
  }
  draw->DrawOutline(PlanTool::Polyline, {{NAN, 10}, {20, 20}});
  draw->DrawOutline(PlanTool::Polyline, {});
  EXPECT_EQ(draw->Marks().size(), 1U);
}

TEST_F(Outlines, ACutOutLiesInOneAreaAndOnceOnly) {
  Begin();
  const Points shaft = {{120, 120}, {138, 120}, {138, 138}, {120, 138}};
  draw->DrawOutline(PlanTool::CutOut, shaft);
  EXPECT_TRUE(draw->Marks().empty()) << "there is no area yet";
  draw->DrawOutline(PlanTool::Area, kHall);
  draw->DrawOutline(PlanTool::CutOut, {{290, 120}, {330, 120}, {330, 160}});
  EXPECT_EQ(draw->Marks().size(), 1U) << "over the edge";
  draw->DrawOutline(PlanTool::CutOut, shaft);
  EXPECT_EQ(draw->Marks().size(), 2U);
  draw->DrawOutline(PlanTool::CutOut, {{130, 130}, {160, 130}, {160, 160}, {130, 160}});
  EXPECT_EQ(draw->Marks().size(), 3U) << "beside it, a corner of both shared";
  draw->DrawOutline(PlanTool::CutOut, shaft);
  EXPECT_EQ(draw->Marks().size(), 3U);
  EXPECT_TRUE(refusals.back().contains("already"));
}

TEST_F(Outlines, ComeBackFromTheFileOnEveryKindOfPage) {
  for (const char* page : {"/MediaBox[0 0 612 792]", "/MediaBox[0 0 612 792]/Rotate 90",
                           "/MediaBox[50 60 662 852]/CropBox[60 70 600 800]/Rotate 270",
                           "/MediaBox[0 0 306 396]/UserUnit 2/Rotate 180"}) {
    Begin(page);
    draw->SetMarkColour("255000000");
    draw->SetMarkWidth(2.25);
    draw->DrawOutline(PlanTool::Area, kHall);
    draw->DrawOutline(PlanTool::CutOut, {{120, 120}, {140, 120}, {130, 160}});
    draw->DrawOutline(PlanTool::Perimeter, {{100, 250}, {200, 250}, {150, 300}});
    draw->DrawOutline(PlanTool::Polyline, {{100, 350}, {150, 330}, {200, 350}, {250, 330}});
    const std::vector<Mark> drawn = draw->Marks();
    const QString marked = Path("a-Marked.pdf");
    ASSERT_EQ(draw->SaveAs(marked), 0) << draw->Problem().toStdString();
    ExpectValid(marked);
    Reopen(marked);
    const std::vector<Mark> read = draw->Marks();
    ASSERT_EQ(read.size(), 4U) << page;
    for (size_t i = 0; i < 4; ++i) {
      EXPECT_EQ(read[i].kind, drawn[i].kind) << page;
      EXPECT_EQ(read[i].label, drawn[i].label);
      EXPECT_EQ(read[i].colour, "255000000");
      EXPECT_NEAR(read[i].width, 2.25, 0.001);
      ASSERT_EQ(read[i].points.size(), drawn[i].points.size());
      for (size_t p = 0; p < read[i].points.size(); ++p)
        EXPECT_NEAR(Distance(read[i].points[p], drawn[i].points[p]), 0, 0.001) << page;
    }
    draw->DeleteMark(3);
    ASSERT_EQ(draw->SaveAs(marked), 0);
    ExpectValid(marked);
    Reopen(marked);
    EXPECT_EQ(draw->Marks().size(), 3U);
  }
}

TEST_F(Outlines, OtherProgramsShowThemWithALightFill) {
  for (const char* page : {"/MediaBox[0 0 612 792]", "/MediaBox[0 0 612 792]/Rotate 90"}) {
    Begin(page);
    draw->SetMarkColour("255000000");
    draw->SetMarkWidth(3);
    draw->DrawOutline(PlanTool::Area, kHall);
    draw->DrawOutline(PlanTool::Polyline, {{100, 350}, {150, 330}, {200, 350}});
    const QString marked = Path("a-Marked.pdf");
    ASSERT_EQ(draw->SaveAs(marked), 0);
    int width = 0;
    int height = 0;
    const QByteArray pixels = Painted(marked, 1, width, height);
    if (pixels.isEmpty()) GTEST_SKIP() << "pdftoppm is not here";
    for (const PagePoint edge : {PagePoint{200, 100}, PagePoint{300, 150}, PagePoint{100, 150},
                                 PagePoint{200, 200}, PagePoint{150, 330}})
      EXPECT_TRUE(RedNear(pixels, width, height, edge)) << page << ' ' << edge.x << ' ' << edge.y;
    const auto* inside = reinterpret_cast<const unsigned char*>(pixels.constData()) +
                         3 * (qsizetype(115) * width + 110);
    EXPECT_EQ(inside[0], 255);
    EXPECT_NEAR(inside[1], 217, 4) << "a seventh of the colour lies over the plan";
    EXPECT_FALSE(RedNear(pixels, width, height, {150, 350})) << "a polyline is not closed";
  }
}

TEST_F(Outlines, DamagedMarksAreLeftAloneAndKept) {
  PdfOptions options;
  const char* bad[] = {"/Vertices[1 2 3]", "/Vertices[1 2 3 4]", "/Vertices[1 2 3 4 (x) 6]", "",
                       "/Vertices 7"};
  QByteArray list;
  for (const char* places : bad) {
    options.more.push_back(
        QByteArray("<</Type/Annot/Subtype/Polygon/Rect[9 9 50 50]/NM(tamo-000001-0"
                   "0000001)/Contents(5.0 sq ft)") +
        places + ">>");
    list += QByteArray::number(4 + int(options.more.size())) + " 0 R ";
  }
  const QByteArray page = "/MediaBox[0 0 612 792]/Annots[" + list + "]";
  ASSERT_EQ(draw->OpenFile(Write("a.pdf", MakePdf({{page, "q Q"}}, options)), ""), 0);
  EXPECT_TRUE(draw->Marks().empty());
  draw->DrawLine({100, 100}, {200, 100});
  ASSERT_EQ(draw->SaveAs(Path("a-Marked.pdf")), 0) << draw->Problem().toStdString();
  const QByteArray saved = Read(Path("a-Marked.pdf"));
  EXPECT_TRUE(saved.mid(saved.lastIndexOf("%TamoMarks")).contains("/Annots[" + list.trimmed()));
}

TEST_F(Outlines, AForeignPolygonIsNoMark) {
  PdfOptions options;
  options.more = {
      "<</Type/Annot/Subtype/Polygon/Rect[9 9 50 50]/NM(other)/Vertices[9 9 50 9 50 50]>>"};
  ASSERT_EQ(
      draw->OpenFile(
          Write("a.pdf", MakePdf({{"/MediaBox[0 0 612 792]/Annots[5 0 R]", "q Q"}}, options)), ""),
      0);
  EXPECT_TRUE(draw->Marks().empty());
}
