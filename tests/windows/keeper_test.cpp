#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QWheelEvent>

#include "windows/keeperroom.h"
#include "windows/keys.h"
#include "windows/look.h"
#include "windows/plancanvas.h"
#include "windows/rowsview.h"

// The windows of the whole program.

namespace tamo {
namespace {

const char* const kForms[] = {"Tamo",         "Settings",   "Pricing",        "RFSForm",
                              "EstimateForm", "BottomLine", "AdjustmentForm", "OST",
                              "Reports",      "Docs",       "Versions"};

struct KeeperTest : testing::Test, test::KeeperRoom {};

TEST_F(KeeperTest, EveryControlThatALayoutNamesIsThere) {
  for (const char* name : kForms) {
    EXPECT_EQ(Window(name).missing.join(QStringLiteral(", ")), QString()) << name;
  }
}

// What has no widget holds data only: it is hidden, or a list that nobody looks at.
TEST_F(KeeperTest, EveryControlThatAPersonUsesHasAWidget) {
  for (const char* name : kForms) {
    for (const Control* control : FormOf(name).Controls()) {
      if (windows.WidgetOf(*control) != nullptr) continue;
      const bool kept =
          !control->Shown() || control->Name() == QLatin1String("IsScale") || !control->takesFocus;
      EXPECT_TRUE(kept) << control->FullName().toStdString();
    }
  }
}

TEST_F(KeeperTest, EveryFieldAndButtonHasANameForAReaderOfScreens) {
  for (const char* name : kForms) {
    for (const Control* control : FormOf(name).Controls()) {
      QWidget* widget = windows.WidgetOf(*control);
      const auto* edit = dynamic_cast<QLineEdit*>(widget);
      if (edit == nullptr || !edit->accessibleName().isEmpty()) continue;
      bool named = false;
      for (const QLabel* label : Window(name).findChildren<QLabel*>())
        named = named || label->buddy() == edit;
      EXPECT_TRUE(named) << control->FullName().toStdString();
    }
  }
}

TEST_F(KeeperTest, NoWindowIsLargerThanASmallScreen) {
  for (const char* name : kForms) {
    for (Control* control : FormOf(name).Controls()) {
      if (dynamic_cast<Frame*>(control) != nullptr) control->Show();
    }
    FormOf(name).Show();
    windows.SyncNow();
    test::Settle();
    EXPECT_LE(Window(name).minimumSizeHint().width(), 1366) << name;
    EXPECT_LE(Window(name).minimumSizeHint().height(), 768 - 40) << name;
    FormOf(name).Hide();
  }
}

TEST_F(KeeperTest, WindowsFollowTheDesk) {
  EXPECT_TRUE(Window("Tamo").isVisible());
  Menu("Tamo", "Settings1");
  EXPECT_TRUE(Window("Settings").isVisible());
  EXPECT_TRUE(Window("Settings").isActiveWindow());
  EXPECT_EQ(QApplication::focusWidget(),
            windows.WidgetOf(*FormOf("Settings").Find(QStringLiteral("EstimatorNumber"))));
  Menu("Tamo", "Settings1");
  EXPECT_FALSE(Window("Settings").isVisible());
  EXPECT_TRUE(Window("Tamo").isActiveWindow());
}

TEST_F(KeeperTest, TheCloseBoxIsTheFormsToAnswer) {
  Menu("Tamo", "Settings1");
  Window("Settings").close();
  EXPECT_FALSE(FormOf("Settings").Visible());
  EXPECT_FALSE(Window("Settings").isVisible());
  Window("Tamo").close();
  EXPECT_FALSE(program.Running());
  windows.SyncNow();
  EXPECT_FALSE(Window("Tamo").isVisible());
}

TEST_F(KeeperTest, GoingToAnotherWindowOfTheProgramActivatesItsForm) {
  Menu("Tamo", "Settings1");
  int activated = 0;
  FormOf("Tamo").onActivate = [&] { ++activated; };
  Window("Tamo").activateWindow();
  test::Settle();
  windows.SyncNow();
  EXPECT_EQ(desk.Active(), &FormOf("Tamo"));
  EXPECT_EQ(activated, 1);
}

TEST_F(KeeperTest, AnUnsavedTextIsNamedInEveryWindowUntilItIsSaved) {
  const QString path = Path("gone/Areas.tamo");
  program.GetFiles().SaveText(path, QStringLiteral("x"));
  Menu("Tamo", "Settings1");
  for (const char* name : {"Tamo", "Settings"}) {
    EXPECT_TRUE(windows.NoticeOf(FormOf(name))->isVisible()) << name;
    EXPECT_TRUE(Window(name).Notice().Text().contains(path)) << name;
  }
  disk.MakeFolder(Path("gone"));
  test::Press(*windows.NoticeOf(FormOf("Tamo")), QPoint(5, 5), Qt::LeftButton);
  EXPECT_FALSE(windows.NoticeOf(FormOf("Tamo"))->isVisible());
  EXPECT_TRUE(disk.Exists(path));
}

TEST_F(KeeperTest, F1ShowsTheTopicOfTheFormInFront) {
  Menu("Tamo", "Settings1");
  test::Press(Window("Settings"), Qt::Key_F1);
  test::Settle();
  EXPECT_TRUE(FormOf("Docs").Visible());
  const auto& topics = dynamic_cast<OrderedList&>(*FormOf("Docs").Find(QStringLiteral("MenuList")));
  EXPECT_EQ(topics.Selected(), QStringLiteral("Settings"));
}

TEST_F(KeeperTest, F8ComparesTheBidFromEveryWindow) {
  Menu("Tamo", "Settings1");
  program.Shared().JobID = QStringLiteral("12-2611001");
  test::Press(Window("Settings"), Qt::Key_F8);
  test::Settle();
  ASSERT_FALSE(messages.texts.isEmpty());
  EXPECT_TRUE(messages.texts.back().startsWith(QStringLiteral("No version of this bid was kept")));
}

TEST_F(KeeperTest, ThePlaceOfAWindowIsRemembered) {
  Menu("Tamo", "Settings1");
  Window("Settings").setGeometry(40, 60, 900, 700);
  Menu("Tamo", "Settings1");
  test::WindowProbe again(program, nullptr, Path("windows.ini"));
  EXPECT_EQ(again.WindowOf(FormOf("Settings"))->size(), QSize(900, 700));
}

TEST_F(KeeperTest, APlaceOnThePlanIsFoundAgainAtEveryTurnAndZoom) {
  Menu("Tamo", "OST1");
  auto* plan = dynamic_cast<PlanCanvas*>(windows.Plan());
  ASSERT_NE(plan, nullptr);
  for (const int turn : {0, 90, 180, 270}) {
    for (const int zoom : {40, 100, 150, 400}) {
      viewer.SetViewValue(ViewPart::Rotation, turn);
      viewer.SetZoom(zoom);
      const QPointF place = windows.PlanPlace({120.5, 700.25});
      const PagePoint back = plan->Sheet().OnPage(place);
      EXPECT_NEAR(back.x, 120.5, 1e-6) << turn << ' ' << zoom;
      EXPECT_NEAR(back.y, 700.25, 1e-6) << turn << ' ' << zoom;
    }
  }
}

TEST_F(KeeperTest, ALineDrawnOnThePlanIsMeasuredInPointsOfThePaper) {
  Menu("Tamo", "OST1");
  Menu("OST", "Quarter");
  desk.Dispatch([this] { viewer.PickTool(PlanTool::Measuring); });
  QWidget& sheet = *dynamic_cast<PlanCanvas&>(*windows.Plan()).viewport();
  const QPointF from = windows.PlanPlace({100, 100});
  const auto send = [&sheet](QEvent::Type type, QPointF at, Qt::MouseButton button,
                             Qt::MouseButtons held) {
    QMouseEvent event(type, at, sheet.mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(&sheet, &event);
  };
  const QPointF to = windows.PlanPlace({280, 100});
  send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
  send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
  send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
  const auto& distance =
      dynamic_cast<TextField&>(*FormOf("OST").Find(QStringLiteral("DistanceText")));
  EXPECT_EQ(distance.Text(), QStringLiteral("10.0"));
}

TEST_F(KeeperTest, ScrollingThePlanIsToldOnceWhenTheSheetRests) {
  Menu("Tamo", "OST1");
  viewer.SetZoom(400);
  int scrolled = 0;
  viewer.onScrolled = [&] { ++scrolled; };
  auto& plan = dynamic_cast<PlanCanvas&>(*windows.Plan());
  QWidget& sheet = *plan.viewport();
  for (int i = 0; i < 5; ++i) {
    QWheelEvent wheel(QPointF(50, 50), sheet.mapToGlobal(QPointF(50, 50)), {}, {0, -120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&sheet, &wheel);
  }
  EXPECT_EQ(scrolled, 0);
  EXPECT_GT(viewer.ViewValue(ViewPart::Vertical), 0) << "the sheet moves at once";
  const int stood = viewer.ViewValue(ViewPart::Vertical);
  plan.FinishScroll();
  EXPECT_EQ(scrolled, 1);
  EXPECT_EQ(viewer.ViewValue(ViewPart::Vertical), stood);
  plan.FinishScroll();
  EXPECT_EQ(scrolled, 1);
}

TEST(Look, EveryTextCanBeReadOnItsGround) {
  for (const Look& look : {Look::Light(), Look::Dark()}) {
    for (const QColor& ground : {look.window, look.base}) {
      EXPECT_GE(Contrast(look.text, ground), 7);
      EXPECT_GE(Contrast(look.quiet, ground), 4.5);
      EXPECT_GE(Contrast(look.accent, ground), 4.5);
      EXPECT_GE(Contrast(look.line, ground), 2.8);
    }
    EXPECT_GE(Contrast(look.text, look.accentGround), 7);
    EXPECT_GE(Contrast(look.quiet, look.accentGround), 4.5);
    EXPECT_GE(Contrast(look.text, look.notice), 4.5);
    EXPECT_GE(Contrast(look.Palette().color(QPalette::HighlightedText), look.accent), 4.5);
  }
}

TEST(Look, FollowsADarkPlatformAndItsAccent) {
  QPalette platform;
  platform.setColor(QPalette::Window, Qt::black);
  platform.setColor(QPalette::Highlight, QColor(200, 60, 20));
  const Look look = Look::Of(platform);
  EXPECT_TRUE(look.dark);
  EXPECT_GE(Contrast(look.accent, look.base), 4.5);
  EXPECT_GE(Contrast(look.accent, look.window), 4.5);
}

}  // namespace
}  // namespace tamo
