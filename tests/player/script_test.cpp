#include "player/script.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "player/machine.h"

using namespace tamo;
using namespace tamo::player;

namespace {

class ScriptTest : public testing::Test {
 protected:
  void Write(const char* file, const QByteArray& text) {
    ASSERT_TRUE(Machine::WriteFile(folder.filePath(QString::fromUtf8(file)), text));
  }
  // What is played: FILE:LINE SOURCE, one a line; an error behind "!".
  QString Played(const char* scenario) {
    QStringList lines;
    const QString file = folder.filePath(QString::fromUtf8(scenario));
    EXPECT_TRUE(ReadScenarioLines(file, lines));
    QStringList played;
    for (const Step& step : StepsOf(file, lines)) {
      played += QStringLiteral("%1:%2 %3").arg(step.file).arg(step.line).arg(step.source);
      if (step.second) played.last() += QStringLiteral(" (second)");
      if (!step.usedBy.isEmpty()) played += QStringLiteral("  used by ") + step.usedBy;
      if (!step.error.isEmpty()) played += QStringLiteral("  ! ") + step.error;
    }
    return played.join(QLatin1Char('\n')).replace(folder.path() + QLatin1Char('/'), QString());
  }

  QTemporaryDir folder;
};

}  // namespace

TEST_F(ScriptTest, TheStepsOfAUsedFileStandInItsPlace) {
  Write("a.scenario", "fill\nuse shared/head.steps\nstart\n");
  Write("shared/head.steps", "# A remark.\nwrite x <<END\nstart\nEND\nunfill\n");
  EXPECT_EQ(Played("a.scenario").toStdString(),
            "a.scenario:1 fill\n"
            "shared/head.steps:2 write x <<END\n  used by a.scenario:2\n"
            "shared/head.steps:5 unfill\n  used by a.scenario:2\n"
            "a.scenario:3 start");
}

TEST_F(ScriptTest, AUsedFileMayUseOthers) {
  Write("a.scenario", "use shared/one.steps\nuse two.steps\n");
  Write("shared/one.steps", "use two.steps\nuse far.steps\n");
  Write("shared/two.steps", "fill\n");  // beside the file that uses it
  Write("two.steps", "unfill\n");
  Write("far.steps", "stop\n");  // beside the scenario alone
  EXPECT_EQ(Played("a.scenario").toStdString(),
            "shared/two.steps:1 fill\n  used by shared/one.steps:1, used by a.scenario:1\n"
            "far.steps:1 stop\n  used by shared/one.steps:2, used by a.scenario:1\n"
            "two.steps:1 unfill\n  used by a.scenario:2");
}

TEST_F(ScriptTest, ACircleIsAnError) {
  Write("a.scenario", "start\nuse b.steps\nstop\n");
  Write("b.steps", "fill\nuse ./a.scenario\n");
  EXPECT_EQ(Played("a.scenario").toStdString(),
            "a.scenario:1 start\n"
            "b.steps:1 fill\n  used by a.scenario:2\n"
            "b.steps:2 use ./a.scenario\n  used by a.scenario:2\n"
            "  ! a circle: a.scenario is being played already\n"
            "a.scenario:3 stop");
  Write("own.scenario", "use own.scenario\n");
  EXPECT_TRUE(Played("own.scenario").contains("! a circle"));
  Write("twice.scenario", "use c.steps\nuse c.steps\n");
  Write("c.steps", "fill\n");
  EXPECT_FALSE(Played("twice.scenario").contains("!"));
}

TEST_F(ScriptTest, AFileThatCannotBeReadIsAnError) {
  Write("a.scenario", "use no.steps\nuse folder\n");
  Write("folder/x", "");
  EXPECT_EQ(Played("a.scenario").toStdString(),
            "a.scenario:1 use no.steps\n  ! the file no.steps can't be read\n"
            "a.scenario:2 use folder\n  ! the file folder can't be read");
}

TEST_F(ScriptTest, TheSecondProgramUsesAFileForAllItsSteps) {
  Write("a.scenario", "second use b.steps\n");
  Write("b.steps", "start\nstop\n");
  EXPECT_EQ(Played("a.scenario").toStdString(),
            "b.steps:1 start (second)\n  used by a.scenario:1\n"
            "b.steps:2 stop (second)\n  used by a.scenario:1");
}
