#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>

#include "windows/keeperroom.h"
#include "windows/keys.h"
#include "windows/plancanvas.h"

// The marks of a plan by the keys of its window alone.

namespace tamo {
namespace {

struct PlanMarksTest : testing::Test, test::KeeperRoom {
  PlanMarksTest() {
    desk.Dispatch([&] { FormOf("OST").Show(); });
    test::Settle();
    PdfDraw& viewer = program.Viewer();
    viewer.DrawLine({100, 100}, {280, 100});
    viewer.DrawLine({100, 200}, {190, 200});
    viewer.PickTool(PlanTool::None);
    Canvas().setFocus();
    test::Settle();
  }
  PlanCanvas& Canvas() { return *FindPlanCanvas(*windows.WindowOf(FormOf("OST"))); }
  void Key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QWidget* focused = QApplication::focusWidget();
    test::Press(focused == nullptr ? *windows.WindowOf(FormOf("OST")) : *focused, key, held);
    test::Settle();
  }
  MarkHand& Hand() { return program.Viewer().Hand(); }
  std::string Focus() {
    return desk.Focused() == nullptr ? "" : desk.Focused()->FullName().toStdString();
  }
};

TEST_F(PlanMarksTest, ChosenMovedAndRemovedWithTheKeysAlone) {
  Key(Qt::Key_N);
  ASSERT_NE(Hand().Chosen(), nullptr);
  EXPECT_EQ(Hand().Chosen()->points[1], (PagePoint{280, 100}));
  Key(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "OST.picPdfDraw") << "Tab takes a point of the mark";
  EXPECT_EQ(Hand().Point(), 0);
  Key(Qt::Key_Down);
  EXPECT_EQ(Hand().Chosen()->points[0], (PagePoint{100, 109}));
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Hand().Chosen()->points[0], (PagePoint{100, 100}));
  Key(Qt::Key_P);
  EXPECT_EQ(Hand().Chosen()->points[1], (PagePoint{190, 200}));
  Key(Qt::Key_Delete);
  EXPECT_EQ(program.Viewer().Marks().size(), 1U);
  Key(Qt::Key_Escape);
  EXPECT_EQ(Hand().Chosen(), nullptr);
}

TEST_F(PlanMarksTest, ListAndNameByF6AndF2) {
  Key(Qt::Key_F6);
  EXPECT_EQ(Focus(), "OST.MarksList");
  Key(Qt::Key_F6);
  EXPECT_EQ(Focus(), "OST.picPdfDraw");
  Key(Qt::Key_N);
  Key(Qt::Key_F2);
  EXPECT_EQ(Focus(), "OST.MarkTitle");
  Key(Qt::Key_W);
  Key(Qt::Key_Return);
  EXPECT_EQ(Hand().Chosen()->title.toStdString(), "w");
  EXPECT_EQ(Focus(), "OST.picPdfDraw");
  // Escape leaves the name as it was, and the list.
  Key(Qt::Key_F2);
  Key(Qt::Key_X);
  Key(Qt::Key_Escape);
  EXPECT_EQ(Hand().Chosen()->title.toStdString(), "w");
  EXPECT_EQ(Focus(), "OST.picPdfDraw");
  Key(Qt::Key_F6);
  Key(Qt::Key_F6);
  EXPECT_EQ(Focus(), "OST.MarksList");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Focus(), "OST.picPdfDraw");
}

TEST_F(PlanMarksTest, WithoutAChosenMarkF2SaysSoAndTheFocusStays) {
  Key(Qt::Key_F2);
  EXPECT_EQ(Focus(), "OST.picPdfDraw");
  const auto* hint = dynamic_cast<Label*>(FormOf("OST").Find("ToolHint"));
  ASSERT_NE(hint, nullptr);
  EXPECT_TRUE(hint->Caption().startsWith("Choose a mark first")) << hint->Caption().toStdString();
}

TEST_F(PlanMarksTest, TheSheetStaysWhereItIsWhenWordsComeAndGo) {
  windows.WindowOf(FormOf("OST"))->resize(960, 700);
  test::Settle();
  const QRect before = Canvas().geometry();
  Key(Qt::Key_N);
  EXPECT_EQ(Canvas().geometry(), before);
  Key(Qt::Key_A);
  EXPECT_EQ(Canvas().geometry(), before) << "the longest words of a tool";
}

TEST_F(PlanMarksTest, TheChosenMarkShowsItsPoints) {
  const auto picture = [this] { return Canvas().viewport()->grab().toImage(); };
  const QImage before = picture();
  Key(Qt::Key_N);
  EXPECT_NE(picture(), before);
  Key(Qt::Key_Escape);
  EXPECT_EQ(picture(), before);
}

}  // namespace
}  // namespace tamo
