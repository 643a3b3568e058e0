#include "plans/countgroups.h"

#include "plans/planfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

Mark Circle(const QString& group, const QString& label, int page = 1, PagePoint at = {100, 100}) {
  Mark mark;
  mark.kind = Mark::Kind::Grouped;
  mark.page = page;
  mark.points = {at};
  mark.group = group;
  mark.label = label;
  return mark;
}

struct CountingInGroups : PlanFixture {
  std::vector<std::pair<QString, int>> told;

  void Listen() {
    draw->onGroupCountChanged = [this](const QString& group, int count) {
      told.emplace_back(group, count);
    };
  }
  void OpenTwoPages() {
    ASSERT_EQ(draw->OpenFile(Write("s.pdf", MakePdf({{}, {}})), ""), 0);
    Listen();
  }
  void Count(const QString& group, const std::vector<PagePoint>& places) {
    ASSERT_TRUE(draw->ChooseGroup(group));
    draw->PickTool(PlanTool::Grouping);
    for (const PagePoint at : places) {
      draw->Press(at, false);
      draw->Release(at, false);
    }
  }
  QStringList Labels() const {
    QStringList labels;
    for (const Mark& mark : draw->MarksAsDrawn()) labels += mark.label;
    return labels;
  }
};

}  // namespace

TEST(CountGroups, NamesAreOneLineAndNotLong) {
  EXPECT_EQ(GroupNameOf("  2x4\n Lights ").toStdString(), "2x4 Lights");
  EXPECT_EQ(GroupNameOf(QString(50, 'x')).size(), kLongestGroup);
  EXPECT_EQ(GroupNameOf(QString(QChar(1))), "");
}

TEST(CountGroups, ANumberIsReadOffItsLabel) {
  EXPECT_EQ(NumberInGroup(Circle("Room 2 lights", "Room 2 lights 12")), 12);
  for (const char* label : {"", "Lights", "Lights ", "Lights 0", "Lights -4", "Lights 1e9",
                            "Other 3", "Lights 99999999999999999999", "Lights 12 13"})
    EXPECT_EQ(NumberInGroup(Circle("Lights", label)), 0) << label;
}

TEST(CountGroups, WhatAFileGetsWrongIsSettled) {
  std::vector<Mark> marks = {Circle("Lights", "Lights 2"), Circle("Lights", "Lights 2"),
                             Circle("Lights", ""), Circle(" ", "x 1"), Circle("Fans", "Fans -1")};
  SettleGroups(marks);
  QStringList labels;
  for (const Mark& mark : marks) labels += mark.label;
  EXPECT_EQ(labels, QStringList({"Lights 2", "Lights 1", "Lights 3", "", "Fans 1"}));
  EXPECT_EQ(marks[3].kind, Mark::Kind::Circle) << "no group, a plain circle";
}

TEST(CountGroups, TotalsStandBesideTheFirstCircleOfEachPage) {
  const std::vector<Mark> marks = {Circle("Lights", "Lights 2", 1, {300, 300}),
                                   Circle("Lights", "Lights 1", 1, {100, 200}),
                                   Circle("Lights", "Lights 3", 2), Circle("Fans", "Fans 1", 2)};
  const std::vector<Mark> totals = GroupTotalsOf(marks, 13.5);
  ASSERT_EQ(totals.size(), 3U);
  EXPECT_EQ(totals[0].label.toStdString(), "Fans: 1");
  EXPECT_EQ(totals[1].label.toStdString(), "Lights: 2 of 3");
  EXPECT_EQ(totals[2].label.toStdString(), "Lights: 1 of 3");
  EXPECT_NEAR(totals[1].points[0].x, 100 + 13.5 / 2 + 2, 1e-9);
  EXPECT_EQ(totals[1].points[0].y, 203);
  EXPECT_NE(totals[1].name, totals[2].name);
  EXPECT_EQ(totals[1].name, GroupTotalsOf(marks, 13.5)[1].name);
}

TEST(CountGroups, ATotalKeepsClearOfOtherCircles) {
  std::vector<Mark> marks = {Circle("Lights", "Lights 1", 1, {100, 200}),
                             Circle("Lights", "Lights 2", 1, {130, 200})};
  EXPECT_GT(GroupTotalsOf(marks, 13.5)[0].points[0].y, 206) << "under it";
  marks.push_back(Circle("Lights", "Lights 3", 1, {120, 215}));
  EXPECT_LT(GroupTotalsOf(marks, 13.5)[0].points[0].y, 194) << "over it";
}

TEST_F(CountingInGroups, EachCircleHasItsNumberAndEachGroupItsColour) {
  OpenTwoPages();
  Count("Lights", {{100, 100}, {150, 100}});
  Count("Fans", {{200, 100}});
  Count("lights", {{250, 100}});
  EXPECT_EQ(Labels(), QStringList({"Lights 1", "Lights 2", "Fans 1", "Lights 3"}));
  EXPECT_EQ(told.back(), std::pair(QString("Lights"), 3));
  const std::vector<CountGroup> groups = draw->Groups();
  ASSERT_EQ(groups.size(), 2U);
  EXPECT_NE(groups[0].colour, groups[1].colour);
  EXPECT_EQ(groups[0].total, 3);
  // A number that was taken away is given to the next.
  draw->DeleteMark(2);
  EXPECT_EQ(told.back(), std::pair(QString("Lights"), 2));
  Count("Lights", {{300, 100}});
  EXPECT_EQ(Labels().back(), "Lights 2");
  EXPECT_TRUE(draw->Undo());
  EXPECT_TRUE(draw->Undo());
  EXPECT_EQ(Labels(), QStringList({"Lights 1", "Lights 2", "Fans 1", "Lights 3"}));
}

TEST_F(CountingInGroups, PlainCirclesAreCountedForThemselves) {
  OpenTwoPages();
  std::vector<int> plain;
  draw->onCircleCountChanged = [&](int count) { plain.push_back(count); };
  draw->PlaceCircle({50, 50});
  Count("Lights", {{100, 100}});
  draw->PlaceCircle({60, 50});
  EXPECT_EQ(plain, (std::vector<int>{1, 2}));
  EXPECT_EQ(told.size(), 1U);
}

TEST_F(CountingInGroups, TheyAreKeptInTheFileWithTheirTotals) {
  OpenTwoPages();
  Count("2x4 Lights (é)", {{100, 100}, {150, 100}});
  draw->SetPage(2);
  Count("2x4 Lights (é)", {{100, 100}});
  const QString path = Path("marked.pdf");
  ASSERT_EQ(draw->SaveAs(path), 0) << draw->Problem().toStdString();
  ExpectValid(path);
  const qint64 size = QFileInfo(path).size();
  Reopen(path);
  Listen();
  EXPECT_FALSE(draw->HasUnsavedMarks());
  EXPECT_EQ(Labels(), QStringList({"2x4 Lights (é) 1", "2x4 Lights (é) 2", "2x4 Lights (é) 3"}));
  ASSERT_EQ(draw->Groups().size(), 1U);
  EXPECT_EQ(draw->Groups()[0].total, 3);
  EXPECT_EQ(draw->Groups()[0].onPage, 2);
  ASSERT_EQ(draw->SaveAs(path), 0);
  EXPECT_EQ(QFileInfo(path).size(), size) << "nothing changed";
  // One more: the totals of both pages are written anew, the old ones are gone.
  Count("2x4 lights (é)", {{200, 200}});
  ASSERT_EQ(draw->SaveAs(path), 0);
  ExpectValid(path);
  Reopen(path);
  EXPECT_FALSE(draw->HasUnsavedMarks());
  EXPECT_EQ(draw->Groups()[0].total, 4);
  const Ran listed = Run("pdftotext", {path, "-"});
  if (listed.present) {
    EXPECT_FALSE(listed.output.contains("of 3")) << listed.output.toStdString();
  }
}

TEST_F(CountingInGroups, OtherReadersShowNumbersAndTotals) {
  OpenTwoPages();
  Count("Lights", {{100, 100}, {200, 100}});
  const QString path = Path("marked.pdf");
  ASSERT_EQ(draw->SaveAs(path), 0);
  int width = 0;
  int height = 0;
  const QByteArray pixels = Painted(path, 1, width, height);
  if (pixels.isEmpty()) return;
  EXPECT_TRUE(RedNear(pixels, width, height, {106.75, 100})) << "the circle";
  const auto inked = [&](PagePoint at) {
    int dark = 0;
    for (int y = int(at.y) - 3; y <= int(at.y) + 3; ++y) {
      for (int x = int(at.x) - 3; x <= int(at.x) + 3; ++x)
        dark += static_cast<unsigned char>(pixels[3 * (qsizetype(y) * width + x) + 1]) < 180;
    }
    return dark;
  };
  EXPECT_GT(inked({100, 100}), 2) << "its number";
  EXPECT_GT(inked({113, 100}), 5) << "the total";
  EXPECT_EQ(inked({100, 130}), 0);
}

TEST_F(CountingInGroups, HostileValuesAreHarmless) {
  const auto circle = [](int number, const QByteArray& more) {
    return "<</Type/Annot/Subtype/Circle/Rect[90 90 110 110]/NM(tamo-00000" +
           QByteArray::number(number) + "-aa)" + more + ">>";
  };
  const auto total = [](const QByteArray& rect) {
    return "<</Type/Annot/Subtype/FreeText/NM(tamo-total-1-aa)/Contents(Lights: 900)/DA(/F 9 Tf)" +
           rect + "/Tamo_Group(Lights)>>";
  };
  PdfOptions options;
  options.more = {circle(1, "/Tamo_Group(Lights)/Contents(Lights 7)"),
                  circle(2, "/Tamo_Group(Lights)/Contents(Lights 7)"),
                  circle(3, "/Tamo_Group(Lights)"),
                  circle(4, "/Tamo_Group 12/Contents[1 2]"),
                  circle(5, "/Tamo_Group(" + QByteArray(70000, 'x') + ")/Contents(x)"),
                  circle(6, "/Tamo_Group(\\001\\002)"),
                  total("/Rect[1 1 50 12]"),
                  total("/Rect[1 1]"),
                  total("")};
  QByteArray annots = "/Annots[";
  for (qsizetype i = 0; i < options.more.size(); ++i) annots += QByteArray::number(5 + i) + " 0 R ";
  const PdfPage page = {"/MediaBox[0 0 612 792]" + annots + "]", "q Q"};
  ASSERT_EQ(draw->OpenFile(Write("s.pdf", MakePdf({page}, options)), ""), 0);
  const std::vector<CountGroup> groups = draw->Groups();
  ASSERT_EQ(groups.size(), 2U);
  EXPECT_EQ(groups[0].total, 3);
  EXPECT_EQ(groups[1].name.size(), kLongestGroup);
  EXPECT_EQ(Labels().mid(0, 3), QStringList({"Lights 7", "Lights 1", "Lights 2"}));
  EXPECT_EQ(draw->MarksAsDrawn()[3].kind, Mark::Kind::Circle);
  const QString path = Path("marked.pdf");
  ASSERT_EQ(draw->SaveAs(path), 0) << draw->Problem().toStdString();
  ExpectValid(path);
  Reopen(path);
  EXPECT_EQ(draw->Groups()[0].total, 3);
}

TEST_F(CountingInGroups, ANumberThatAnotherCircleHasByNowIsGivenAnew) {
  OpenTwoPages();
  Count("Lights", {{100, 100}, {150, 100}});
  Mark off;
  ASSERT_TRUE(draw->TakeOff(QString(draw->MarksAsDrawn()[0].name), off));
  Count("Lights", {{200, 100}});
  EXPECT_EQ(Labels(), QStringList({"Lights 2", "Lights 1"}));
  ASSERT_TRUE(draw->PutBack(off));
  EXPECT_EQ(Labels(), QStringList({"Lights 2", "Lights 1", "Lights 3"}));
}

TEST_F(CountingInGroups, MarksOfAnotherPlanComeWithNumbersOfTheirOwnAndAreNotCounted) {
  OpenTwoPages();
  int plain = 0;
  draw->onCircleCountChanged = [&](int) { ++plain; };
  Count("Lights", {{100, 100}});
  told.clear();
  Mark light = Circle("Lights", "Lights 1", 1, {300, 300});
  light.name = MarkName(50, 1);
  Mark circle;
  circle.kind = Mark::Kind::Circle;
  circle.points = {{200, 200}};
  circle.name = MarkName(51, 1);
  draw->TakeOver({light, circle, light});
  EXPECT_EQ(Labels(), QStringList({"Lights 1", "Lights 2", ""}));
  EXPECT_TRUE(told.empty()) << "no count goes to the takeoff";
  EXPECT_EQ(plain, 0);
  Count("Lights", {{400, 400}});
  EXPECT_GT(MarkNumber(draw->MarksAsDrawn().back().name), 51) << "it was drawn later";
}

TEST_F(CountingInGroups, AGroupIsColouredAsOneStep) {
  OpenTwoPages();
  Count("Lights", {{100, 100}, {150, 100}});
  Count("Fans", {{200, 100}});
  ASSERT_TRUE(draw->ChooseGroup("lights"));
  draw->RecolourGroup("no colour");
  draw->RecolourGroup("000000175");
  const auto colours = [this] {
    QStringList all;
    for (const Mark& mark : draw->MarksAsDrawn()) all += mark.colour;
    return all;
  };
  const QString fans = colours()[2];
  EXPECT_EQ(colours(), QStringList({"000000175", "000000175", fans}));
  EXPECT_EQ(draw->GroupColour(), "000000175");
  Count("Lights", {{300, 100}});
  EXPECT_EQ(colours().back(), "000000175");
  EXPECT_TRUE(draw->Undo());
  EXPECT_TRUE(draw->Undo());
  EXPECT_FALSE(colours().contains("000000175"));
  const QString before = colours()[0];
  draw->Press({350, 100}, false);
  EXPECT_EQ(colours().back(), before) << "the change was taken back";
}
