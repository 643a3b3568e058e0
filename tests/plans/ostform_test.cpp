#include "plans/ostfixture.h"

namespace tamo::test {
namespace {

class OstForm : public OstTest {};

// --- Load

TEST_F(OstForm, LoadNamesTheViewerAndSetsItsMarkerSize) {
  EXPECT_EQ(ost.ViewerName, "PDFDraw");
  EXPECT_EQ(*ost.FindText("ViewerName"), "PDFDraw");
  EXPECT_DOUBLE_EQ(viewer.MarkerSize(), 13.5);
}

TEST_F(OstForm, LoadPaintsTheSwatchesAndTheSampleLine) {
  const std::pair<const char*, const char*> painted[] = {
      {"iRed", "255000000"},    {"iGreen", "000255000"},   {"iBlue", "000000255"},
      {"iYellow", "255255000"}, {"iOrange", "255155000"},  {"iPurple", "125000125"},
      {"iViolet", "220150255"}, {"iDkGreen", "000150000"}, {"iNavy", "000000175"},
      {"iTeal", "000255255"},   {"iAqua", "000150150"},    {"iBrown", "139069013"}};
  for (const auto& [name, colour] : painted) EXPECT_EQ(SwatchNamed(name).Colour(), colour) << name;
  EXPECT_EQ(ost.Find("iMaroon"), nullptr);
  EXPECT_EQ(ost.Line1.Colour(), "255000000");
  EXPECT_EQ(shared.LineColor, "255000000");
  EXPECT_EQ(ost.Check1.Value(), 1);
  EXPECT_TRUE(ost.Line1.Shown());
}

TEST_F(OstForm, LoadCallsTheMainFormsStartUpAsANoOp) {
  EXPECT_EQ(keeper.driveByAtInit, "True");
  EXPECT_EQ(shared.DriveBy, "False");
  EXPECT_EQ(shared.LoadingJobNFO, "False");
}

TEST_F(OstForm, BeginsWithItsPanelsPutAway) {
  EXPECT_FALSE(ost.Frame1.Shown());
  EXPECT_FALSE(ost.ColorFrame.Shown());
  EXPECT_FALSE(ost.PlanNotes.Shown());
  EXPECT_EQ(ost.Mode.Text(), "Released");
}

// --- Menu bar

TEST_F(OstForm, TheBarStandsInOrder) {
  QStringList bar;
  for (const MenuEntry* entry : ost.Menus()) {
    if (entry->Parent() == nullptr) bar << entry->Name() + QLatin1Char(' ') + entry->Caption();
  }
  const QStringList expected = {"ProjectS P&rojects",     "Pricing2 Pricing",
                                "Estimate &Estimate",     "Reports1 Repor&ts",
                                "ZoomOut Zoom &Out",      "ZoomIn Zoom I&n",
                                "ScaleA S&cale",          "GetFiles &Files",
                                "LinesColor Line &Color", "LastPage &Last Page",
                                "NextPage &Next Page",    "Save &Save",
                                "Printit &Print",         "Documentation D&ocumentation",
                                "Settings1 &Settings",    "Exit E&xit",
                                "ScheduleMenu Sche&d.",   "DrawMenu Dra&w",
                                "SheetsMenu &Go"};
  EXPECT_EQ(bar.filter(QRegularExpression("^(?!Spacer)")), expected);
  for (const char* spacer : {"Spacer1", "Spacer2", "Spacer3"}) {
    ASSERT_NE(ost.FindMenu(spacer), nullptr);
    EXPECT_EQ(ost.FindMenu(spacer)->Caption().trimmed(), "");
    EXPECT_FALSE(ost.FindMenu(spacer)->Choosable());
  }
}

TEST_F(OstForm, TheShellsMenusHaveTheirEntries) {
  const auto children = [this](const char* name) {
    QStringList names;
    for (const MenuEntry* entry : ost.FindMenu(name)->Children()) names << entry->Name();
    return names.join(QLatin1Char(' '));
  };
  EXPECT_EQ(children("ProjectS"),
            "OpenProject ClearProject NewProject ProjectInformation CopyProject PasteProject "
            "DeleteProject KeepVersion Versions DeletedProjects");
  EXPECT_EQ(children("Estimate"), "RFS NRFS BottomLine1 PriceAdjustment");
  EXPECT_EQ(children("RFS"), "EnterRFS TakeoffRFS");
  EXPECT_EQ(children("Reports1"),
            "ProjectNFO Quantities Recaps BreakDown BillofMaterial ProjectManager ProjectSupport "
            "ScheduleCheck WhatChanged");
  EXPECT_EQ(children("Recaps"), "Recap DetailedRecap");
  EXPECT_EQ(children("ProjectManager"), "oCopy fCopy");
  EXPECT_EQ(children("ProjectSupport"), "PMOFile PMFFile");
  EXPECT_EQ(ost.FindMenu("NewProject")->Caption(), "Cr&eate Project");
  EXPECT_EQ(ost.FindMenu("CopyProject")->Caption(), "Copy P&roject");
  EXPECT_EQ(ost.FindMenu("PMOFile")->Caption(), "&Build PMO File");
}

TEST_F(OstForm, ThereIsNoLockEntry) {
  EXPECT_EQ(ost.FindMenu("LockProject"), nullptr);
}

TEST_F(OstForm, LastPageNextPageAndTheSupportFilesAreOfferedAndDoNothing) {
  engine.pages = 5;
  viewer.OpenFile(Path("Jobs/a.pdf"), {});
  viewer.SetPage(3);
  engine.calls.clear();
  for (const char* entry : {"LastPage", "NextPage", "PMOFile", "PMFFile"}) {
    EXPECT_TRUE(ost.FindMenu(entry)->Choosable());
    Choose(entry);
  }
  EXPECT_EQ(viewer.Page(), 3);
  EXPECT_TRUE(engine.calls.isEmpty());
  EXPECT_EQ(keeper.asked, 0);
  EXPECT_TRUE(messages.texts.isEmpty());
}

TEST_F(OstForm, PrintPassesTheRequestOn) {
  int printed = 0;
  viewer.onPrint = [&] { ++printed; };
  Choose("Printit");
  EXPECT_EQ(printed, 1);
}

// --- Zoom

TEST_F(OstForm, ZoomInStaysAtTenAndSavesTheRecord) {
  ost.ZoomLevel.SetText("9");
  ost.Mode.SetText("Measuring");
  Choose("ZoomIn");
  EXPECT_EQ(ost.ZoomLevel.Text(), "10");
  EXPECT_EQ(viewer.Zoom(), 130);
  EXPECT_EQ(keeper.record.zoomLevel, "10");
  EXPECT_EQ(ost.Mode.Text(), "Released");
  Choose("ZoomIn");
  EXPECT_EQ(ost.ZoomLevel.Text(), "10");
  EXPECT_EQ(viewer.Zoom(), 130);
}

TEST_F(OstForm, ZoomOutStaysAtOneAndItsSaveWritesNothing) {
  ost.ZoomLevel.SetText("2");
  keeper.asked = keeper.saves = 0;
  Choose("ZoomOut");
  EXPECT_EQ(ost.ZoomLevel.Text(), "1");
  EXPECT_EQ(viewer.Zoom(), 40);
  Choose("ZoomOut");
  EXPECT_EQ(ost.ZoomLevel.Text(), "1");
  EXPECT_GT(keeper.asked, 0);
  EXPECT_EQ(keeper.saves, 0) << "it is asked for while the record counts as being read";
  EXPECT_EQ(shared.LoadingJobNFO, "False");
}

TEST_F(OstForm, ATypedLevelIsBroughtIntoOneToTwelve) {
  const std::pair<const char*, std::pair<const char*, int>> typed[] = {{"15", {"12", 150}},
                                                                       {"11", {"11", 140}},
                                                                       {"0", {"1", 40}},
                                                                       {"", {"1", 40}},
                                                                       {"7", {"7", 100}}};
  for (const auto& [text, expected] : typed) {
    Enter(ost.ZoomLevel, text);
    EXPECT_EQ(ost.ZoomLevel.Text(), expected.first) << text;
    EXPECT_EQ(viewer.Zoom(), expected.second) << text;
  }
  EXPECT_EQ(keeper.saves, 0);
}

TEST_F(OstForm, ZoomInFromATypedTwelveGoesToTen) {
  Enter(ost.ZoomLevel, "12");
  Choose("ZoomIn");
  EXPECT_EQ(ost.ZoomLevel.Text(), "10");
}

// --- Pages

TEST_F(OstForm, ATypedPageGoesToTheViewer) {
  engine.pages = 12;
  viewer.OpenFile(Path("Jobs/a.pdf"), {});
  EXPECT_EQ(ost.PageText.Text(), "1/12");
  ost.Mode.SetText("Measuring");
  Enter(ost.PageText, "4");
  EXPECT_EQ(viewer.Page(), 4);
  EXPECT_EQ(ost.PageText.Text(), "4/12");
  EXPECT_EQ(ost.Mode.Text(), "Released");
  Enter(ost.PageText, "7/12");
  EXPECT_EQ(ost.PageText.Text(), "7/12");
  Enter(ost.PageText, "99999999999999999999");
  EXPECT_EQ(ost.PageText.Text(), "12/12");
}

TEST_F(OstForm, PageAndZoomSelectTheirTextWhenEntered) {
  ost.ZoomLevel.SetText("10");
  ost.PageText.SetText("1/1");
  desk.UserFocus(ost.ZoomLevel);
  EXPECT_EQ(ost.ZoomLevel.SelectedText(), "10");
  desk.UserFocus(ost.PageText);
  EXPECT_EQ(ost.PageText.SelectedText(), "1/1");
}

TEST_F(OstForm, ScrollingByTheUserSavesTheRecord) {
  viewer.OpenFile(Path("Jobs/a.pdf"), {});
  viewer.ScrollBy(10, 20);
  EXPECT_EQ(keeper.saves, 1);
  shared.LoadingJobNFO = "True";
  viewer.ScrollBy(10, 20);
  EXPECT_EQ(keeper.asked, 1);
  shared.LoadingJobNFO = "False";
  ost.Hide();
  viewer.ScrollBy(10, 20);
  EXPECT_EQ(keeper.asked, 1);
}

// --- Colours and marks

TEST_F(OstForm, LineColourShowsAndHidesTheSwatches) {
  Choose("LinesColor");
  EXPECT_TRUE(ost.ColorFrame.Shown());
  Choose("LinesColor");
  EXPECT_FALSE(ost.ColorFrame.Shown());
}

TEST_F(OstForm, ASwatchChangesTheColourOnlyUntilMeasuringStartsAgain) {
  shared.LineColor = "000150000";
  Choose("LinesColor");
  Click(SwatchNamed("iBlue"));
  EXPECT_FALSE(ost.ColorFrame.Shown());
  EXPECT_EQ(ost.Line1.Colour(), "000000255");
  EXPECT_EQ(viewer.MarkColour(), "000000255");
  EXPECT_EQ(shared.LineColor, "000150000");
  viewer.PickTool(PlanTool::Measuring);
  EXPECT_EQ(viewer.MarkColour(), "000150000");
}

TEST_F(OstForm, VioletPaintsWithTheNumbersOfItsCode) {
  Click(SwatchNamed("iViolet"));
  EXPECT_EQ(ost.Line1.Colour(), "240150255");
  EXPECT_EQ(viewer.MarkColour(), "240150255");
}

TEST_F(OstForm, MeasuringTakesColourAndWidthOfTheSystemInWork) {
  shared.LineColor = "139069013";
  shared.LineWidth = 4;
  viewer.PickTool(PlanTool::Measuring);
  EXPECT_EQ(ost.Mode.Text(), "Measuring");
  EXPECT_EQ(viewer.MarkColour(), "139069013");
  EXPECT_DOUBLE_EQ(viewer.MarkWidth(), 3);
  EXPECT_EQ(ost.Line1.Width(), 4);
  viewer.PickTool(PlanTool::Counting);
  EXPECT_EQ(ost.Mode.Text(), "Released");
  viewer.PickTool(PlanTool::Measuring);
  viewer.PickTool(PlanTool::None);
  EXPECT_EQ(ost.Mode.Text(), "Released");
}

TEST_F(OstForm, AColourThatIsNoNumberIsNotTaken) {
  Click(SwatchNamed("iBlue"));
  for (const char* code : {"", "12345678", "1234567890", "25500000x"}) {
    shared.LineColor = code;
    viewer.PickTool(PlanTool::Measuring);
    EXPECT_EQ(viewer.MarkColour(), "000000255") << code;
  }
}

TEST_F(OstForm, RemoveLastMarkWorksOnlyFromThePlan) {
  viewer.DrawLine({10, 10}, {100, 10});
  viewer.DrawLine({10, 20}, {200, 20});
  desk.UserFocus(ost.PageText);
  Click(ost.Command2);
  EXPECT_EQ(viewer.Marks().size(), 2U);
  desk.UserFocus(ost.picPdfDraw);
  Click(ost.Command2);
  ASSERT_EQ(viewer.Marks().size(), 1U);
  EXPECT_EQ(viewer.Marks()[0].points[1].x, 100) << "the newest went";
  EXPECT_EQ(desk.Focused(), &ost.picPdfDraw) << "the button leaves the focus on the plan";
  Click(ost.Command2);
  Click(ost.Command2);
  EXPECT_TRUE(viewer.Marks().empty());
}

TEST_F(OstForm, TurnLinesOnShowsTheSampleLine) {
  Click(ost.Check1);
  EXPECT_FALSE(ost.Line1.Shown());
  Click(ost.Check1);
  EXPECT_TRUE(ost.Line1.Shown());
  EXPECT_EQ(ost.Check1.Caption(), "Turn Lines On");
}

TEST_F(OstForm, PlanNotesComeAndGoWithTheFocus) {
  int broughtToFront = 0;
  viewer.onBringToFront = [&] { ++broughtToFront; };
  Click(ost.Command3);
  EXPECT_TRUE(ost.PlanNotes.Shown());
  EXPECT_EQ(desk.Focused(), &ost.PlanNotes);
  Click(ost.Command3);
  EXPECT_FALSE(ost.PlanNotes.Shown());
  EXPECT_EQ(desk.Focused(), &ost.picPdfDraw);
  EXPECT_EQ(broughtToFront, 1);
}

TEST_F(OstForm, FilesShowsAndHidesTheBrowser) {
  Choose("GetFiles");
  EXPECT_TRUE(ost.Frame1.Shown());
  Choose("GetFiles");
  EXPECT_FALSE(ost.Frame1.Shown());
}

TEST_F(OstForm, TheKeysOfThePlanGoToTheViewer) {
  viewer.PickTool(PlanTool::Measuring);
  desk.UserFocus(ost.picPdfDraw);
  const PagePoint before = viewer.CrossHair();
  desk.PressKey(ost.picPdfDraw, Key::Named(Key::Name::Right));
  EXPECT_GT(viewer.CrossHair().x, before.x);
  ost.Scale1.SetText("1");
  ost.Scale2.SetText("1");
  desk.PressKey(ost.picPdfDraw, Key::Named(Key::Name::Space));
  EXPECT_TRUE(viewer.LineWork().active);
  desk.PressKey(ost.picPdfDraw, Key::Named(Key::Name::Escape));
  EXPECT_FALSE(viewer.LineWork().active);
}

}  // namespace
}  // namespace tamo::test
