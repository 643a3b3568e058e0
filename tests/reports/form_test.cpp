#include <gtest/gtest.h>

#include "reportbench.h"

// The frame around the reports: lists and titles, printing, copying, refreshing, leaving.

namespace tamo::test {
namespace {

#define S(text) QStringLiteral(text)

BenchProject& WithWall(BenchProject& project) {
  project.System(
      S("Wall"), S("SF"), S(""),
      {{S("Stud"), S("LF"), S("2"), S("1"), S("upo"), S("4"), S("upm"), S("0"), S("3")}});
  project.Room(S("A"), {RoomLine(S("Wall"), S("100"))});
  return project;
}

struct Wall {
  BenchProject project;
  FormBench bench{WithWall(project)};
  ReportsForm& form = bench.form;
};

// Lines 1 to `count`, those of `empty` (counted from 1) empty.
QStringList Numbered(int count, const QList<int>& empty) {
  QStringList lines;
  for (int i = 1; i <= count; ++i) lines += empty.contains(i) ? QString() : S("line %1").arg(i);
  return lines;
}

TEST(Form, BeforeTheFirstReportNothingIsShownAndTheProjectFileEntryIsAway) {
  Wall w;
  EXPECT_EQ(w.form.Name(), S("Reports"));
  EXPECT_FALSE(w.form.Reporter.Shown());
  EXPECT_FALSE(w.form.Reporter1.Shown());
  EXPECT_FALSE(w.form.Frame1.Shown());
  EXPECT_FALSE(w.form.menu.MakeProjectFile.Shown());
  EXPECT_EQ(w.form.menu.MakeProjectFile.Caption(), S("&Tamo PM"));
  EXPECT_EQ(w.form.menu.printReport.Caption(), S("&Print Report"));
  EXPECT_EQ(w.form.menu.CopyReport.Caption(), S("Copy Report to ClipBoard"));
  EXPECT_EQ(w.form.menu.ExitReports.Caption(), S("E&xit Reports"));
  EXPECT_NE(w.form.FindText(S("Flag")), nullptr);
}

TEST(Form, EachReportShowsItsTitle) {
  Wall w;
  const std::vector<std::pair<void (ReportsForm::*)(), QString>> reports = {
      {&ReportsForm::MinimalRecapSheet, S("Recap Sheet")},
      {&ReportsForm::DetailedRecapSheet, S("Recap Sheet")},
      {&ReportsForm::Quantities, S("Quantities")},
      {&ReportsForm::BillofMaterial, S("Bill Of Materials")},
      {&ReportsForm::BreakDown, S("BreakDown")},
      {&ReportsForm::ProjectInformation, S("  Project Information")}};
  for (const auto& [report, title] : reports) {
    w.bench.Run(report);
    EXPECT_EQ(w.form.Reporter.Row(0), title);
    EXPECT_TRUE(w.form.Reporter.Shown());
    EXPECT_FALSE(w.form.Reporter1.Shown());
  }
  EXPECT_TRUE(w.bench.messages.texts.isEmpty());
}

TEST(Form, TheCopiesGoToTheirLists) {
  Wall w;
  w.form.Flag = S("True");
  w.bench.Run(&ReportsForm::AreaRoomWP);
  EXPECT_TRUE(w.form.Reporter.Empty());
  EXPECT_FALSE(w.form.Reporter.Shown());
  EXPECT_TRUE(w.form.Reporter1.Shown());
  EXPECT_TRUE(w.form.Frame1.Shown());
  EXPECT_EQ(w.form.Reporter1.Row(1), S("Office Copy"));
  EXPECT_EQ(w.bench.pricing.MarkupTexts().MOH, w.project.MarkupsOfFile().MOH);
  w.form.Flag = S("False");
  w.bench.Run(&ReportsForm::AreaRoomWP);
  EXPECT_EQ(w.form.Reporter.Row(1), S("Field Copy"));
  EXPECT_TRUE(w.form.Reporter1.Empty());
  EXPECT_FALSE(w.form.Reporter1.Shown());
  EXPECT_FALSE(w.form.Frame1.Shown());
}

TEST(Form, AReportThatStopsShowsOneMessageAndLeavesItsListHiddenAndEmpty) {
  Wall w;
  w.bench.Run(&ReportsForm::MinimalRecapSheet);
  w.project.System(S("Wall"), S("SF"), S(""), {{S("Stud"), S("LF"), S("2"), S("0")}});
  w.bench.Run(&ReportsForm::MinimalRecapSheet);
  EXPECT_EQ(w.bench.messages.texts.size(), 1);
  EXPECT_TRUE(w.bench.messages.texts.value(0).contains(S("\"Wall\"")));
  EXPECT_FALSE(w.form.Reporter.Shown());
  EXPECT_TRUE(w.form.Reporter.Empty());
  EXPECT_FALSE(w.form.NotesList.Shown());
}

TEST(Form, TheRecapIsDetailedWhenDTTextSaysSo) {
  Wall w;
  w.bench.shared.DTText = S("True");
  w.bench.Run(&ReportsForm::MinimalRecapSheet);
  EXPECT_TRUE(w.form.Reporter.Row(3).startsWith(S("          -Raw Labor")));
}

TEST(Form, TheAdjustmentOfAnotherProjectIsForgotten) {
  Wall w;
  w.project.Adjust(S("250"));
  w.bench.Run(&ReportsForm::MinimalRecapSheet);
  EXPECT_EQ(w.form.Adjustment, S("250"));
  w.project.Remove(S("Adjustment.tamo"));
  w.bench.Run(&ReportsForm::MinimalRecapSheet);
  EXPECT_EQ(w.form.Adjustment, S("250"));  // within one project it is kept
  w.form.ForgetProject();
  w.bench.Run(&ReportsForm::MinimalRecapSheet);
  EXPECT_EQ(w.form.Adjustment, S(""));
}

TEST(BottomLineField, TheSumIsMadeOnlyBehindAnAdjustment) {
  Wall w;
  w.project.Items({S("Bond                   1000.50")});
  w.bench.Run(&ReportsForm::BreakDown);
  EXPECT_EQ(w.bench.pricing.TotalBL, S("0"));
  w.project.Adjust(S("1"));
  w.bench.Run(&ReportsForm::BreakDown);
  EXPECT_EQ(w.bench.pricing.TotalBL, S("1000.5"));
  w.project.Items({S("Bond                      2.00")});
  w.project.Adjust(S("0"));
  w.bench.Run(&ReportsForm::BreakDown);
  EXPECT_EQ(w.bench.pricing.TotalBL, S("1000.5"));
}

TEST(Print, AnEmptyOrHiddenReportPrintsNothing) {
  Wall w;
  w.bench.Run(&ReportsForm::PrintReport);
  w.form.Reporter.SetRows({S("a"), S("b")});
  w.bench.Run(&ReportsForm::PrintReport);
  w.form.Reporter.Show();
  w.form.Reporter.SetRows({S(""), S("b")});
  w.bench.Run(&ReportsForm::PrintReport);
  EXPECT_TRUE(w.bench.printer.TakePrinted().isEmpty());
}

TEST(Print, TheOfficeCopyPrintsNothingAndCanBeCopied) {
  Wall w;
  w.form.Flag = S("True");
  w.bench.Run(&ReportsForm::AreaRoomWP);
  w.bench.Run(&ReportsForm::PrintReport);
  EXPECT_TRUE(w.bench.printer.TakePrinted().isEmpty());
  w.bench.Run(&ReportsForm::CopyReport);
  EXPECT_TRUE(w.bench.clipboard.text.startsWith(S("Project Manager\r\nOffice Copy\r\n\r\nA\r\n")));
}

QStringList Printed(Wall& w, const QStringList& lines) {
  w.form.Reporter.SetRows(lines);
  w.form.Reporter.Show();
  w.bench.Run(&ReportsForm::PrintReport);
  return w.bench.printer.TakePrinted();
}

TEST(Print, ThePageHeadAndItsFonts) {
  Wall w;
  EXPECT_EQ(
      Printed(w, {S("Title"), S(""), S("row")}),
      (QStringList{S("-- job"), S("-- font MS Gothic, size 10"),
                   S("00-2112001") + QString(74, u' ') + S("Riverside Clinic     Page 1"),
                   S("-- font MS Gothic, size 12"), S(""), S(""), QString(20, u' ') + S("Title"),
                   QString(20, u' '), QString(20, u' ') + S("row")}));
}

TEST(Print, ANameOfMoreThan90CharactersLetsTheHeadGrow) {
  Wall w;
  w.bench.shared.JobName = QString(120, u'n');
  EXPECT_EQ(Printed(w, {S("Title")})[2], S("00-2112001") + QString(120, u'n') + S("     Page 1"));
}

TEST(Print, ThreePagesFor120LinesWithBlankLinesAfter52And104) {
  Wall w;
  const QStringList printed = Printed(w, Numbered(120, {53, 105}));
  EXPECT_EQ(printed.filter(S("-- job")).size(), 3);
  EXPECT_EQ(printed.filter(S("     Page ")).size(), 3);
  for (int page = 1; page <= 3; ++page)
    EXPECT_TRUE(printed.filter(S("     Page ")).at(page - 1).endsWith(S("Page %1").arg(page)));
  const QStringList rows = printed.filter(S("line "));
  EXPECT_EQ(rows.size(), 118);
  const qsizetype second = printed.lastIndexOf(printed.filter(S("Page 2")).first());
  EXPECT_EQ(printed[second + 4], QString(20, u' ') + S("line 54"));
}

TEST(Print, WithoutABlankLineTheTenLinesArePrintedAgainOnTheNextPage) {
  Wall w;
  const QStringList printed = Printed(w, Numbered(80, {}));
  EXPECT_EQ(printed.filter(S("line ")).size(), 90);
  const qsizetype second = printed.lastIndexOf(printed.filter(S("Page 2")).first());
  EXPECT_EQ(printed[second + 4], QString(20, u' ') + S("line 52"));
}

TEST(Print, TheLookAheadStopsAtTheLastLineAndNoPageFollowsIt) {
  Wall w;
  EXPECT_EQ(Printed(w, Numbered(51, {})).filter(S("-- job")).size(), 1);
  EXPECT_EQ(Printed(w, Numbered(55, {55})).filter(S("-- job")).size(), 1);
  EXPECT_EQ(Printed(w, Numbered(55, {54})).filter(S("-- job")).size(), 2);
  EXPECT_EQ(Printed(w, Numbered(55, {})).filter(S("line ")).size(), 59);
}

TEST(Copy, TheMessageAndTheTextWithItsLineEnds) {
  Wall w;
  w.bench.Run(&ReportsForm::Quantities);
  w.bench.Run(&ReportsForm::CopyReport);
  EXPECT_EQ(w.bench.messages.TakeShown(),
            (QStringList{S("Quantities has been copied to the computer clipboard."),
                         S("Use paste on the mouse right click to paste report into"),
                         S("other applications such as email."), S("--")}));
  EXPECT_EQ(w.bench.clipboard.text, S("Quantities\r\n\r\nWall                         100 SF\r\n"));
}

TEST(Copy, WithBothListsFilledTheMessageComesTwiceAndTheClipboardHoldsBoth) {
  Wall w;
  w.form.Reporter1.SetRows({S("First"), S("1")});
  w.form.Reporter1.Show();
  w.form.Reporter.SetRows({S("Second")});
  w.bench.Run(&ReportsForm::CopyReport);
  EXPECT_EQ(w.bench.messages.texts.size(), 2);
  EXPECT_EQ(w.bench.clipboard.text, S("First\r\n1\r\nSecond\r\n"));
}

TEST(Copy, NothingIsCopiedWithoutAReport) {
  Wall w;
  w.bench.Run(&ReportsForm::CopyReport);
  EXPECT_TRUE(w.bench.messages.texts.isEmpty());
}

TEST(Exit, ShowsOrHidesTheMainFormAndEmptiesTheLists) {
  Wall w;
  w.form.Show();
  w.bench.Run(&ReportsForm::Quantities);
  w.bench.Run(&ReportsForm::ExitReports);
  EXPECT_EQ(w.bench.windows.asked, QStringList{S("show main")});
  EXPECT_TRUE(w.form.Reporter.Empty());
  EXPECT_FALSE(w.form.Visible());
  w.bench.shared.GUIText = S("2");
  w.bench.Run(&ReportsForm::ExitReports);
  EXPECT_EQ(w.bench.windows.asked.last(), S("hide main"));
}

TEST(Refresh, DoesNothingUnlessAutoCheckIsOnAndTheFormIsVisible) {
  Wall w;
  w.bench.Run(&ReportsForm::Quantities);
  w.project.Room(S("B"), {RoomLine(S("Wall"), S("5"))});
  w.bench.shared.AutoCheck = 1;
  w.bench.Run(&ReportsForm::Refresh);  // hidden, as after the report was left
  EXPECT_EQ(w.form.Reporter.Row(2), S("Wall                         100 SF"));
  w.form.Show();
  w.bench.shared.AutoCheck = 0;
  w.bench.Run(&ReportsForm::Refresh);
  EXPECT_EQ(w.form.Reporter.Row(2), S("Wall                         100 SF"));
  w.bench.shared.AutoCheck = 1;
  w.bench.Run(&ReportsForm::Refresh);
  EXPECT_EQ(w.form.Reporter.Row(2), S("Wall                         105 SF"));
}

TEST(Refresh, LeavingTheFormAndEditingFurtherRunsNoReport) {
  Wall w;
  w.bench.shared.AutoCheck = 1;
  w.form.Show();
  w.bench.Run(&ReportsForm::Quantities);
  w.bench.Run(&ReportsForm::ExitReports);
  w.bench.Run(&ReportsForm::Refresh);
  EXPECT_TRUE(w.form.Reporter.Empty());
}

TEST(Refresh, EachReportIsMadeAgainByItsTitle) {
  Wall w;
  w.bench.shared.AutoCheck = 1;
  w.form.Show();
  for (auto report :
       {&ReportsForm::MinimalRecapSheet, &ReportsForm::Quantities, &ReportsForm::BillofMaterial,
        &ReportsForm::BreakDown, &ReportsForm::ProjectInformation}) {
    w.bench.Run(report);
    const QStringList lines = w.form.Reporter.Rows();
    w.form.Reporter.Add(S("stale"));
    w.bench.Run(&ReportsForm::Refresh);
    EXPECT_EQ(w.form.Reporter.Rows(), lines);
    EXPECT_TRUE(w.form.Reporter.Shown());
  }
  EXPECT_EQ(w.bench.record.loads, 1);  // the project information reads its record again
}

TEST(Refresh, ADetailedRecapStaysDetailed) {
  Wall w;
  w.bench.shared.AutoCheck = 1;
  w.form.Show();
  w.bench.shared.DTText = S("True");
  w.bench.Run(&ReportsForm::MinimalRecapSheet);
  w.bench.Run(&ReportsForm::Refresh);
  EXPECT_TRUE(w.form.Reporter.Row(3).startsWith(S("          -Raw Labor")));
}

TEST(Refresh, BothCopiesLeaveTheFlagOff) {
  Wall w;
  w.bench.settings.SetWholeQuantities(true);
  w.bench.shared.AutoCheck = 1;
  w.form.Show();
  w.form.Flag = S("True");
  w.bench.Run(&ReportsForm::AreaRoomWP);
  w.bench.desk.Dispatch([&] { w.bench.desk.TickRow(w.form.Reporter1, 5); });
  EXPECT_TRUE(w.form.Reporter1.Ticked(5));
  EXPECT_NE(w.form.tcText.Text(), S("0.00"));
  w.project.Room(S("B"), {});
  w.bench.Run(&ReportsForm::Refresh);
  EXPECT_EQ(w.form.Flag, S("False"));
  EXPECT_GE(w.form.Reporter1.Find(S("B")), 0);
  EXPECT_FALSE(w.form.Reporter1.Ticked(5));  // a new report starts with no ticks
  EXPECT_EQ(w.form.tcText.Text(), S("0.00"));
  w.bench.Run(&ReportsForm::Refresh);  // and once more, although the flag is off
  EXPECT_TRUE(w.form.Reporter1.Shown());

  w.form.Flag = S("False");
  w.bench.Run(&ReportsForm::AreaRoomWP);
  w.project.Room(S("C"), {});
  w.bench.Run(&ReportsForm::Refresh);
  EXPECT_EQ(w.form.Flag, S("False"));
  EXPECT_GE(w.form.Reporter.Find(S("C")), 0);
}

TEST(Refresh, TheSameFirstLineStaysOnScreenWhenTheNewReportIsLongEnough) {
  Wall w;
  w.bench.shared.AutoCheck = 1;
  w.form.Show();
  QStringList lines;
  for (int i = 0; i < 40; ++i) lines += RoomLine(S("System %1").arg(i), S("1"));
  w.project.Room(S("B"), lines);
  w.bench.Run(&ReportsForm::Quantities);
  w.bench.desk.ScrollTo(w.form.Reporter, 20);
  w.bench.Run(&ReportsForm::Refresh);
  EXPECT_EQ(w.form.Reporter.Top(), 20);
  EXPECT_EQ(w.bench.shared.TopOfReport, S(""));
  w.project.Write(S("Rooms/B.rfs"), {S("9")});
  w.bench.Run(&ReportsForm::Refresh);
  EXPECT_EQ(w.form.Reporter.Top(), 0);
  EXPECT_EQ(w.bench.shared.TopOfReport, S(""));
}

TEST(Refresh, OneThatStopsLeavesNoPositionBehind) {
  Wall w;
  w.bench.shared.AutoCheck = 1;
  w.form.Show();
  w.bench.Run(&ReportsForm::MinimalRecapSheet);
  w.bench.desk.ScrollTo(w.form.Reporter, 3);
  w.project.System(S("Wall"), S("SF"), S(""), {{S("Stud"), S("LF"), S("2"), S("0")}});
  w.bench.Run(&ReportsForm::Refresh);
  EXPECT_EQ(w.bench.messages.texts.size(), 1);
  EXPECT_EQ(w.bench.shared.TopOfReport, S(""));
  EXPECT_TRUE(w.form.Reporter.Empty());
}

TEST(Refresh, TheWindowIsNotBroughtToTheFront) {
  Wall w;
  w.bench.shared.AutoCheck = 1;
  w.bench.Run(&ReportsForm::BreakDown);
  EXPECT_EQ(w.bench.desk.Active(), &w.form);
  w.bench.plan.Show();
  w.bench.Run(&ReportsForm::Refresh);
  EXPECT_EQ(w.bench.desk.Active(), &w.bench.plan);
}

TEST(Notes, StandInTheStripAndLeadToTheirRows) {
  Wall w;
  w.project.Room(S("B"), {RoomLine(S("Gone"), S("5"))});
  w.bench.Run(&ReportsForm::MinimalRecapSheet);
  ASSERT_TRUE(w.form.NotesList.Shown());
  EXPECT_EQ(w.form.NotesList.Rows(),
            QStringList{S("The system \"Gone\" has no file in this project: it is priced at "
                          "nothing. (row 8)")});
  w.form.Show();
  w.bench.desk.ClickRow(w.form.NotesList, 0);
  EXPECT_EQ(w.form.Reporter.Index(), 7);
  EXPECT_TRUE(w.form.Reporter.Row(7).startsWith(S("  Gone")));
  w.bench.Run(&ReportsForm::Quantities);
  EXPECT_FALSE(w.form.NotesList.Shown());
  EXPECT_TRUE(w.form.NotesList.Empty());
}

TEST(Notes, TheSwitchReadsWholeQuantitiesAndIsKept) {
  Wall w;
  w.form.Show();
  w.bench.Run(&ReportsForm::BillofMaterial);
  EXPECT_TRUE(w.form.WholeQuantities.Shown());
  EXPECT_EQ(w.form.WholeQuantities.Value(), 0);
  EXPECT_EQ(w.form.Reporter.Row(2),
            S("     Stud                          1  LF        ____________"));
  w.bench.desk.ClickInto(w.form.WholeQuantities);
  EXPECT_TRUE(w.bench.settings.WholeQuantities());
  EXPECT_EQ(w.form.Reporter.Row(2),
            S("     Stud                        100  LF        ____________"));
  EXPECT_TRUE(w.form.WholeQuantities.Shown());
  w.bench.Run(&ReportsForm::MinimalRecapSheet);
  EXPECT_FALSE(w.form.WholeQuantities.Shown());
  w.form.Flag = S("False");
  w.bench.Run(&ReportsForm::AreaRoomWP);
  EXPECT_TRUE(w.form.WholeQuantities.Shown());
  w.bench.desk.ClickInto(w.form.WholeQuantities);
  EXPECT_FALSE(w.bench.settings.WholeQuantities());
}

TEST(Progress, IsToldSheetBySheetAndStopsTheReport) {
  Wall w;
  w.project.Area(S("Yard"), {});
  QStringList told;
  w.form.onProgress = [&](int done, int all) {
    told += S("%1 of %2").arg(done).arg(all);
    return told.size() < 2;
  };
  w.bench.Run(&ReportsForm::Quantities);
  EXPECT_EQ(told, (QStringList{S("1 of 2"), S("2 of 2")}));
  EXPECT_FALSE(w.form.Reporter.Shown());
  EXPECT_TRUE(w.form.Reporter.Empty());
  EXPECT_TRUE(w.bench.messages.texts.isEmpty());
  EXPECT_TRUE(w.form.NotesList.Row(0).contains(S("was stopped")));
}

TEST(Progress, TheEndIsToldHoweverAReportEnds) {
  Wall w;
  QStringList told;
  w.form.onMade = [&](bool whole) { told += whole ? S("whole") : S("stopped"); };
  w.bench.Run(&ReportsForm::Quantities);
  w.form.onProgress = [](int, int) { return false; };
  w.bench.Run(&ReportsForm::Quantities);
  w.form.onProgress = nullptr;
  w.project.System(S("Wall"), S("SF"), S(""), {{S("Stud"), S("LF"), S("5"), S("0")}});
  w.bench.Run(&ReportsForm::MinimalRecapSheet);
  EXPECT_EQ(told, (QStringList{S("whole"), S("stopped"), S("stopped")}));
}

// A wall with its two detail lines, a hundred times in each of three rooms.
void FillRooms(Wall& w) {
  for (const char* room : {"A", "B", "C"}) {
    QStringList lines;
    for (int i = 1; i <= 100; ++i) lines += RoomLine(S("Wall"), QString::number(i));
    w.project.Room(QString::fromLatin1(room), lines);
  }
}

TEST(Progress, TheFirstPageOfACopyStandsWhileTheRestIsMade) {
  Wall w;
  FillRooms(w);
  for (const QString& flag : {S("True"), S("False")}) {
    OrderedList& list =
        flag == S("True") ? static_cast<OrderedList&>(w.form.Reporter1) : w.form.Reporter;
    QStringList page;
    w.form.onProgress = [&](int done, int) {
      if (done == 2) {
        EXPECT_TRUE(list.Shown());
        EXPECT_FALSE(w.form.Frame1.Shown());
        page = list.Rows();
      }
      return true;
    };
    w.form.Flag = flag;
    w.bench.Run(&ReportsForm::AreaRoomWP);
    EXPECT_GE(page.size(), 60);
    EXPECT_GT(list.Count(), 900);
    EXPECT_EQ(list.Rows().mid(0, page.size()), page);
  }
}

TEST(Progress, ACopyThatIsStoppedTakesItsFirstPageAway) {
  Wall w;
  FillRooms(w);
  w.form.onProgress = [&](int done, int) { return done < 3; };
  w.form.Flag = S("True");
  w.bench.Run(&ReportsForm::AreaRoomWP);
  EXPECT_FALSE(w.form.Reporter1.Shown());
  EXPECT_TRUE(w.form.Reporter1.Empty());
  EXPECT_TRUE(w.form.NotesList.Row(0).contains(S("was stopped")));
}

TEST(Progress, WhileAReportIsMadeNoOtherBegins) {
  Wall w;
  w.form.onProgress = [&](int, int) {
    w.form.BreakDown();
    return true;
  };
  w.bench.Run(&ReportsForm::Quantities);
  EXPECT_EQ(w.form.Reporter.Row(0), S("Quantities"));
}

}  // namespace
}  // namespace tamo::test
