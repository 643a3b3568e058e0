#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "common/form.h"
#include "common/kit.h"
#include "plans/measuring.h"
#include "plans/pdfdraw.h"
#include "plans/planbox.h"
#include "plans/projectkeeper.h"
#include "plans/scales.h"
#include "plans/takeofffields.h"

namespace tamo {

// The plan form: views a PDF plan, marks it and measures it into the takeoff field that waits. In
// mode 2 its bar also carries the menus of the whole program; those entries get their handlers from
// the program (FindMenu), the plan's own have theirs here.
//
// The viewer, the record's keeper and the takeoff's fields outlive the form; the form takes all of
// the viewer's events but onMarksChanged, onViewChanged, onPrint and onBringToFront, which belong
// to the window.
class OSTForm : public Form {
 public:
  OSTForm(const Kit& kit, PdfDraw& viewer, ProjectKeeper& keeper, TakeoffFields& takeoff);

  // Once, after every form is made and before the settings are read.
  void Load();

  // --- Plan files
  void LoadPDF();  // opens the plan that PlanLocation names, or the blank page
  void LoadFN();   // the same for the plan of the record that is being read
  void Save();     // the marked copy into the project, also with no project open
  void SaveIt();   // the same, after an entry of the takeoff
  void OpenBlank();
  void SavePath();
  void LoadPath();
  // The browser stands at the folders of LoadPath, or at the program folder.
  void StartBrowser();
  void LoadOSTNotes();
  void LoadPlanNotes();
  void SavePlanNotes();

  // --- Measuring
  void ClearDistance();
  void ClearXY();
  void ChooseScale(const ScaleEntry& scale);
  // The unit that Text5 names, on the viewer; nothing for an inch scale, by the rule of the form.
  void SetUnitByText5();
  void StartCheck();

  // --- View
  void SetZoomByLevel(const QString& level);
  PdfDraw& Viewer() const { return viewer_; }

  QString ViewerName;

  PlanBox picPdfThumbnails, picPdfDraw;
  TextField ProjectName, PlanLocation, PageText, ZoomLevel, Mode;
  TextField Scale1, Scale2, Text5, IsScale;
  Label ScaleInForce;  // the scale in words, always in sight, with a warning when the viewer is in
                       // another unit
  Button SetInches;    // shown beside that warning
  TextField DistanceText;
  TextField KnownDimension;  // feet, for checking the scale against a dimension of the plan
  Button CheckDimension;
  Label DimensionResult;
  CheckBox Check1;
  Swatch Line1;
  Button Command2, Command3;
  TextField PlanNotes;
  Label PlanProblem;  // why the last plan could not be opened or saved, "" when it could
  Frame Frame1;
  FileBrowser Drive1, Dir1, File1;
  Frame ColorFrame;

 private:
  void SetUpFields();
  void SetUpBrowser();
  void SetUpMenus();
  void SetUpColours();
  void SetUpViewer();

  bool Loading() const;
  void SaveRecord();
  void SaveRecordInVain();

  void ZoomIn();
  void ZoomOut();
  void TakeZoomLevel();
  void ShowLevel(double level);
  void TakePage();
  void ShowPage();
  void ChooseColour(const QString& code);
  void ModeChanged(int mode);
  void RemoveLastMark();
  void ToggleNotes();
  void ToggleFrame(Frame& frame);

  ScaleTexts Scale() const;
  void ScaleChanged();
  void ShowScale();
  void SetViewerToInches();
  void LineMeasured(double& length, QString& label);
  void LineChecked(double paperLength);
  void CirclesCounted(int count);
  void HandOver(bool zeroLengthCounts);
  bool WaitingField(TakeoffFields::Field& field) const;
  void ReturnFocus();
  void WarnOfMissingScale();

  void PickPlan();
  void PickPlanTwice();
  void EnterPlanLocation();
  QString ProgramFile(const char* name) const;
  QString PlansFolder(const QString& id) const;
  bool OpenPlan(const QString& path);
  void OpenAbout();
  void OpenNamedPlan();
  void PlanGone();
  void ShowBlank();
  void LeavePlan();
  void SaveMarked(const QString& id);
  void SaveInto(const QString& target);
  void PlanSaved(const QString& target);
  void PlanFailed(const QString& text);

  std::function<void()> Handled(void (OSTForm::*handler)());

  const Kit kit_;
  PdfDraw& viewer_;
  ProjectKeeper& keeper_;
  TakeoffFields& takeoff_;
  std::vector<std::unique_ptr<MenuEntry>> menu_;
  std::vector<std::unique_ptr<Swatch>> swatches_;
  bool inchesChosen_ = false;  // 1"=100' was chosen, which leaves Text5 as it was
  bool recordSaved_ = false;   // since the scale entry in work was chosen
  QString waitingCopy_;        // a marked copy that could not be written yet
  QString picked_;             // the plan that LoadPDF shows while the record is read
};

}  // namespace tamo
