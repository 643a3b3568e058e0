#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QWheelEvent>
#include <QWindow>

#include "plans/pdfdraw.h"
#include "program/program.h"
#include "support/fakeplanengine.h"
#include "support/room.h"
#include "windows/application.h"
#include "windows/browserview.h"
#include "windows/formwindow.h"
#include "windows/keys.h"
#include "windows/look.h"
#include "windows/plancanvas.h"
#include "windows/qtservices.h"
#include "windows/rowsview.h"
#include "windows/windowprobe.h"

// The windows of the whole program.

namespace tamo {
namespace {

const char* const kForms[] = {"Tamo",       "Settings",       "Pricing", "RFSForm", "EstimateForm",
                              "BottomLine", "AdjustmentForm", "OST",     "Reports", "Docs"};

struct KeeperTest : test::WithApplication, testing::Test, test::MachineRoom {
  KeeperTest() {
    ApplyLook(Look::Light());
    program.Start();
    windows.SyncNow();
  }
  Form& FormOf(const char* name) { return *program.FindForm(QLatin1String(name)); }
  FormWindow& Window(const char* name) {
    return dynamic_cast<FormWindow&>(*windows.WindowOf(FormOf(name)));
  }
  void Menu(const char* form, const char* entry) {
    desk.ChooseMenu(*FormOf(form).FindMenu(QLatin1String(entry)));
    test::Settle();
  }

  Files planFiles{disk};
  test::FakePlanEngine engine;
  PdfDraw viewer{planFiles, engine};
  Program program{platform, viewer};
  Desk& desk = program.GetDesk();
  test::WindowProbe windows{program, nullptr, Path("windows.ini")};
};

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

TEST_F(KeeperTest, SettingsLieOverTheMainWindowWhenTheNumberIsMissing) {
  Menu("Tamo", "NewProject");
  QWidget& settings = Window("Settings");
  ASSERT_TRUE(settings.isVisible());
  EXPECT_EQ(settings.windowHandle()->transientParent(), Window("Tamo").windowHandle());
  EXPECT_TRUE(Window("Tamo").isActiveWindow());
}

TEST_F(KeeperTest, EndAndPageDownReadOnInAReportThatWasJustOpened) {
  PutLines(Path("home/Tamo/Jobs.lst"), {QStringLiteral("00-2112001   One")});
  QStringList record{QStringLiteral("00-2112001"), QStringLiteral("One")};
  for (int i = 0; i < 200; ++i) record += QStringLiteral("a line of the notes");
  PutLines(Path("home/Tamo/Projects/00-2112001/JobNFO.tamo"), record);
  Menu("Tamo", "OpenProject");
  auto& jobs = dynamic_cast<OrderedList&>(*FormOf("Tamo").Find(QStringLiteral("JobsList")));
  desk.ClickRow(jobs, 0);
  Menu("Tamo", "ProjectNFO");
  auto& report = dynamic_cast<OrderedList&>(*FormOf("Reports").Find(QStringLiteral("Reporter")));
  auto& view = dynamic_cast<RowsView&>(*windows.WidgetOf(report));
  EXPECT_TRUE(view.hasFocus());
  test::Press(*QApplication::focusWidget(), Qt::Key_PageDown);
  test::Settle();
  const int page = view.verticalScrollBar()->value();
  EXPECT_GT(page, 0);
  test::Press(*QApplication::focusWidget(), Qt::Key_End);
  test::Settle();
  EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
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

TEST_F(KeeperTest, ThePlaceOfAWindowIsRemembered) {
  Menu("Tamo", "Settings1");
  Window("Settings").setGeometry(40, 60, 900, 650);
  Menu("Tamo", "Settings1");
  test::WindowProbe again(program, nullptr, Path("windows.ini"));
  EXPECT_EQ(again.WindowOf(FormOf("Settings"))->size(), QSize(900, 650));
}

TEST_F(KeeperTest, APlaceOnThePlanIsFoundAgainAtEveryTurnAndZoom) {
  Menu("Tamo", "OST1");
  auto* plan = dynamic_cast<PlanCanvas*>(windows.Plan());
  ASSERT_NE(plan, nullptr);
  for (const int turn : {0, 90, 180, 270}) {
    for (const int zoom : {40, 100, 150, 400}) {
      viewer.SetViewValue(ViewPart::Rotation, turn);
      viewer.SetZoom(zoom);
      const PagePoint back = plan->PageAt(windows.PlanPlace({120.5, 700.25}));
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

TEST_F(KeeperTest, AnEmptyDropListIsNotShown) {
  Menu("Tamo", "UnitsPricing");
  Form& pricing = FormOf("Pricing");
  auto& list = dynamic_cast<OrderedList&>(*pricing.Find(QStringLiteral("DescriptionsList")));
  QWidget& widget = *windows.WidgetOf(list);
  desk.Dispatch([&] {
    list.Clear();
    list.Show();
  });
  EXPECT_TRUE(widget.isHidden());
  desk.Dispatch([&] { list.Add(QStringLiteral("Wall")); });
  EXPECT_FALSE(widget.isHidden());
}

TEST_F(KeeperTest, LongCaptionsOfPricingMoveNoField) {
  Menu("Tamo", "UnitsPricing");
  Form& pricing = FormOf("Pricing");
  desk.Dispatch([&] { pricing.Find(QStringLiteral("LandMFrame"))->Show(); });
  test::Settle();
  QWidget& field = *windows.WidgetOf(*pricing.Find(QStringLiteral("UPO")));
  const int before = field.mapTo(&Window("Pricing"), QPoint()).x();
  auto& caption = dynamic_cast<Label&>(*pricing.Find(QStringLiteral("LabelUPO")));
  desk.Dispatch(
      [&] { caption.SetCaption(QStringLiteral("How many LINFT per GREAT BUNDLE OF SHEETS:")); });
  test::Settle();
  EXPECT_EQ(field.mapTo(&Window("Pricing"), QPoint()).x(), before);
}

TEST_F(KeeperTest, AnotherFolderOfPlansIsShownFromItsTop) {
  for (const char* folder : {"home/one", "home/two"}) {
    for (int i = 0; i < 200; ++i)
      Put(Path(QStringLiteral("%1/plan%2.pdf").arg(QLatin1String(folder)).arg(i)), "%PDF");
  }
  Menu("Tamo", "OST1");
  Menu("OST", "GetFiles");
  Form& ost = FormOf("OST");
  auto& folders = dynamic_cast<FileBrowser&>(*ost.Find(QStringLiteral("Dir1")));
  auto& plans = dynamic_cast<FileBrowser&>(*ost.Find(QStringLiteral("File1")));
  windows.PickPath(folders, Path("home/one"), true);
  test::Settle();
  ASSERT_EQ(plans.Folder(), Path("home/one"));
  QScrollBar& bar =
      *dynamic_cast<BrowserView&>(*windows.WidgetOf(plans)).Rows().verticalScrollBar();
  bar.setValue(bar.maximum());
  ASSERT_GT(bar.value(), 50);
  windows.PickPath(folders, Path("home/two"), true);
  test::Settle();
  EXPECT_EQ(bar.value(), 0);
}

TEST_F(KeeperTest, AWindowThatIsShownAgainLiesWhereItWas) {
  Menu("Tamo", "Settings1");
  QWidget& settings = Window("Settings");
  settings.move(33, 21);
  test::Settle();
  Menu("Tamo", "Settings1");
  ASSERT_FALSE(settings.isVisible());
  settings.move(0, 0);  // as a window system that places what it is not told about
  Menu("Tamo", "Settings1");
  EXPECT_EQ(settings.pos(), QPoint(33, 21));
}

TEST_F(KeeperTest, AWindowLiesOnTheScreen) {
  Menu("Tamo", "Settings1");
  QWidget& settings = Window("Settings");
  const QRect screen = settings.screen()->availableGeometry();
  for (const QPoint& place : {QPoint(5000, 4000), QPoint(-900, -700), QPoint(700, 500)}) {
    settings.move(place);
    settings.resize(760, 560);
    test::Settle();
    Menu("Tamo", "Settings1");
    Menu("Tamo", "Settings1");
    EXPECT_TRUE(screen.contains(settings.frameGeometry())) << place.x();
  }
}

TEST_F(KeeperTest, ExitStandsInTheMenuOfANarrowMainWindow) {
  FormWindow& main = Window("Tamo");
  main.resize(200, 300);
  test::Settle();
  const QRect exit = main.Menus().Bar()->actionGeometry(
      main.Menus().ActionOf(*FormOf("Tamo").FindMenu(QStringLiteral("Exit"))));
  EXPECT_FALSE(exit.isEmpty());
  EXPECT_LE(exit.right(), main.width());
}

// Which point of the sheet stands at a place of the window, before and after.
TEST_F(KeeperTest, ThePlanZoomsAboutThePointerAndTheCrossHair) {
  Menu("Tamo", "OST1");
  viewer.SetZoom(300);
  auto& plan = dynamic_cast<PlanCanvas&>(*windows.Plan());
  QWidget& sheet = *plan.viewport();
  const QPointF place(sheet.width() * 0.7, sheet.height() * 0.3);
  const auto wheel = [&](int notches) {
    QWheelEvent event(place, sheet.mapToGlobal(place), {}, {0, 120 * notches}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&sheet, &event);
  };
  const auto near = [&](PagePoint one, PagePoint other) {
    EXPECT_NEAR(one.x, other.x, 1);
    EXPECT_NEAR(one.y, other.y, 1);
  };
  const PagePoint at = plan.PageAt(place);
  wheel(1);
  EXPECT_GT(viewer.Zoom(), 300);
  near(plan.PageAt(place), at);
  wheel(1);
  near(plan.PageAt(place), at);
  for (int i = 0; i < 20; ++i) wheel(1);
  EXPECT_EQ(viewer.Zoom(), 800);
  near(plan.PageAt(place), at);
  const auto* label = Window("OST").findChild<QLabel*>(QStringLiteral("ZoomPerCent"));
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->text(), QStringLiteral("Zoom 800%"));
  for (int i = 0; i < 40; ++i) wheel(-1);
  EXPECT_EQ(viewer.Zoom(), 10);
  // By key: with no tool in hand about the middle.
  auto& level = dynamic_cast<TextField&>(*FormOf("OST").Find(QStringLiteral("ZoomLevel")));
  const auto plus = [&] {
    level.SetText(QStringLiteral("9"));
    viewer.SetZoom(120);
    test::Press(plan, Qt::Key_Plus);
    EXPECT_EQ(viewer.Zoom(), 130);
  };
  viewer.SetZoom(120);
  viewer.SetViewValue(ViewPart::Horizontal, 100);
  viewer.SetViewValue(ViewPart::Vertical, 100);
  const QPointF middle = QRectF(sheet.rect()).center();
  PagePoint held = plan.PageAt(middle);
  plus();
  near(plan.PageAt(middle), held);
  // With one about the cross hair.
  desk.Dispatch([&] { viewer.PickTool(PlanTool::Measuring); });
  viewer.SetZoom(120);
  held = viewer.CrossHair();
  const QPointF hair = plan.PlaceInView(held);
  plus();
  near(plan.PageAt(hair), held);
  test::Press(plan, Qt::Key_F);
  const PageSize page = viewer.SizeOfPage(1);
  EXPECT_LE(page.height * viewer.Zoom() / 75.0, sheet.height());
  EXPECT_GT(page.height * (viewer.Zoom() + 2) / 75.0, sheet.height());
  test::Press(plan, Qt::Key_W);
  EXPECT_LE(page.width * viewer.Zoom() / 75.0, sheet.width());
  EXPECT_GT(page.width * (viewer.Zoom() + 2) / 75.0, sheet.width());
}

// Of pictures that the toolkit reads by itself: no plug-in is needed.
TEST_F(KeeperTest, TheProgramHasAnIconInEverySize) {
  const QIcon icon = ProgramIcon(QStringLiteral(TAMO_SOURCE_DIR "/data"));
  EXPECT_EQ(icon.availableSizes().size(), 8);
  for (const int size : {16, 32, 48, 256}) {
    const QImage picture = icon.pixmap(QSize(size, size), 1.0).toImage();
    ASSERT_EQ(picture.size(), QSize(size, size));
    EXPECT_EQ(picture.pixelColor(size / 2, size * 7 / 8).name(), QStringLiteral("#1f4e79"));
  }
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
