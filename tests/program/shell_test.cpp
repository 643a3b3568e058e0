#include <gtest/gtest.h>

#include "plans/pdfdraw.h"
#include "program/program.h"
#include "support/fakeplanengine.h"
#include "support/room.h"

namespace tamo {
namespace {

class ShellTest : public ::testing::Test, public test::MachineRoom {
 protected:
  ShellTest() { program.Start(); }

  Form& Main() { return *program.FindForm(QStringLiteral("Tamo")); }
  Form& Ost() { return *program.FindForm(QStringLiteral("OST")); }
  void Enter(const char* option) {
    Form& settings = *program.FindForm(QStringLiteral("Settings"));
    program.GetDesk().ClickInto(*settings.Find(QLatin1String(option)));
  }
  // What the entry does, whether it can be chosen or not.
  void Run(Form& form, const char* entry) {
    program.GetDesk().Dispatch([&] { form.FindMenu(QLatin1String(entry))->onClick(); });
  }

  Files planFiles{disk};
  test::FakePlanEngine engine;
  PdfDraw viewer{planFiles, engine};
  Program program{platform, viewer};
};

TEST_F(ShellTest, APlanNamedAtTheStartIsShown) {
  Put(Path("home/Depot.pdf"), "%PDF");
  program.OpenPlan(Path("home/Depot.pdf"));
  EXPECT_TRUE(Ost().Visible());
  EXPECT_EQ(viewer.ShownPath(), Path("home/Depot.pdf"));
}

TEST_F(ShellTest, ExitOfTheMainFormInMode2DoesNotEndTheProgram) {
  Enter("Option2");
  Run(Main(), "Exit");
  EXPECT_TRUE(program.Running());
  EXPECT_FALSE(Main().Visible());
  EXPECT_TRUE(Ost().Visible());
}

TEST_F(ShellTest, ExitOfTheMainFormInMode1Ends) {
  Run(Main(), "Exit");
  EXPECT_FALSE(program.Running());
}

TEST_F(ShellTest, ExitOfThePlanFormInMode1GoesBackToTheMainForm) {
  Run(Main(), "OST1");
  EXPECT_TRUE(Ost().Visible());
  Run(Ost(), "Exit");
  EXPECT_FALSE(Ost().Visible());
  EXPECT_TRUE(Main().Visible());
  EXPECT_TRUE(program.Running());
}

TEST_F(ShellTest, TheEndAsksWhenSomethingIsPending) {
  disk.Deny(folder.path());
  program.GetFiles().SaveText(folder.filePath(QStringLiteral("home/a.txt")), QStringLiteral("x"));
  messages.answers = {false, true};
  EXPECT_FALSE(program.MayEnd());
  EXPECT_TRUE(program.MayEnd());
  disk.Allow(folder.path());
  EXPECT_TRUE(program.MayEnd()) << "it was saved meanwhile";
  EXPECT_EQ(messages.texts.size(), 2);
}

TEST_F(ShellTest, TheMenusStandInTheirOrder) {
  QStringList bar;
  for (const MenuEntry* entry : Main().Menus()) {
    if (entry->Parent() == nullptr) bar += entry->Name();
  }
  EXPECT_EQ(bar, QStringList({"Project", "Pricing2", "Estimate", "Reports1", "Drawings", "OST1",
                              "Settings1", "Docs1", "Exit"}));
  QStringList reports;
  for (const MenuEntry* entry : Main().FindMenu(QStringLiteral("Reports1"))->Children())
    reports += entry->Caption();
  EXPECT_EQ(reports,
            QStringList({"Pr&oject Information", "&Quantities", "&Recap", "&BreakDown",
                         "Bill of &Labor", "Bill of &Material", "&Project Manager", "Propo&sal",
                         "Schedule &Check", "&What Changed Since the Bid Was Sent (F8)"}));
  QStringList plan;
  for (const MenuEntry* entry : Ost().Menus()) {
    if (entry->Parent() == nullptr && !entry->Name().startsWith(QLatin1String("Spacer")))
      plan += entry->Name();
  }
  EXPECT_EQ(plan, QStringList({"ProjectS", "Pricing2", "Estimate", "Reports1", "ZoomOut", "ZoomIn",
                               "ScaleA", "GetFiles", "LinesColor", "LastPage", "NextPage", "Save",
                               "Printit", "Documentation", "Settings1", "Exit", "ScheduleMenu",
                               "DrawMenu", "SheetsMenu"}));
  EXPECT_EQ(Ost().FindMenu(QStringLiteral("LockProject")), nullptr)
      << "a project is locked in mode 1 only";
}

}  // namespace
}  // namespace tamo
