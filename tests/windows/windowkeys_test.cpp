#include "windows/windowkeys.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDropEvent>
#include <QMimeData>
#include <QTableWidget>
#include <QUrl>

#include "windows/findbar.h"
#include "windows/keeperroom.h"
#include "windows/keys.h"
#include "windows/plancanvas.h"

// The keys that every window has, pressed as a person presses them.

namespace tamo {
namespace {

struct WindowKeysTest : testing::Test, test::KeeperRoom {
  WindowKeysTest() { test::Settle(); }
  TextField& Field(const char* form, const char* name) {
    return dynamic_cast<TextField&>(*FormOf(form).Find(QLatin1String(name)));
  }
  OrderedList& List(const char* form, const char* name) {
    return dynamic_cast<OrderedList&>(*FormOf(form).Find(QLatin1String(name)));
  }
  QWidget& Focused() {
    QWidget* focused = QApplication::focusWidget();
    return focused == nullptr ? *windows.WindowOf(*desk.Active()) : *focused;
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers held = Qt::ControlModifier) {
    test::Press(Focused(), key, held);
    test::Settle();
  }
  void OpenProject() {
    program.Shared().JobID = QStringLiteral("07-2611004");
    program.Shared().JobName = QStringLiteral("Riverside Clinic");
  }
};

TEST_F(WindowKeysTest, WindowsAreReachedByNumber) {
  Key(Qt::Key_3);
  EXPECT_EQ(desk.Active(), &FormOf("Pricing"));
  Key(Qt::Key_9);
  EXPECT_EQ(desk.Active(), &FormOf("Docs"));
  Key(Qt::Key_1);
  EXPECT_EQ(desk.Active(), &FormOf("Tamo"));
  Key(Qt::Key_9);
  EXPECT_EQ(desk.Active(), &FormOf("Docs")) << "one that is open comes to the front";
  Key(Qt::Key_2);
  EXPECT_EQ(desk.Active(), &FormOf("OST"));
}

TEST_F(WindowKeysTest, AWindowThatNeedsAProjectAsksForItAsItsEntryDoes) {
  Key(Qt::Key_6);
  EXPECT_FALSE(FormOf("BottomLine").Visible());
  OpenProject();
  Key(Qt::Key_6);
  EXPECT_TRUE(FormOf("BottomLine").Visible());
}

TEST_F(WindowKeysTest, CtrlPPrintsWhatIsInFront) {
  OpenProject();
  Key(Qt::Key_6);
  List("BottomLine", "oiList").SetRows({QStringLiteral("Scaffold                  1200.00")});
  Key(Qt::Key_P);
  const QStringList printed = printer.TakePrinted();
  EXPECT_TRUE(
      printed.contains(QString(20, u' ') + QStringLiteral("Scaffold                  1200.00")));
  EXPECT_TRUE(printed.filter(QStringLiteral("Riverside Clinic     Page 1")).size() == 1);
}

TEST_F(WindowKeysTest, WhereNothingStandsNothingIsPrinted) {
  Menu("Tamo", "Settings1");
  Key(Qt::Key_P);
  EXPECT_TRUE(printer.TakePrinted().isEmpty());
  EXPECT_TRUE(messages.texts.back().startsWith(QStringLiteral("Nothing stands")));
}

TEST_F(WindowKeysTest, AllKeysOfTheWindowStandOnOnePage) {
  Key(Qt::Key_Slash);
  auto* page = Window("Tamo").findChild<QDialog*>(QStringLiteral("KeysPage"));
  ASSERT_NE(page, nullptr);
  EXPECT_TRUE(page->isVisible());
  const auto* table = page->findChild<QTableWidget*>();
  EXPECT_FALSE(table->findItems(QStringLiteral("Alt+P"), Qt::MatchExactly).isEmpty());
  EXPECT_FALSE(table->findItems(QStringLiteral("Ctrl+9"), Qt::MatchExactly).isEmpty());
  Key(Qt::Key_Escape, Qt::NoModifier);
  EXPECT_EQ(Window("Tamo").findChild<QDialog*>(QStringLiteral("KeysPage")), nullptr);
}

TEST_F(WindowKeysTest, APlanIsOpenedByTheSystemsDialogAndByDropping) {
  const QString plan = Path("A1.pdf");
  Put(plan, "%PDF-1.4");
  Put(Path("B2.PDF"), "%PDF-1.4");
  windows.askForPlan = [&](QWidget*) { return plan; };
  Key(Qt::Key_O);
  EXPECT_EQ(desk.Active(), &FormOf("OST"));
  EXPECT_TRUE(Field("OST", "PlanLocation").Text().endsWith(QStringLiteral("A1.pdf")));
  EXPECT_TRUE(Window("OST").windowTitle().endsWith(QStringLiteral(" - A1.pdf")));
  windows.askForPlan = [](QWidget*) { return QString(); };
  Field("OST", "PlanLocation").SetText(QStringLiteral("kept"));
  Key(Qt::Key_O);
  EXPECT_EQ(Field("OST", "PlanLocation").Text(), QStringLiteral("kept"));

  QMimeData dropped;
  dropped.setUrls({QUrl::fromLocalFile(Path("notes.txt")), QUrl::fromLocalFile(Path("B2.PDF"))});
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&Window("Tamo"), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&Window("Tamo"), &drop);
  EXPECT_TRUE(Field("OST", "PlanLocation").Text().endsWith(QStringLiteral("B2.PDF")));
}

TEST_F(WindowKeysTest, TitlesNameTheProjectBehindTheCaption) {
  EXPECT_EQ(Window("Tamo").windowTitle(), QStringLiteral("Estimating Beta 1.4"));
  OpenProject();
  Menu("Tamo", "Settings1");
  windows.SyncNow();
  EXPECT_EQ(Window("Tamo").windowTitle(),
            QStringLiteral("Estimating Beta 1.4 - 07-2611004 Riverside Clinic"));
  EXPECT_EQ(Window("Settings").windowTitle(), FormOf("Settings").Caption());
}

TEST_F(WindowKeysTest, F1OpensTheManualAtTheField) {
  Menu("Tamo", "UnitsPricing");
  desk.UserFocus(Field("Pricing", "Description"));
  test::Settle();
  test::Press(Focused(), Qt::Key_F1);
  EXPECT_EQ(List("Docs", "MenuList").Selected(), QStringLiteral("Pricing"));
  FormOf("Docs").Hide();
  Menu("Tamo", "OST1");
  desk.UserFocus(Field("OST", "Scale1"));
  test::Settle();
  test::Press(Focused(), Qt::Key_F1);
  EXPECT_EQ(List("Docs", "MenuList").Selected(), QStringLiteral("     Scale"));
}

TEST_F(WindowKeysTest, ProjectsAreFoundAndTaken) {
  List("Tamo", "JobsList")
      .SetRows({QStringLiteral("07-1   Clinic"), QStringLiteral("07-2   Depot"),
                QStringLiteral("07-3   clinic annex")});
  List("Tamo", "JobsList").Show();
  FormOf("Tamo").Find(QStringLiteral("JobNFOFrame"))->Show();
  windows.SyncNow();
  Key(Qt::Key_F);
  auto* view = dynamic_cast<RowsView*>(windows.WidgetOf(List("Tamo", "JobsList")));
  test::Type(Focused(), QStringLiteral("clin"));
  EXPECT_EQ(view->Found(), QStringLiteral("clin"));
  EXPECT_EQ(view->Walked(), 0);
  Key(Qt::Key_Return, Qt::NoModifier);
  EXPECT_EQ(view->Walked(), 2);
  Key(Qt::Key_N, Qt::NoModifier);
  EXPECT_EQ(view->Walked(), 0) << "round the end";
  Key(Qt::Key_N, Qt::ShiftModifier);
  EXPECT_EQ(view->Walked(), 2);
  int taken = -1;
  List("Tamo", "JobsList").onSelect = [&] { taken = List("Tamo", "JobsList").Index(); };
  Key(Qt::Key_Space, Qt::NoModifier);
  EXPECT_EQ(taken, 2);
  EXPECT_EQ(view->Found(), QString());
}

TEST_F(WindowKeysTest, TheManualIsSearched) {
  Key(Qt::Key_9);
  Field("Docs", "DocText").SetText(QStringLiteral("one\r\ntwo walls\r\nthree\r\nWall four"));
  windows.SyncNow();
  Key(Qt::Key_F);
  test::Type(Focused(), QStringLiteral("wall"));
  auto* text = dynamic_cast<QPlainTextEdit*>(windows.WidgetOf(Field("Docs", "DocText")));
  // The line in work and two places.
  EXPECT_EQ(text->extraSelections().size(), 3);
  EXPECT_EQ(text->extraSelections().first().cursor.blockNumber(), 1);
  Key(Qt::Key_Return, Qt::NoModifier);
  EXPECT_EQ(text->extraSelections().first().cursor.blockNumber(), 3);
  Key(Qt::Key_Backspace, Qt::NoModifier);
  test::Type(Focused(), QStringLiteral("zzz"));
  EXPECT_TRUE(text->extraSelections().isEmpty());
  const auto* bar = Window("Docs").findChild<QLabel*>(QStringLiteral("FindResult"));
  ASSERT_NE(bar, nullptr);
  EXPECT_EQ(bar->text(), QStringLiteral("Found nowhere."));
  Key(Qt::Key_Escape, Qt::NoModifier);
  EXPECT_FALSE(bar->isVisible());
}

TEST_F(WindowKeysTest, AllSheetsOfThePlanAreSearched) {
  engine.pages = 3;
  engine.words = {QStringLiteral("FIRST FLOOR"), QStringLiteral("WALL TYPES"),
                  QStringLiteral("DOOR AND WALL")};
  Menu("Tamo", "OST1");
  PutLines(Path("set.pdf"), {QStringLiteral("%PDF-1.4")});
  desk.Dispatch([&] { ASSERT_EQ(viewer.OpenFile(Path("set.pdf"), QString()), 0); });
  test::Settle();
  const auto* said = Window("OST").findChild<QLabel*>(QStringLiteral("FindResult"));
  ASSERT_NE(said, nullptr);
  Key(Qt::Key_F);
  test::Type(Focused(), QStringLiteral("wall"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return said->text().contains("2 places have it"); }))
      << said->text().toStdString();
  EXPECT_EQ(viewer.Page(), 2);
  EXPECT_TRUE(said->text().startsWith("Sheet 2;")) << said->text().toStdString();
  const auto* canvas = dynamic_cast<const PlanCanvas*>(windows.Plan());
  ASSERT_NE(canvas, nullptr);
  ASSERT_EQ(canvas->foundOn(2).size(), 1U);
  EXPECT_TRUE(canvas->foundOn(2)[0].walked);
  EXPECT_TRUE(canvas->foundOn(1).empty());
  Key(Qt::Key_Return, Qt::NoModifier);
  EXPECT_EQ(viewer.Page(), 3);
  Key(Qt::Key_N, Qt::NoModifier);
  EXPECT_EQ(viewer.Page(), 2) << "round the end";
  Key(Qt::Key_N, Qt::ShiftModifier);
  EXPECT_EQ(viewer.Page(), 3);
  Key(Qt::Key_Escape, Qt::NoModifier);
  EXPECT_FALSE(said->isVisible());
  EXPECT_TRUE(canvas->foundOn(3).empty());
}

TEST_F(WindowKeysTest, APlanWithoutTextSaysSo) {
  engine.pages = 2;
  Menu("Tamo", "OST1");
  PutLines(Path("scan.pdf"), {QStringLiteral("%PDF-1.4")});
  desk.Dispatch([&] { ASSERT_EQ(viewer.OpenFile(Path("scan.pdf"), QString()), 0); });
  test::Settle();
  const auto* said = Window("OST").findChild<QLabel*>(QStringLiteral("FindResult"));
  Key(Qt::Key_F);
  test::Type(Focused(), QStringLiteral("wall"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return said->text().contains("hold no text"); }))
      << said->text().toStdString();
}

TEST_F(WindowKeysTest, TheLibraryIsSearchedInTheListOfTheField) {
  Menu("Tamo", "UnitsPricing");
  List("Pricing", "DescriptionsList")
      .SetRows({QStringLiteral("Wall Paint"), QStringLiteral("Rubber Base")});
  windows.SyncNow();
  Key(Qt::Key_F);
  EXPECT_TRUE(List("Pricing", "DescriptionsList").Shown());
  test::Type(Focused(), QStringLiteral("base"));
  auto* view = dynamic_cast<RowsView*>(windows.WidgetOf(List("Pricing", "DescriptionsList")));
  EXPECT_EQ(view->Walked(), 1);
}

TEST_F(WindowKeysTest, AFieldHasItsOwnMenu) {
  Menu("Tamo", "Settings1");
  TextField& name = Field("Settings", "EstimatorName");
  desk.UserFocus(name);
  desk.TypeText(name, QStringLiteral("Ann"));
  desk.Dispatch([&] { name.SelectAll(); });
  test::Settle();
  const auto choose = [&](const char* caption) {
    QWidget& field = *windows.WidgetOf(name);
    QContextMenuEvent ask(QContextMenuEvent::Mouse, QPoint(3, 3), field.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&field, &ask);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions()) {
      if (action->text() == QLatin1String(caption)) action->trigger();
    }
    menu->close();
    test::Settle();
  };
  choose("&Copy");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Ann"));
  QApplication::clipboard()->setText(QStringLiteral("Bob\r\nCarl"));
  choose("&Paste");
  EXPECT_EQ(name.Text(), QStringLiteral("Bob Carl"));
}

TEST_F(WindowKeysTest, EndGoesToTheEndOfATextThatIsBeingMended) {
  Menu("Tamo", "UnitsPricing");
  List("Pricing", "DescriptionsList").SetRows({QStringLiteral("Wall Paint")});
  test::Type(Focused(), QStringLiteral("wll"));
  test::Press(Focused(), Qt::Key_Left);
  test::Press(Focused(), Qt::Key_Left);
  test::Type(Focused(), QStringLiteral("a"));
  test::Press(Focused(), Qt::Key_End);
  EXPECT_EQ(Field("Pricing", "Description").Text(), QStringLiteral("wall"));
  test::Press(Focused(), Qt::Key_End);
  EXPECT_EQ(Field("Pricing", "Description").Text(), QStringLiteral("Wall Paint"));
}

}  // namespace
}  // namespace tamo
