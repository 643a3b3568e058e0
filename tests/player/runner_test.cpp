#include "player/runner.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "player/formsstage.h"
#include "player/script.h"
#include "player/toyprogram.h"

using namespace tamo;
using namespace tamo::player;

namespace {

// Plays lines on the toy program, on two fresh folders.
class PlayerTest : public testing::Test {
 protected:
  PlayerTest() : machine(folder.filePath("program"), folder.filePath("home")) {
    QDir().mkpath(machine.ProgramFolder());
    QDir().mkpath(machine.HomeFolder());
  }

  Outcome Play(const char* scenario) {
    QTextStream outStream(&out);
    QTextStream errStream(&err);
    Runner runner(
        machine, [] { return std::make_unique<FormsStage>(); },
        [](const Platform& platform) { return std::make_unique<ToyProgram>(platform); }, outStream,
        errStream);
    const QString file = folder.filePath("toy");
    const Outcome outcome =
        runner.Play(file, StepsOf(file, QString::fromUtf8(scenario).split(QLatin1Char('\n'))));
    err.replace(folder.path() + QLatin1Char('/'), QString());
    return outcome;
  }

  void Holds(const char* scenario) {
    EXPECT_EQ(Play(scenario), Outcome::Held) << err.toStdString();
    EXPECT_EQ(err.toStdString(), "");
  }
  void Fails(const char* scenario, const char* reason) {
    EXPECT_EQ(Play(scenario), Outcome::Failed) << err.toStdString();
    EXPECT_TRUE(err.contains(QString::fromUtf8(reason))) << err.toStdString();
  }
  void IsNotUnderstood(const char* scenario, const char* reason) {
    EXPECT_EQ(Play(scenario), Outcome::NotUnderstood) << err.toStdString();
    EXPECT_TRUE(err.contains(QString::fromUtf8(reason))) << err.toStdString();
  }

  QTemporaryDir folder;
  Machine machine;
  QString out;
  QString err;
};

}  // namespace

TEST_F(PlayerTest, AFieldChain) {
  Holds(R"(start
focus Toy.Name
enter Riverside Clinic
expect focus = Toy.Digits
enter 1a2b3c4d5e6
expect Toy.Digits = 12345
expect Toy.Name = Riverside Clinic
focus Toy.Name
focus Toy.Digits
expect selection Toy.Digits = 12345
type 9
expect Toy.Digits = 9
paste 7x
expect Toy.Digits = 97x
key Backspace
expect Toy.Digits = 97
enter
expect Toy.Digits =)");
}

TEST_F(PlayerTest, AWrongExpectationFailsAndPlaysOn) {
  Fails("start\nexpect Toy = The toy\nprint Toy\nexpect Toy.Hint = x",
        "toy:2: expect Toy = The toy");
  EXPECT_EQ(out.toStdString(), "A toy\n");
  EXPECT_TRUE(err.contains("  - |The toy|\n    + |A toy|")) << err.toStdString();
  EXPECT_TRUE(err.contains("toy:4: ")) << err.toStdString();
}

TEST_F(PlayerTest, AnUnknownNameStopsTheFile) {
  IsNotUnderstood("start\nclick Toy.Nowhere\nprint Toy", "toy:2: ");
  EXPECT_EQ(out.toStdString(), "");
}

TEST_F(PlayerTest, AnUnknownFormLookEntryOrKindStopsTheFile) {
  IsNotUnderstood("start\nexpect Nobody.X = 1", "there is no form Nobody");
  IsNotUnderstood("start\nmenu Toy.Nothing", "Toy has no menu entry Nothing");
  IsNotUnderstood("start\nclick Toy.Ask", "is a menu entry");
  IsNotUnderstood("start\nexpect smell Toy.Name = roses", "there is no look");
  IsNotUnderstood("start\nselect Toy.Name 0", "Toy.Name is no list");
  IsNotUnderstood("start\ntick Toy.Rows 0", "no list with check boxes");
  IsNotUnderstood("start\ndance", "there is no step \"dance\"");
  IsNotUnderstood("start\nplan mode 8", "there is no tool 8");
}

TEST_F(PlayerTest, EverythingBeforeALineThatCannotBeReadIsPlayed) {
  IsNotUnderstood("start\nprint Toy\ndance\nprint Toy", "toy:3: dance");
  EXPECT_EQ(out.toStdString(), "A toy\n");
}

TEST_F(PlayerTest, AQuestionTakesTheWaitingAnswer) {
  Holds(R"(start
answer Yes
answer No
menu Toy.Ask
expect Toy.Hint = yes
menu Toy.Ask
expect Toy.Hint = no
expect messages <<END
Really?
All of it?
-- Yes
Really?
All of it?
-- No
END
expect messages =)");
}

TEST_F(PlayerTest, AQuestionWithoutAWaitingAnswerFailsAndCountsAsNo) {
  Fails("start\nmenu Toy.Ask\nexpect Toy.Hint = no", "toy:2: menu Toy.Ask");
  EXPECT_TRUE(err.contains("without a waiting answer")) << err.toStdString();
  EXPECT_FALSE(err.contains("toy:3")) << err.toStdString();
}

TEST_F(PlayerTest, WhatAPersonCannotReachFails) {
  Fails("start\nclick Toy.Inside", "its frame Box is hidden");
  Fails("start\nmenu Toy.Gone", "Toy.Gone is hidden");
  Fails("start\nselect Toy.Rows 3", "has no row 3");
  Fails("start\nfocus Toy.Hint", "never takes the focus");
  Fails("start\nclick notice", "no notice is shown");
  Fails("start\nclose OST\nplan mode 1", "the window of OST is not visible");
  Fails("start\nclose OST\nclose OST", "the window of OST is not visible");
  Fails("click Toy.Save", "the program does not run");
  Fails("start\nstart", "runs already");
}

TEST_F(PlayerTest, AFailureOfTheProgramIsAMessage) {
  Holds("start\nmenu Toy.Divide\nexpect messages <<END\nThe toy divides by zero.\n--\nEND");
}

TEST_F(PlayerTest, TheProgramEndsAndStartsAgain) {
  Holds(R"(expect running = False
start
expect running = True
menu Toy.Quit
expect running = False
start
stop
expect running = False)");
}

TEST_F(PlayerTest, FilesAreWrittenReadAndDenied) {
  Holds(R"(write Tamo/Systems/Metal Stud.sys <<END
a^Ib
^$
END
expect file Tamo/Systems/Metal Stud.sys <<END
a^Ib
^$
END
expect exists Tamo = True
expect files . <<END
Tamo/
Tamo/Systems/
Tamo/Systems/Metal Stud.sys
END
write @Settings.tamo <<END
{home}/Tamo/
END
expect file @Settings.tamo = {home}/Tamo/
remove Tamo
expect files . =
start
focus Toy.Name
type A
deny toy.txt
click Toy.Save
expect exists toy.txt = False
expect notice contains toy.txt
allow toy.txt
click notice
expect notice =
expect file toy.txt <<END
A
END
fill
click Toy.Save
expect notice contains disk is full
unfill
click notice
expect notice =)");
}

TEST_F(PlayerTest, AFileThatIsNotThereFailsItsExpectation) {
  Fails("expect file a.txt =", "there is no file a.txt");
}

TEST_F(PlayerTest, AFileOfTheMachineIsCopied) {
  Machine::WriteFile(folder.filePath("a b.txt"), "1\r\n");
  Holds("copy a b.txt c d.txt\nexpect file c d.txt = 1");
  Fails("copy nothing.txt c.txt", "there is no file to copy");
}

TEST_F(PlayerTest, LooksAtControls) {
  Holds(R"(start
expect Toy = A toy
expect Toy.Save = &Save
expect Toy.Ask = &Ask
expect caption menu Toy.Ask = &Ask
expect visible menu Toy.Gone = False
expect enabled menu Toy.Ask = True
expect visible Toy = True
expect visible Toy.Inside = True
expect visible Toy.Box = False
expect enabled Toy.Save = True
expect Toy.Check = 0
click Toy.Check
expect Toy.Check = 1
click Toy.Second
expect Toy.First = 0
expect Toy.Second = 1
expect Toy.Rows <<END
one
 two 
thr^^ee
END
expect Toy.Rows contains thr^^
expect count Toy.Rows = 3
expect index Toy.Rows = -1
select Toy.Rows 1
expect index Toy.Rows = 1
expect row 1 Toy.Rows =  two 
scrollto Toy.Rows 2
expect top Toy.Rows = 2
tick Toy.Ticks 1
expect ticked 1 Toy.Ticks = True
expect ticked 0 Toy.Ticks = False
expect hover Toy.Hint = Blank means none.
expect colour Toy.Red = 255000000
expect width Toy.Red = 3
expect Form11.IAmHere = RL
expect clipboard =
expect printer =)");
}

TEST_F(PlayerTest, AFieldOfSeveralLines) {
  Holds(R"(start
focus Toy.Notes
paste one^M^Jtwo
expect Toy.Notes <<END
one
two
END
expect Toy.Notes = one^M^Jtwo)");
}

TEST_F(PlayerTest, PicksOnlyWhatIsThere) {
  Machine::WriteFile(machine.HomeFolder() + "/x/a.txt", "");
  Machine::WriteFile(machine.HomeFolder() + "/x/a.pdf", "");
  Holds(
      "start\npick Toy.Folder x\nexpect Toy.Folder = {home}/x\npick Toy.File x/a.txt\nexpect "
      "Toy.File = a.txt");
  Fails("start\npick Toy.File x/b.txt", "there is no file");
  Fails("start\npick Toy.File x/a.pdf", "shows only *.txt");
}

TEST_F(PlayerTest, DrawsOnThePlan) {
  Holds(R"(start
expect tool = 0
plan mode 2
expect tool = 2
plan circle 10 20
expect focus = OST.picPdfDraw
plan line 0 0 72 0
expect tool = 1
expect marks contains line 1 0 0 72 0 255000000 .75 1.0
expect marks contains ^M^Jcircle 1 10 20 255000000
expect pen = 255000000
expect zoom = 100
expect page = 1
expect unit = feet
expect shown =)");
}

TEST_F(PlayerTest, TheClockIsSet) {
  Holds("clock 2026-11-21");
  EXPECT_EQ(machine.clock.today, QDate(2026, 11, 21));
}

TEST_F(PlayerTest, WhatAUsedFileDoesNotHoldIsSaidWithItsPlace) {
  Machine::WriteFile(folder.filePath("x/head.steps"), "start\nexpect Toy = The toy\n");
  Fails("use x/head.steps\nprint Toy", "x/head.steps:2: expect Toy = The toy\n  used by toy:1\n");
  EXPECT_EQ(out.toStdString(), "A toy\n");
  Machine::WriteFile(folder.filePath("x/head.steps"), "start\ndance\n");
  IsNotUnderstood("use x/head.steps", "x/head.steps:2: dance\n");
  IsNotUnderstood("start\nuse toy.steps", "toy:2: use toy.steps\n");
}

TEST_F(PlayerTest, AUsedFileCopiesWhatStandsBesideItOrTheScenario) {
  Machine::WriteFile(folder.filePath("x/head.steps"), "copy near a\ncopy far b\n");
  Machine::WriteFile(folder.filePath("x/near"), "1\r\n");
  Machine::WriteFile(folder.filePath("far"), "2\r\n");
  Holds("use x/head.steps\nexpect file a = 1\nexpect file b = 2");
}

TEST_F(PlayerTest, AHiddenFileIsGoneForTheProgramAlone) {
  Holds(R"(start
write a/toy.txt <<END
old
END
hide a
expect file a/toy.txt = old
hide toy.txt
focus Toy.Name
type A
click Toy.Save
expect notice contains toy.txt
expect exists toy.txt = False
unhide toy.txt
click notice
expect notice =
expect file toy.txt <<END
A
END)");
}

TEST_F(PlayerTest, AnUnreadableFileCanStillBeWritten) {
  Holds(R"(start
unreadable toy.txt
click Toy.Save
expect notice =
expect exists toy.txt = True
readable toy.txt)");
}

TEST_F(PlayerTest, ASecondProgramHasFormsMessagesAndFaultsOfItsOwn) {
  Holds(R"(start
expect running = True
second expect running = False
second start
answer No
second answer Yes
second focus Toy.Name
second type B
focus Toy.Name
type A
expect Toy.Name = A
second expect Toy.Name = B
second menu Toy.Ask
expect messages =
second expect messages contains -- Yes
menu Toy.Ask
expect Toy.Hint = no
second expect Toy.Hint = yes
second deny toy.txt
second click Toy.Save
second expect notice contains toy.txt
click Toy.Save
expect notice =
expect file toy.txt <<END
A
END
second allow toy.txt
second click notice
expect file toy.txt <<END
B
END
deny toy.txt
click Toy.Save
second click Toy.Save
expect notice contains toy.txt
second expect notice contains toy.txt
second stop
expect running = True
second expect running = False
second start
second expect Toy.Name =)");
}

TEST_F(PlayerTest, WhatTheSecondProgramDoesWronglyFails) {
  Fails("start\nsecond click Toy.Save", "toy:2: second click Toy.Save\n  the program does not run");
  Fails("start\nsecond start\nsecond menu Toy.Ask", "toy:3: second menu Toy.Ask\n  a question");
  Fails("second start\nsecond expect Toy = x\nexpect Toy.Name = y", "toy:3: expect Toy.Name = y");
}
