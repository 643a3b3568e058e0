#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include "support/sourcefile.h"
#include "windows/browserview.h"
#include "windows/keeperroom.h"
#include "windows/keys.h"
#include "windows/plancanvas.h"
#include "windows/qtservices.h"
#include "windows/rowsview.h"

// What makes the windows easy to work at: where they lie, what has the keyboard, how the plan
// zooms.

namespace tamo {
namespace {

struct DeskWindowsTest : testing::Test, test::KeeperRoom {};

TEST_F(DeskWindowsTest, SettingsLieOverTheMainWindowWhenTheNumberIsMissing) {
  Menu("Tamo", "NewProject");
  QWidget& settings = Window("Settings");
  ASSERT_TRUE(settings.isVisible());
  EXPECT_EQ(settings.windowHandle()->transientParent(), Window("Tamo").windowHandle());
  EXPECT_TRUE(QTest::qWaitFor([this] { return Window("Tamo").isActiveWindow(); }));
}

// A window system may bring up a window that was only just shown, and the one in front again right
// after it.
TEST_F(DeskWindowsTest, AWindowThatPassesBeforeTheFrontOneIsNoMoveOfTheUser) {
  Menu("Tamo", "NewProject");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Window("Tamo").isActiveWindow(); }));
  QTest::qWait(1100);  // by then the window system counts as having answered
  QEvent activated(QEvent::WindowActivate);
  QApplication::sendEvent(&Window("Settings"), &activated);
  QApplication::sendEvent(&Window("Tamo"), &activated);
  QTest::qWait(50);
  EXPECT_EQ(desk.Active(), &FormOf("Tamo"));
  QApplication::sendEvent(&Window("Settings"), &activated);
  EXPECT_TRUE(QTest::qWaitFor([this] { return desk.Active() == &FormOf("Settings"); }));
}

TEST_F(DeskWindowsTest, EndAndPageDownReadOnInAReportThatWasJustOpened) {
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

TEST_F(DeskWindowsTest, AnEmptyDropListIsNotShown) {
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

TEST_F(DeskWindowsTest, LongCaptionsOfPricingMoveNoField) {
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

TEST_F(DeskWindowsTest, AnotherFolderOfPlansIsShownFromItsTop) {
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

TEST_F(DeskWindowsTest, AWindowThatIsShownAgainLiesWhereItWas) {
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

TEST_F(DeskWindowsTest, AWindowLiesOnTheScreen) {
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

TEST_F(DeskWindowsTest, ExitStandsInTheMenuOfANarrowMainWindow) {
  FormWindow& main = Window("Tamo");
  main.resize(200, 300);
  test::Settle();
  const QRect exit = main.Menus().Bar()->actionGeometry(
      main.Menus().ActionOf(*FormOf("Tamo").FindMenu(QStringLiteral("Exit"))));
  EXPECT_FALSE(exit.isEmpty());
  EXPECT_LE(exit.right(), main.width());
}

// Which point of the sheet stands at a place of the window, before and after.
TEST_F(DeskWindowsTest, ThePlanZoomsAboutThePointerAndTheCrossHair) {
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
  const PagePoint at = plan.Sheet().OnPage(place);
  wheel(1);
  EXPECT_GT(viewer.Zoom(), 300);
  near(plan.Sheet().OnPage(place), at);
  wheel(1);
  near(plan.Sheet().OnPage(place), at);
  for (int i = 0; i < 20; ++i) wheel(1);
  EXPECT_EQ(viewer.Zoom(), 800);
  near(plan.Sheet().OnPage(place), at);
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
  PagePoint held = plan.Sheet().OnPage(middle);
  plus();
  near(plan.Sheet().OnPage(middle), held);
  // With one about the cross hair.
  desk.Dispatch([&] { viewer.PickTool(PlanTool::Measuring); });
  viewer.SetZoom(120);
  held = viewer.CrossHair();
  const QPointF hair = plan.PlaceInView(held);
  plus();
  near(plan.Sheet().OnPage(hair), held);
  test::Press(plan, Qt::Key_F);
  const PageSize page = viewer.SizeOfPage(1);
  EXPECT_LE(page.height * viewer.Zoom() / 75.0, sheet.height());
  EXPECT_GT(page.height * (viewer.Zoom() + 2) / 75.0, sheet.height());
  test::Press(plan, Qt::Key_W);
  EXPECT_LE(page.width * viewer.Zoom() / 75.0, sheet.width());
  EXPECT_GT(page.width * (viewer.Zoom() + 2) / 75.0, sheet.width());
}

// Of pictures that the toolkit reads by itself: no plug-in is needed.
TEST_F(DeskWindowsTest, TheProgramHasAnIconInEverySize) {
  const QIcon icon = ProgramIcon(test::SourceFile(QStringLiteral("data")));
  EXPECT_EQ(icon.availableSizes().size(), 8);
  for (const int size : {16, 32, 48, 256}) {
    const QImage picture = icon.pixmap(QSize(size, size), 1.0).toImage();
    ASSERT_EQ(picture.size(), QSize(size, size));
    EXPECT_EQ(picture.pixelColor(size / 2, size * 7 / 8).name(), QStringLiteral("#1f4e79"));
  }
}

}  // namespace
}  // namespace tamo
