#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProgressDialog>
#include <QTest>
#include <QTimer>

#include "windows/application.h"
#include "windows/reportprogress.h"

namespace tamo {
namespace {

struct ReportProgressTest : test::WithApplication, testing::Test {
  // Far enough into a long report.
  bool TellLate(int done) {
    progress.Tell(0, 10);
    QTest::qSleep(80);
    return progress.Tell(done, 10);
  }
  static QProgressDialog* Bar() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* bar = qobject_cast<QProgressDialog*>(window);
      if (bar != nullptr && bar->isVisible()) return bar;
    }
    return nullptr;
  }

  ReportProgress progress{QStringLiteral("The report is being made."), 50};
};

TEST_F(ReportProgressTest, AShortReportShowsNoBar) {
  QElapsedTimer clock;
  bool shown = false;
  // On a busy machine also a few statements may take long; then they are tried again.
  do {
    progress.End(false);
    clock.start();
    EXPECT_TRUE(progress.Tell(1, 10));
    EXPECT_TRUE(progress.Tell(9, 10));
    EXPECT_TRUE(progress.Tell(10, 10));
    shown = Bar() != nullptr;
  } while (clock.elapsed() >= 40);
  EXPECT_FALSE(shown);
  progress.End(true);
  test::Settle();
  EXPECT_EQ(Bar(), nullptr);
}

TEST_F(ReportProgressTest, TheBarStaysUntilTheLinesStandOnTheScreen) {
  EXPECT_TRUE(TellLate(3));
  ASSERT_NE(Bar(), nullptr);
  EXPECT_EQ(Bar()->value(), 3);
  EXPECT_TRUE(progress.Tell(10, 10));
  // A second phase begins anew, under the same bar.
  QTest::qSleep(40);
  EXPECT_TRUE(progress.Tell(1, 5));
  EXPECT_TRUE(progress.Visible());
  EXPECT_EQ(Bar()->maximum(), 5);
  progress.End(true);
  EXPECT_NE(Bar(), nullptr);
  test::Settle();
  EXPECT_EQ(Bar(), nullptr);
}

TEST_F(ReportProgressTest, AReportThatStopsTakesItsBarAwayAtOnce) {
  EXPECT_TRUE(TellLate(3));
  ASSERT_NE(Bar(), nullptr);
  progress.End(false);
  EXPECT_EQ(Bar(), nullptr);
  EXPECT_FALSE(progress.Visible());
}

TEST_F(ReportProgressTest, EscapeStopsTheReport) {
  EXPECT_TRUE(TellLate(3));
  ASSERT_NE(Bar(), nullptr);
  QTest::keyClick(Bar(), Qt::Key_Escape);
  QTest::qSleep(40);
  EXPECT_FALSE(progress.Tell(4, 10));
  EXPECT_EQ(Bar(), nullptr);
}

TEST_F(ReportProgressTest, EscapeStopsAReportAlsoWithinOneSheet) {
  EXPECT_TRUE(TellLate(3));
  ASSERT_NE(Bar(), nullptr);
  QTimer::singleShot(0, Bar(), [] { QTest::keyClick(Bar(), Qt::Key_Escape); });
  QTest::qSleep(40);
  EXPECT_FALSE(progress.Tell(3, 10));
}

TEST_F(ReportProgressTest, AWindowThatGoesTakesItsBarAlong) {
  auto progressOfWindow =
      std::make_unique<ReportProgress>(QStringLiteral("The report is being made."), 50);
  {
    QWidget window;
    window.show();
    window.activateWindow();
    test::Settle();
    progressOfWindow->Tell(0, 10);
    QTest::qSleep(80);
    progressOfWindow->Tell(1, 10);
    EXPECT_TRUE(progressOfWindow->Visible());
  }
  progressOfWindow->Tell(2, 10);
  progressOfWindow.reset();
  test::Settle();
  EXPECT_EQ(Bar(), nullptr);
}

}  // namespace
}  // namespace tamo
