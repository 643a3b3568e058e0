#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "records/datafolder.h"
#include "windows/keeperroom.h"
#include "windows/keys.h"

// The home page in the running program: its figures come from a thread of their own.

namespace tamo {
namespace {

struct HomePageTest : testing::Test, test::KeeperRoom {
  HomePageTest() {
    const QString project = Path("home/Tamo/Projects/07-2611004/");
    PutLines(Path("home/Tamo/Jobs.lst"), {QStringLiteral("07-2611004   Riverside")});
    PutLines(Path("home/Tamo/Descriptions.tamo"), {QStringLiteral("Door")});
    const QStringList door = {QStringLiteral("Door"),
                              QStringLiteral("EA"),
                              QStringLiteral("300.00"),
                              QStringLiteral("255000000"),
                              QString(),
                              QStringLiteral("\x01"),
                              QString(),
                              QString()};
    PutLines(Path("home/Tamo/Systems/Door.sys"), door);
    PutLines(project + QStringLiteral("Systems/Door.sys"), door);
    PutLines(project + QStringLiteral("ATOs/Areas.tamo"), {});
    program.BeginHomePage();
  }
  QString Caption(const char* name) {
    return dynamic_cast<Captioned&>(*FormOf("Tamo").Find(QLatin1String(name))).Caption();
  }
  // Until the figures of what was done are there.
  void WaitForFigures() {
    QElapsedTimer since;
    since.start();
    while (!program.HomePageIsUpToDate() && since.elapsed() < 10000)
      QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    test::Settle();
  }
  void Enter(const char* text) {
    desk.TypeText(*desk.Focused(), QLatin1String(text));
    desk.PressKey(*desk.Focused(), Key::Named(Key::Name::Enter));
  }
};

TEST_F(HomePageTest, FollowsEveryEntryByItself) {
  Menu("Tamo", "OpenProject");
  auto& jobs = dynamic_cast<OrderedList&>(*FormOf("Tamo").Find(QStringLiteral("JobsList")));
  desk.ClickRow(jobs, 0);
  WaitForFigures();
  EXPECT_EQ(Caption("HomeTotal"), QStringLiteral("Recap total: $ 0"));
  Menu("Tamo", "NonFinishScheduleItems");
  Enter("Yard");
  Enter("Door");
  Enter("2");
  WaitForFigures();
  EXPECT_EQ(Caption("HomeTotal"), QStringLiteral("Recap total: $ 600"));
  EXPECT_EQ(Caption("HomeAreas"), QStringLiteral("Areas: 1, 1 line"));
  EXPECT_EQ(Caption("HomeLast"), QStringLiteral("Last entry: 2 of Door in \"Yard\""));
  // What can't be stored is counted all the same, as in the reports.
  disk.SetFull(true);
  Enter("3");
  EXPECT_EQ(Caption("HomeTotal"), QStringLiteral("Recap total: $ 1,500"));
  program.Tick();
  WaitForFigures();
  EXPECT_EQ(Caption("HomeTotal"), QStringLiteral("Recap total: $ 1,500"));
  disk.SetFull(false);
}

// What the program removed itself is not gone: the system only has no price any more.
TEST_F(HomePageTest, ASystemThatIsDeletedIsUnpriced) {
  Menu("Tamo", "OpenProject");
  auto& jobs = dynamic_cast<OrderedList&>(*FormOf("Tamo").Find(QStringLiteral("JobsList")));
  desk.ClickRow(jobs, 0);
  Menu("Tamo", "NonFinishScheduleItems");
  Enter("Yard");
  Enter("Door");
  Enter("2");
  WaitForFigures();
  EXPECT_EQ(Caption("HomeUnpriced"), QStringLiteral("Systems without a price: none"));
  desk.Dispatch([this] {
    Files& files = program.GetFiles();
    EXPECT_EQ(files.Remove(ProjectFolder(program.Shared()).SystemFile(QStringLiteral("Door"))), 0);
  });
  WaitForFigures();
  EXPECT_EQ(Caption("HomeUnpriced"), QStringLiteral("Systems without a price: 1 (Door)"));
}

TEST_F(HomePageTest, TabWalksThroughItAndTheFocusNeverComesByItself) {
  FormOf("Tamo").Show();
  test::Settle();
  EXPECT_EQ(desk.Focused(), nullptr);
  desk.MoveFocus(true);
  EXPECT_EQ(desk.Focused(), FormOf("Tamo").Find(QStringLiteral("HomeSample")));
  test::Settle();
  QWidget* cell = windows.WidgetOf(*FormOf("Tamo").Find(QStringLiteral("HomeSample")));
  EXPECT_TRUE(cell->isVisible());
  EXPECT_TRUE(cell->hasFocus());
  desk.MoveFocus(true);
  EXPECT_EQ(desk.Focused(), FormOf("Tamo").Find(QStringLiteral("HomeCreate")));
}

}  // namespace
}  // namespace tamo
