#include "player/parser.h"

#include <gtest/gtest.h>

#include "player/options.h"

using namespace tamo;
using namespace tamo::player;

namespace {

Step Parsed(const QString& line, const QStringList& more = {}) {
  const std::vector<Step> steps = ParseScenario(QStringList(line) + more);
  return steps.empty() ? Step() : steps.front();
}

}  // namespace

TEST(Parser, SkipsBlankLinesAndRemarks) {
  const auto steps = ParseScenario({"", "# a remark", "   ", "start"});
  ASSERT_EQ(steps.size(), 1U);
  EXPECT_EQ(steps[0].line, 4);
  EXPECT_EQ(steps[0].act, Act::Start);
}

TEST(Parser, ATextKeepsItsBlanks) {
  EXPECT_EQ(Parsed("type  a b ").text.toStdString(), " a b ");
  EXPECT_EQ(Parsed("enter").text.toStdString(), "");
  EXPECT_EQ(Parsed("enter ").text.toStdString(), "");
}

TEST(Parser, AnExpectationKeepsItsBlanks) {
  const Step step = Parsed("expect RFSForm.How =  8 ");
  EXPECT_EQ(step.text.toStdString(), "RFSForm.How");
  EXPECT_EQ(step.expected.toStdString(), " 8 ");
  EXPECT_EQ(Parsed("expect X.Y =").expected.toStdString(), "");
  EXPECT_EQ(Parsed("expect X.Y = ").expected.toStdString(), "");
  EXPECT_EQ(Parsed("expect X.Y = a = b").expected.toStdString(), "a = b");
  EXPECT_EQ(Parsed("expect X.Y = a contains b").compare, Compare::Exactly);
  EXPECT_EQ(Parsed("expect messages contains a = b").expected.toStdString(), "a = b");
}

TEST(Parser, ABlockRunsToItsEnd) {
  const auto steps =
      ParseScenario({"expect file A b.txt <<END", "start", "# no remark", "", "END", "stop"});
  ASSERT_EQ(steps.size(), 2U);
  EXPECT_EQ(steps[0].text.toStdString(), "file A b.txt");
  EXPECT_EQ(steps[0].block, QStringList({"start", "# no remark", ""}));
  EXPECT_EQ(steps[1].line, 6);
  EXPECT_NE(Parsed("write a <<END", {"x"}).error, "");
}

TEST(Parser, ATextMayEndLikeABlock) {
  const auto steps = ParseScenario({"type a <<END", "start"});
  ASSERT_EQ(steps.size(), 2U);
  EXPECT_EQ(steps[0].text.toStdString(), "a <<END");
}

TEST(Parser, Keys) {
  EXPECT_TRUE(Parsed("key Enter").key.IsEnter());
  EXPECT_TRUE(Parsed("key Ctrl+Enter").key.Is(Key::Name::LineFeed));
  EXPECT_EQ(Parsed("key Space").key.character, QLatin1Char(' '));
  EXPECT_NE(Parsed("key F1").error, "");
}

TEST(Parser, RowsPlansDatesAndAnswers) {
  EXPECT_EQ(Parsed("select Tamo.JobsList 3").row, 3);
  EXPECT_NE(Parsed("select Tamo.JobsList").error, "");
  EXPECT_EQ(Parsed("plan line 1 2.5 3 4").points, (std::vector<double>{1, 2.5, 3, 4}));
  EXPECT_NE(Parsed("plan line 1 2 3").error, "");
  EXPECT_NE(Parsed("plan circle 1 nan").error, "");
  EXPECT_EQ(Parsed("plan mode 2").row, 2);
  EXPECT_EQ(Parsed("plan key Ctrl+Left").stroke.ctrl, true);
  EXPECT_NE(Parsed("plan dance").error, "");
  EXPECT_EQ(Parsed("clock 2026-02-28").date, QDate(2026, 2, 28));
  EXPECT_EQ(Parsed("wait 125").row, 125);
  EXPECT_NE(Parsed("wait long").error, "");
  EXPECT_NE(Parsed("clock 2026-02-30").error, "");
  EXPECT_TRUE(Parsed("answer Yes").yes);
  EXPECT_NE(Parsed("answer perhaps").error, "");
}

TEST(Parser, AStepForTheSecondProgram) {
  const Step step = Parsed("second expect messages <<END", {"a", "END"});
  EXPECT_TRUE(step.second);
  EXPECT_EQ(step.act, Act::Expect);
  EXPECT_EQ(step.block, QStringList("a"));
  EXPECT_EQ(Parsed("second type  a ").text.toStdString(), " a ");
  EXPECT_FALSE(Parsed("start").second);
}

TEST(Parser, WhatCannotBeUnderstood) {
  for (const char* line :
       {"dance", " start", "start now", "click", "click Tamo", "click Tamo.", "menu A.B C",
        "close Tamo.JobName", "expect Tamo.JobName", "write a.txt", "pick OST.Dir1", "expect  = a",
        "remove", "hide", "use", "second", "second dance", "second second start"})
    EXPECT_NE(Parsed(QString::fromLatin1(line)).error, "") << line;
}

TEST(Parser, EveryDocumentedStepIsKnown) {
  for (const char* line : {"clock 2021-12-14",
                           "start",
                           "stop",
                           "menu A.B",
                           "focus A.B",
                           "type x",
                           "key Tab",
                           "enter x",
                           "paste x",
                           "click A.B",
                           "click notice",
                           "doubleclick A.B",
                           "rightclick A.B",
                           "select A.B 0",
                           "rightselect A.B 0",
                           "doubleselect A.B 0",
                           "tick A.B 0",
                           "scrollto A.B 0",
                           "pick A.B x/y z",
                           "doublepick A.B x",
                           "close A",
                           "answer No",
                           "plan mode 0",
                           "plan line 1 2 3 4",
                           "plan circle 1 2",
                           "plan press 1 2",
                           "plan key Escape",
                           "plan scroll 0 -5",
                           "plan page 2",
                           "copy a b",
                           "remove a b",
                           "deny @",
                           "allow @",
                           "hide Tamo",
                           "unhide Tamo",
                           "unreadable Tamo/Jobs.lst",
                           "readable Tamo/Jobs.lst",
                           "use shared/a b.steps",
                           "second start",
                           "second menu A.B",
                           "second enter",
                           "fill",
                           "unfill",
                           "print focus",
                           "expect focus = A.B"})
    EXPECT_EQ(Parsed(QString::fromLatin1(line)).error, "") << line;
}

TEST(Options, TheCommandLine) {
  Options options;
  EXPECT_EQ(
      ReadOptions({"--program", ".", "--home", ".", "--windows", "--clock", "2022-01-02", "a", "-"},
                  options),
      "");
  EXPECT_TRUE(options.windows);
  EXPECT_EQ(options.clock, QDate(2022, 1, 2));
  EXPECT_EQ(options.files, QStringList({"a", "-"}));
  EXPECT_EQ(Options().clock, QDate(2021, 12, 14));
}

TEST(Options, WhatIsWrongWithIt) {
  for (const QStringList& line :
       {QStringList{"a"}, QStringList{"--program", ".", "--home", "."}, QStringList{"--program"},
        QStringList{"--program", "/no/such/folder", "--home", ".", "a"},
        QStringList{"--program", ".", "--home", ".", "--clock", "today", "a"},
        QStringList{"--program", ".", "--home", ".", "--loud", "a"}}) {
    Options options;
    EXPECT_NE(ReadOptions(line, options), "") << line.join(' ').toStdString();
  }
}
