#include "plans/ostmenu.h"

#include <span>

#include "plans/scales.h"
#include "workspace/swatches.h"

namespace tamo {
namespace {

struct Row {
  const char* name;
  const char* caption;
  const char* parent;  // "" on the bar
};

constexpr char kSpace[] = " ";

constexpr Row kShell[] = {
    {"ProjectS", "P&rojects", ""},
    {"OpenProject", "&Open Project", "ProjectS"},
    {"ClearProject", "&Clear Project", "ProjectS"},
    {"NewProject", "Cr&eate Project", "ProjectS"},
    {"ProjectInformation", "&Project Information", "ProjectS"},
    {"CopyProject", "Copy P&roject", "ProjectS"},
    {"PasteProject", "P&aste Project", "ProjectS"},
    {"DeleteProject", "&Delete Project", "ProjectS"},
    {"KeepVersion", "&Keep This Version", "ProjectS"},
    {"Versions", "&Versions", "ProjectS"},
    {"DeletedProjects", "&Bring Back a Deleted Project", "ProjectS"},
    {"Pricing2", "Pricing", ""},
    {"Estimate", "&Estimate", ""},
    {"RFS", "&Room Finish Schedule", "Estimate"},
    {"EnterRFS", "&Enter Room Finish Schedule", "RFS"},
    {"TakeoffRFS", "&Takeoff Room Finish Schedule", "RFS"},
    {"NRFS", "&Non Room Finish Schedule Items", "Estimate"},
    {"BottomLine1", "&Bottom Line Items", "Estimate"},
    {"PriceAdjustment", "&Price Adjustment", "Estimate"},
    {"Reports1", "Repor&ts", ""},
    {"ProjectNFO", "Pr&oject Information", "Reports1"},
    {"Quantities", "&Quantities", "Reports1"},
    {"Recaps", "&Recap", "Reports1"},
    {"Recap", "&Recap Overview", "Recaps"},
    {"DetailedRecap", "&Detailed Recap", "Recaps"},
    {"BreakDown", "&BreakDown", "Reports1"},
    {"BillofMaterial", "Bill of &Material", "Reports1"},
    {"ProjectManager", "&Project Manager", "Reports1"},
    {"oCopy", "&Office Copy", "ProjectManager"},
    {"fCopy", "&Field Copy", "ProjectManager"},
    {"ProjectSupport", "&PM Support", "Reports1"},
    {"PMOFile", "&Build PMO File", "ProjectSupport"},
    {"PMFFile", "&Build PMF File", "ProjectSupport"},
    {"ScheduleCheck", "Schedule &Check", "Reports1"},
    {"WhatChanged", "&What Changed Since the Bid Was Sent (F8)", "Reports1"},
    {"Spacer1", kSpace, ""},
};

constexpr Row kPlan[] = {
    {"ZoomOut", "Zoom &Out", ""},
    {"ZoomIn", "Zoom I&n", ""},
    {"ScaleA", "S&cale", ""},
    {"GetFiles", "&Files", ""},
    {"LinesColor", "Line &Color", ""},
    {"LastPage", "&Last Page", ""},
    {"NextPage", "&Next Page", ""},
    {"Save", "&Save", ""},
    {"Printit", "&Print", ""},
    {"Spacer2", kSpace, ""},
    {"Spacer3", kSpace, ""},
    {"Documentation", "D&ocumentation", ""},
    {"Settings1", "&Settings", ""},
    {"Exit", "E&xit", ""},
    {"ScheduleMenu", "Sche&d.", ""},
    {"ReadSchedule", "&Read Schedule", "ScheduleMenu"},
    {"DrawScheduleBox", "Draw a &Box", "ScheduleMenu"},
    {"AddToSchedule", "&Add to Schedule", "ScheduleMenu"},
    {"DrawMenu", "Dra&w", ""},
    {"DrawPolyline", "&Polyline (L)", "DrawMenu"},
    {"DrawArea", "&Area (A)", "DrawMenu"},
    {"DrawRectangle", "&Rectangle (R)", "DrawMenu"},
    {"DrawCutOut", "&Cut-out (K)", "DrawMenu"},
    {"DrawPerimeter", "P&erimeter (E)", "DrawMenu"},
    {"SnapToDrawing", "&Snap to the Drawing (S)", "DrawMenu"},
    {"FindSame", "&Find Same (I)", "DrawMenu"},
    {"CountGroups", "Count in &Groups (G)", "DrawMenu"},
    {"SheetsMenu", "&Go", ""},
    {"GoToSheet", "&Sheet (Ctrl+G)", "SheetsMenu"},
    {"ShowBookmarks", "&Bookmarks and Links (Ctrl+B)", "SheetsMenu"},
    {"ShowLayers", "&Layers (Ctrl+L)", "SheetsMenu"},
    {"JumpBack", "B&ack (Alt+Left)", "SheetsMenu"},
    {"JumpForward", "&Forward (Alt+Right)", "SheetsMenu"},
    {"ShowLoupe", "L&oupe (O)", "SheetsMenu"},
    {"MarkMenu", "&Marks", "DrawMenu"},
    {"MarksOfPlan", "&List of the Marks (F6)", "MarkMenu"},
    {"NextMark", "Choose the &Next Mark (N)", "MarkMenu"},
    {"MarkBefore", "Choose the Mark &Before (P)", "MarkMenu"},
    {"NameMark", "Na&me the Mark (F2)", "MarkMenu"},
    {"MarkColour", "&Colour of the Mark", "MarkMenu"},
    {"DeleteMark", "&Delete the Mark (Delete)", "MarkMenu"},
    {"LegendOfSheet", "Legend of This &Sheet", "MarkMenu"},
    {"LegendOfPlan", "Legend of the &Plan", "MarkMenu"},
    {"RefreshLegends", "Legends &Up to Date", "MarkMenu"},
    {"RemoveLegends", "&Remove the Legends", "MarkMenu"},
    {"MarkLine", "To Its &Takeoff Line (F7)", "MarkMenu"},
    {"CompareMenu", "Re&vis.", ""},
    {"CompareWith", "&Compare With ... (D)", "CompareMenu"},
    {"CompareNext", "Ne&xt Changed Place (N)", "CompareMenu"},
    {"ComparePoints", "Lay Over by &Two Points (2)", "CompareMenu"},
    {"CompareLayer", "&Old, New or Both (O)", "CompareMenu"},
    {"ComparePairNext", "&Next Sheet Over This One (Ctrl+Page Down)", "CompareMenu"},
    {"ComparePairBefore", "Sheet &Before Over This One (Ctrl+Page Up)", "CompareMenu"},
    {"CarryMarks", "Carry the Old &Marks Over", "CompareMenu"},
    {"CarryAllMarks", "Carry the Old Marks of &All Sheets Over", "CompareMenu"},
    {"CompareSwap", "Other Plan Is Ne&wer (X)", "CompareMenu"},
    {"CompareEnd", "&End Comparing (Escape)", "CompareMenu"},
};

class Bar {
 public:
  explicit Bar(Form& form) : form_(form) {}

  void Add(const char* name, const char* caption, const char* parent) {
    entries_.push_back(std::make_unique<MenuEntry>(
        form_, QLatin1String(name), QLatin1String(caption), form_.FindMenu(QLatin1String(parent))));
  }
  void Add(std::span<const Row> rows) {
    for (const Row& row : rows) Add(row.name, row.caption, row.parent);
  }
  void Add(std::span<const ScaleEntry> scales, const char* parent) {
    for (const ScaleEntry& scale : scales) Add(scale.name, scale.caption, parent);
  }
  std::vector<std::unique_ptr<MenuEntry>> Take() { return std::move(entries_); }

 private:
  Form& form_;
  std::vector<std::unique_ptr<MenuEntry>> entries_;
};

}  // namespace

QString ColourEntry(const SwatchRow& row) {
  return QStringLiteral("Mark") + QLatin1String(row.name).mid(1);
}

std::vector<std::unique_ptr<MenuEntry>> MakeOstMenu(Form& form) {
  Bar bar(form);
  bar.Add(kShell);
  bar.Add(kPlan);
  for (const SwatchRow& row : std::span(kSwatches).first(kPlanSwatches))
    bar.Add(ColourEntry(row).toLatin1().constData(), *row.caption == '\0' ? "Red" : row.caption,
            "MarkColour");
  bar.Add(InchScales(), "ScaleA");
  bar.Add("Metric", "&Metric", "ScaleA");
  bar.Add(MillimetreScales(), "Metric");
  bar.Add(CentimetreScales(), "Metric");
  // Blank entries only push the rest along the bar: no key leads to them.
  for (const char* spacer : {"Spacer1", "Spacer2", "Spacer3"}) {
    form.FindMenu(QLatin1String(spacer))->SetEnabled(false);
  }
  return bar.Take();
}

}  // namespace tamo
