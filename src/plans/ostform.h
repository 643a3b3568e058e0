#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "common/kit.h"
#include "plans/markspanel.h"
#include "plans/ostcontrols.h"
#include "plans/plancompare.h"
#include "plans/plangroups.h"
#include "plans/planmeasure.h"
#include "plans/plannotespanel.h"
#include "plans/planopener.h"
#include "plans/planpen.h"
#include "plans/plansurfaces.h"
#include "plans/planwayfinding.h"
#include "plans/sheetscales.h"

namespace tamo {

// The plan form: views a PDF plan, marks it and measures it into the takeoff field that waits. In
// mode 2 its bar also carries the menus of the whole program; those entries get their handlers from
// the program (FindMenu), the plan's own have theirs here.
//
// The viewer, the record's keeper and the takeoff's fields outlive the form; the form takes all of
// the viewer's events but those of the window (see PlanEvents).
class OSTForm : public OstControls {
 public:
  OSTForm(const Kit& kit, PdfDraw& viewer, ProjectKeeper& keeper, TakeoffFields& takeoff);

  // Once, after every form is made and before the settings are read.
  void Load();

  // --- Plan files
  // Opens the plan that PlanLocation names, or the blank page.
  void LoadPDF() { opener_.LoadPDF(); }
  void LoadFN() { opener_.LoadFN(); }  // the same for the plan of the record that is being read
  void OpenBlank() { opener_.OpenBlank(); }
  void Save();    // the marked copy into the project, also with no project open
  void SaveIt();  // the same, after an entry of the takeoff
  // Marks drawn and not saved go into their plan's copy: the program ends.
  void SaveMarks() { copy_.SaveMarks(); }
  void SavePath() { browser_.Save(); }
  void LoadPath() { browser_.Load(); }
  void LoadOSTNotes() { notes_.Load(); }
  void LoadPlanNotes() { notes_.Load(); }
  void SavePlanNotes() { notes_.Save(); }

  // --- Measuring
  void ClearDistance() { DistanceText.Clear(); }
  void ClearXY() { Mode.SetText(QStringLiteral("Released")); }
  void ChooseScale(const ScaleEntry& scale) { scale_.Choose(scale); }

  // --- The list of marks
  // After each event; another number says that the takeoff may have become another one.
  void FollowMarks(unsigned takeoff) {
    copy_.Follow();
    marks_.Follow(takeoff);
  }
  MarksPanel& ListOfMarks() { return marks_; }

  // --- View
  void SetZoomByLevel(const QString& level) { pages_.SetZoomByLevel(level); }
  PdfDraw& Viewer() const { return viewer_; }

  // Enter on the plan with a box drawn and no tool in hand: true when it was taken, so that Enter
  // does not go back to the field that waits.
  std::function<bool()> onEnterBox;
  std::function<void()> onPlanPressed;  // a press on the plan; the cross hair stands there
  // What is known of the sheets, and the ways to them.
  PlanWayfinding& Ways() { return ways_; }
  // Asks for the plan that is laid over this one; "" for none. Without it none is.
  std::function<QString()> onChoosePlan;

  QString ViewerName;

 private:
  void BindFields();
  void BindMenus();
  void BindView();
  void BindTools();
  void BindMarks();
  void BindPlanKeys();
  void JoinParts();
  void EnterOnPlan();
  void PlanLost(const QString& problem);

  const Kit kit_;
  PdfDraw& viewer_;
  ProjectKeeper& keeper_;
  std::vector<std::unique_ptr<MenuEntry>> menu_;
  PlanRecord record_;
  PlanScale scale_;
  PlanPages pages_;
  PlanPen pen_;
  PlanBrowser browser_;
  PlanNotesPanel notes_;
  MarkedCopy copy_;
  PlanOpener opener_;
  PlanMeasure measure_;
  PlanSurfaces surfaces_;
  PlanGroups groups_;
  SheetScales sheetScales_;
  PlanWayfinding ways_;
  MarksPanel marks_;
  PlanCompare compare_;
};

}  // namespace tamo
