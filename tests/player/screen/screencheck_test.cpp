// The check of the screen finds what the windows show wrongly: each test spoils one widget behind
// the program's back.

#include "player/screencheck.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTemporaryDir>

#include "player/cast.h"
#include "player/machine.h"
#include "player/programplayed.h"
#include "player/windowsstage.h"
#include "support/sourcefile.h"

using namespace tamo;
using namespace tamo::player;

namespace {

class ScreenCheck : public testing::Test {
 protected:
  ScreenCheck()
      : machine(folder.filePath("program"), folder.filePath("home")), stage(MakeWindowsStage()) {
    Machine::Copy(test::SourceFile(QStringLiteral("data")), machine.ProgramFolder());
    Machine::WriteFile(machine.HomeFolder() + "/Tamo/Jobs.lst",
                       "07-2611001   A\r\n07-2611002   B\r\n");
    played = std::make_unique<ProgramPlayed>(machine.GetPlatform());
    stage->Raise(*played);
    played->Start();
    EXPECT_EQ(stage->Difference(true).toStdString(), "");
    stage->ChooseMenu(EntryNamed(*played, "Tamo.OpenProject"));
    EXPECT_EQ(stage->Difference(true).toStdString(), "");
  }
  ~ScreenCheck() override { stage->Strike(); }

  QWidget& Window(const char* form) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == QLatin1String(form)) return *window;
    }
    ADD_FAILURE() << form << " has no window";
    std::abort();
  }
  QLineEdit& JobName() {
    for (auto* edit : Window("Tamo").findChildren<QLineEdit*>()) {
      if (edit->objectName() == QStringLiteral("JobName")) return *edit;
    }
    ADD_FAILURE() << "no JobName";
    std::abort();
  }
  void Finds(const char* what) {
    const QString found = stage->Difference(true);
    EXPECT_TRUE(found.contains(QLatin1String(what))) << found.toStdString();
  }

  QTemporaryDir folder;
  Machine machine;
  std::unique_ptr<Stage> stage;
  std::unique_ptr<ProgramPlayed> played;
};

}  // namespace

TEST_F(ScreenCheck, AnotherText) {
  JobName().blockSignals(true);
  JobName().setText(QStringLiteral("x"));
  Finds("Tamo.JobName differs on the screen, its text");
}

TEST_F(ScreenCheck, AHiddenWidget) {
  JobName().hide();
  Finds("Tamo.JobName differs on the screen, shown");
}

TEST_F(ScreenCheck, ADisabledWidget) {
  JobName().setEnabled(false);
  Finds("Tamo.JobName differs on the screen, enabled");
}

TEST_F(ScreenCheck, AnotherCaption) {
  Window("Tamo").setWindowTitle(QStringLiteral("x"));
  Finds("Tamo differs on the screen, its caption");
}

TEST_F(ScreenCheck, AnotherSelectedRow) {
  for (auto* list : Window("Tamo").findChildren<QListView*>()) {
    if (list->isVisible()) list->setCurrentIndex(list->model()->index(1, 0));
  }
  Finds("Tamo.JobsList differs on the screen, the selected row");
}

TEST_F(ScreenCheck, AMissingRow) {
  played->GetDesk().Dispatch([] {});
  auto& list = ControlOfKind<OrderedList>(*played, "Tamo.JobsList", "list");
  const auto observer = list.observer;
  list.observer = nullptr;
  list.Add(QStringLiteral("07-2611003   C"));
  Finds("Tamo.JobsList differs on the screen, its rows");
  list.observer = observer;
}

TEST_F(ScreenCheck, AMenuThatIsOff) {
  for (auto* action : Window("Tamo").findChildren<QAction*>()) action->setEnabled(false);
  Finds("enabled");
}

TEST_F(ScreenCheck, AWindowThatIsGone) {
  Window("Tamo").hide();
  Finds("Tamo differs on the screen, visible");
}
