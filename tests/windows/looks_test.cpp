#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextLayout>

#include "windows/chosenlook.h"
#include "windows/figurelabel.h"
#include "windows/fontsahead.h"
#include "windows/keeperroom.h"
#include "windows/roles.h"
#include "windows/rowsview.h"
#include "windows/topictext.h"

// How things look where that is more than taste.

namespace tamo {
namespace {

struct LooksTest : testing::Test, test::KeeperRoom {
  ~LooksTest() override { ApplyLook(Look::Light()); }
  void Choose(const char* option) {
    desk.ClickInto(*FormOf("Settings").Find(QLatin1String(option)));
    test::Settle();
  }
};

TEST_F(LooksTest, TheLookThatIsChosenIsThereAtOnceAndAtTheNextStart) {
  ChosenLook look(program);
  EXPECT_FALSE(CurrentLook().dark);
  Menu("Tamo", "Settings1");
  Choose("LookDark");
  EXPECT_TRUE(CurrentLook().dark);
  EXPECT_EQ(Window("Settings").palette().color(QPalette::Window), Look::Dark().window);
  Choose("LookLight");
  EXPECT_FALSE(CurrentLook().dark);
  Choose("LookDark");
  Choose("Command1");
  EXPECT_EQ(WholeLinesOf(Path("program/Settings.tamo")).filter(QStringLiteral("LookDark")).size(),
            1);
  Program next(platform, viewer);
  EXPECT_EQ(next.Look(), QStringLiteral("Dark"));
}

TEST_F(LooksTest, TheDesktopsSettingCountsWhereNothingIsChosen) {
  ChosenLook look(program);
  look.DesktopSaid(1);
  EXPECT_TRUE(CurrentLook().dark);
  look.DesktopSaid(2);
  EXPECT_FALSE(CurrentLook().dark);
  Menu("Tamo", "Settings1");
  Choose("LookLight");
  look.DesktopSaid(1);
  EXPECT_FALSE(CurrentLook().dark);
  Choose("LookSystem");
  EXPECT_TRUE(CurrentLook().dark);
}

QColor MiddleOf(QWidget& widget) {
  const QImage picture = widget.grab().toImage();
  return picture.pixelColor(picture.width() - 24, picture.height() - 8);
}

TEST_F(LooksTest, NotesShowOnTheirWholeGroundWhereTheKeyboardIs) {
  Control& panel = *FormOf("Tamo").Find(QStringLiteral("JobNFOFrame"));
  desk.Dispatch([&] { panel.Show(); });
  auto& notes = *qobject_cast<QPlainTextEdit*>(
      windows.WidgetOf(*FormOf("Tamo").Find(QStringLiteral("Notes"))));
  for (const Look& look : {Look::Light(), Look::Dark()}) {
    ApplyLook(look);
    desk.Dispatch([&] { desk.Focus(*FormOf("Tamo").Find(QStringLiteral("JobName"))); });
    test::Settle();
    EXPECT_EQ(MiddleOf(notes), look.base);
    desk.Dispatch([&] { desk.Focus(*FormOf("Tamo").Find(QStringLiteral("Notes"))); });
    test::Settle();
    EXPECT_EQ(MiddleOf(notes), look.accentGround);
  }
}

TEST_F(LooksTest, WhatStandsInAFieldIsReadAsWellWhenNothingCanBeEnteredThere) {
  QLineEdit field;
  field.ensurePolished();
  EXPECT_EQ(field.palette().color(QPalette::Disabled, QPalette::Text), Look::Light().text);
  EXPECT_EQ(field.sizeHint().height(), kFieldHeight);
}

TEST_F(LooksTest, AMenuHasTheColoursOfTheLookWhenItIsShown) {
  QMenu menu;
  menu.addAction(QStringLiteral("Delete"));
  EXPECT_TRUE(menu.styleSheet().isEmpty());
  menu.popup({});
  EXPECT_TRUE(menu.styleSheet().contains(Look::Light().accent.name()));
  ApplyLook(Look::Dark());
  EXPECT_TRUE(menu.styleSheet().contains(Look::Dark().accent.name()));
}

TEST_F(LooksTest, NoSheetIsMatchedAgainstWhatIsAlwaysOnTheScreen) {
  EXPECT_TRUE(qApp->styleSheet().isEmpty());
  EXPECT_TRUE(Window("Tamo").styleSheet().isEmpty());
}

TEST(Frames, LeaveTheRoomOfTheirLine) {
  test::Application();
  ApplyLook(Look::Light());
  QFrame frame;
  GiveRole(frame, Role::Notice);
  frame.resize(100, 50);
  EXPECT_EQ(frame.contentsRect(), QRect(0, 2, 100, 48));
  GiveRole(frame, Role::Panel);
  EXPECT_EQ(frame.contentsRect(), QRect(1, 1, 98, 48));
  GiveRole(frame, Role::None);
  EXPECT_EQ(frame.contentsRect(), QRect(0, 0, 100, 50));
}

TEST(FirstWindow, FindsItsFontsWhetherTheyWereLookedForAheadOrNot) {
  const test::WithApplication application;
  { const FontsAhead never; }
  FontsAhead ahead;
  ahead.GoOn();
  ahead.Wait();
  ahead.Wait();
  EXPECT_GT(QFontMetrics(QApplication::font()).horizontalAdvance(QStringLiteral("Room")), 8);
}

TEST_F(LooksTest, MessageBoxesHaveOurSignAndButtonsNoPictures) {
  QMessageBox box(QMessageBox::Question, QStringLiteral("Tamo"), QStringLiteral("Delete it?"),
                  QMessageBox::Yes | QMessageBox::No);
  box.show();
  test::Settle();
  EXPECT_FALSE(box.iconPixmap().isNull());
  for (const QAbstractButton* button : box.buttons()) EXPECT_TRUE(button->icon().isNull());
}

TEST(Figures, AreShownInTwoDecimalsAndStayWhole) {
  EXPECT_EQ(InTwoDecimals(QStringLiteral("4.32278471590909")), QStringLiteral("4.32"));
  EXPECT_EQ(InTwoDecimals(QStringLiteral("10.001")), QStringLiteral("10.00"));
  for (const char* text : {"0", "0.00", "12", ".5", "", "n/a"})
    EXPECT_EQ(InTwoDecimals(QLatin1String(text)), QLatin1String(text));
  test::Application();
  FigureLabel label(QStringLiteral("4.32278471590909"));
  EXPECT_EQ(label.text(), QStringLiteral("4.32278471590909"));
  EXPECT_EQ(label.Shown(), QStringLiteral("4.32"));
}

TEST_F(LooksTest, TheEstimatedUnitPriceIsSuchAFigure) {
  auto* price = windows.WidgetOf(*FormOf("Pricing").Find(QStringLiteral("EUP")));
  EXPECT_NE(dynamic_cast<FigureLabel*>(price), nullptr);
}

TEST_F(LooksTest, TheMaterialsHaveTheirFiguresBesideThem) {
  auto& system = dynamic_cast<OrderedList&>(*FormOf("Pricing").Find(QStringLiteral("System")));
  system.SetRows({QStringLiteral("Drywall"),
                  QStringLiteral("SHT"),
                  QStringLiteral("12.00"),
                  QStringLiteral("32"),
                  QStringLiteral("upo"),
                  QStringLiteral("64"),
                  QStringLiteral("upm"),
                  QStringLiteral("10"),
                  QStringLiteral("50.00"),
                  {},
                  {},
                  {}});
  auto* list = dynamic_cast<RowsView*>(
      windows.WidgetOf(*FormOf("Pricing").Find(QStringLiteral("MaterialList"))));
  ASSERT_TRUE(list->besides);
  EXPECT_EQ(list->besides(0), QStringList({QStringLiteral("0.031 SHT"), QStringLiteral("0.38"),
                                           QStringLiteral("0.78")}));
}

TEST_F(LooksTest, HeavyLinesOfAReportKeepTheirColumns) {
  auto* report = dynamic_cast<RowsView*>(
      windows.WidgetOf(*FormOf("Reports").Find(QStringLiteral("Reporter"))));
  auto& rows = dynamic_cast<OrderedList&>(*FormOf("Reports").Find(QStringLiteral("Reporter")));
  rows.SetRows({QStringLiteral("BreakDown"),
                {},
                QStringLiteral("Labor"),
                QStringLiteral("    Total Labor:   1.00"),
                QStringLiteral("        Raw Labor:  1")});
  rows.Show();
  windows.SyncNow();
  EXPECT_TRUE(report->isHeavy(0));
  EXPECT_TRUE(report->isHeavy(3));
  EXPECT_FALSE(report->isHeavy(4));
  EXPECT_EQ(rows.Row(3), QStringLiteral("    Total Labor:   1.00"));
}

TEST_F(LooksTest, TheManualIsSetForReading) {
  QPlainTextEdit edit;
  new TopicText(edit.document());
  const QString topic =
      QStringLiteral("MARKUPS\n\nFractions, not per cent.\n\n    MOH   0.10\n\nLABOR");
  edit.setPlainText(topic);
  edit.show();
  test::Settle();
  const auto formatOf = [&](int block) {
    const auto formats = edit.document()->findBlockByNumber(block).layout()->formats();
    return formats.isEmpty() ? QFont() : formats.first().format.font();
  };
  EXPECT_GT(formatOf(0).pointSizeF(), QApplication::font().pointSizeF());
  EXPECT_TRUE(edit.document()->findBlockByNumber(2).layout()->formats().isEmpty());
  EXPECT_EQ(formatOf(4).family(), FixedFont().family());
  EXPECT_EQ(formatOf(6).weight(), QFont::DemiBold);
  EXPECT_EQ(edit.toPlainText(), topic);
}

}  // namespace
}  // namespace tamo
