#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextLayout>

#include "windows/chosenlook.h"
#include "windows/figurelabel.h"
#include "windows/fontsahead.h"
#include "windows/keeperroom.h"
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

TEST(FirstWindow, LooksTheSameWhenItsSheetComesLast) {
  const test::WithApplication application;
  const auto picture = [](bool last) {
    if (last) {
      qApp->setStyleSheet(QString());
      KeepSheetForFirstWindow();
    }
    test::KeeperRoom room;
    EXPECT_FALSE(qApp->styleSheet().isEmpty());
    test::Settle();
    // Below stands the folder of the test.
    const QImage whole = room.Window("Tamo").grab().toImage();
    return whole.copy(whole.rect().adjusted(0, 0, 0, -6 * kGrid));
  };
  const QImage last = picture(true);
  EXPECT_EQ(last, picture(false));
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
