#include "plans/samesymbols.h"

#include <chrono>

#include "plans/planfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

// Five squares with a diagonal, the last with both.
const QByteArray kSquares = [] {
  QByteArray content;
  for (int i = 0; i < 5; ++i) {
    const QByteArray x = QByteArray::number(100 + 100 * i);
    content += "q 1 0 0 1 " + x + " 700 cm 0 0 12 12 re S 0 0 m 12 12 l S ";
    if (i == 4) content += "0 12 m 12 0 l S ";
    content += "Q\n";
  }
  return content;
}();
const QByteArray kPage = "/MediaBox[0 0 612 792]";

struct FindingSame : PlanFixture {
  QString said;
  std::vector<int> counts;

  void Open(const QList<PdfPage>& pages) {
    ASSERT_EQ(draw->OpenFile(Write("s.pdf", MakePdf(pages)), ""), 0);
    draw->onToolRefused = [this](const QString& words) { said = words; };
    draw->onCircleCountChanged = [this](int count) { counts.push_back(count); };
    draw->onModeChanged = [this](PlanTool) { draw->Same().Leave(); };
    draw->onPageChanged = [this] { draw->Same().Follow(); };
  }
  void Box(PagePoint from, PagePoint to) {
    draw->Same().Start();
    draw->Press(from, false);
    draw->Move(to, false);
    draw->Release(to, false);
    draw->Same().Finish(20000);
  }
  void BoxTheFirst() { Box({95, 75}, {117, 97}); }
  void Key(PlanKey key, int times = 1) {
    for (int i = 0; i < times; ++i) draw->Key({key, false, false});
  }
};

}  // namespace

TEST_F(FindingSame, TheAcceptedOnesAreCountedAtOnceAndTakenBackAtOnce) {
  Open({{kPage, kSquares}});
  BoxTheFirst();
  ASSERT_TRUE(draw->Same().Asking());
  EXPECT_TRUE(said.startsWith("Find Same: number 1 of 5, 4 of them sure. Enter or Y yes"))
      << said.toStdString();
  EXPECT_FALSE(draw->Box().Drawn().has_value()) << "Enter is the answer, not a table's";
  Key(PlanKey::Enter);
  Key(PlanKey::No);
  Key(PlanKey::Backspace);
  Key(PlanKey::No);
  EXPECT_TRUE(said.startsWith("Find Same: number 3 of 5"));
  Key(PlanKey::All);
  EXPECT_TRUE(said.contains("Not sure, other lines are in it or at it.")) << said.toStdString();
  Key(PlanKey::No);
  EXPECT_FALSE(draw->Same().Asking());
  EXPECT_EQ(said.toStdString(), "Find Same: 3 symbols counted, 2 not.");
  EXPECT_EQ(counts, std::vector<int>{3});
  const std::vector<Mark>& marks = draw->MarksAsDrawn();
  ASSERT_EQ(marks.size(), 3U);
  EXPECT_NEAR(marks[0].points[0].x, 106, 0.01);
  EXPECT_NEAR(marks[0].points[0].y, 86, 0.01);
  EXPECT_NEAR(marks[1].points[0].x, 306, 0.01);
  EXPECT_EQ(draw->Tool(), PlanTool::Counting);
  EXPECT_TRUE(draw->Undo());
  EXPECT_TRUE(draw->MarksAsDrawn().empty());
  EXPECT_TRUE(draw->Redo());
  EXPECT_EQ(draw->MarksAsDrawn().size(), 3U);
  EXPECT_EQ(counts, (std::vector<int>{3, 0, 3}));
}

TEST_F(FindingSame, NothingIsCountedTwice) {
  Open({{kPage, kSquares}});
  draw->PlaceCircle({205, 85});
  BoxTheFirst();
  EXPECT_TRUE(said.startsWith("Find Same: number 1 of 4, 3 of them sure, 1 more counted already."))
      << said.toStdString();
  Key(PlanKey::All, 2);
  EXPECT_EQ(draw->MarksAsDrawn().size(), 5U);
  BoxTheFirst();
  EXPECT_EQ(said.toStdString(), "Find Same: 5 symbols found, and a circle stands on each already.");
}

TEST_F(FindingSame, ByKeysAlone) {
  Open({{kPage, kSquares}});
  draw->Same().Start();
  draw->Move({95, 75}, false);
  Key(PlanKey::Space);
  Key(PlanKey::Right, 3);
  Key(PlanKey::Down, 3);
  Key(PlanKey::Space);
  draw->Same().Finish(20000);
  EXPECT_TRUE(draw->Same().Asking()) << said.toStdString();
  Key(PlanKey::Escape);
  EXPECT_EQ(said.toStdString(), "Find Same is left, nothing was counted.");
  EXPECT_TRUE(draw->MarksAsDrawn().empty());
  EXPECT_EQ(draw->ViewValue(ViewPart::Horizontal), 0) << "the arrows moved the cross hair";
}

TEST_F(FindingSame, WhatCantBeFoundIsSaid) {
  Open({{kPage, "q 612 0 0 792 0 0 cm BI /W 1 /H 1 /BPC 8 /CS /G ID x EI Q"},
        {kPage, "q Q"},
        {kPage, "10 10 m 100 10 l S"}});
  BoxTheFirst();
  EXPECT_EQ(
      said.toStdString(),
      "Find Same: This sheet is a scanned picture: it has no lines by which symbols are found.");
  draw->SetPage(2);
  BoxTheFirst();
  EXPECT_EQ(said.toStdString(), "Find Same: This sheet has no lines by which symbols are found.");
  draw->SetPage(3);
  Box({0, 700}, {200, 790});
  EXPECT_TRUE(said.contains("Only a single line is in the box")) << said.toStdString();
  BoxTheFirst();
  EXPECT_TRUE(said.contains("No line lies wholly in the box")) << said.toStdString();
  ASSERT_NE(draw->OpenFile(Path("none.pdf"), ""), 0);
  draw->Same().Start();
  EXPECT_EQ(said.toStdString(), "Find Same: no plan is open whose lines could be read.");
  EXPECT_FALSE(draw->Box().Asked());
}

TEST_F(FindingSame, AnotherPageOrToolEndsIt) {
  Open({{kPage, kSquares}, {kPage, kSquares}});
  BoxTheFirst();
  ASSERT_TRUE(draw->Same().Asking());
  draw->SetPage(2);
  EXPECT_FALSE(draw->Same().Asking());
  EXPECT_EQ(said, "");
  BoxTheFirst();
  ASSERT_TRUE(draw->Same().Asking());
  EXPECT_EQ(draw->Same().Page(), 2);
  draw->PickTool(PlanTool::Measuring);
  EXPECT_FALSE(draw->Same().Asking());
  draw->Same().Start();
  EXPECT_TRUE(draw->Box().Asked());
  Key(PlanKey::Escape);
  EXPECT_FALSE(draw->Box().Asked());
}
