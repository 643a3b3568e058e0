#pragma once

#include "plans/ostform.h"
#include "program/shell.h"
#include "takeoff/estimateform.h"
#include "takeoff/measuredarea.h"
#include "takeoff/plantools.h"
#include "takeoff/rfsform.h"
#include "takeoff/takeoffexits.h"

// What the takeoff forms ask of the rest, and what the plan asks of them.

namespace tamo {

class PlanToolsOnOst : public PlanTools {
 public:
  explicit PlanToolsOnOst(OSTForm& ost) : ost_(ost) {}

  void SetToolMode(int mode) override { ost_.Viewer().PickTool(static_cast<PlanTool>(mode)); }
  void SetPenColour(const QString& code) override { ost_.Viewer().SetMarkColour(code); }
  void ResetMeasure() override { ost_.Viewer().SetUnitName(QStringLiteral("feet")); }
  void SaveIt() override { ost_.SaveIt(); }
  void ClearDistance() override { ost_.ClearDistance(); }
  void ReleaseMode() override { ost_.ClearXY(); }
  // The viewer's answer to the Delete key: the last point of the line in work goes.
  void DeleteKey() override { ost_.Viewer().Key({PlanKey::Backspace, false, false}); }
  QString ScaleText() const override { return ost_.ScaleInForce.Caption(); }

 private:
  OSTForm& ost_;
};

class TakeoffExitsOnForms : public TakeoffExits {
 public:
  TakeoffExitsOnForms(Shell& shell, TamoForm& main, OSTForm& ost)
      : shell_(shell), main_(main), ost_(ost) {}

  void ShowMainForm() override { shell_.ShowMainForm(); }
  void ShowProjectPanel() override {
    main_.panel.JobNFOFrame.Show();
    main_.GetDesk().Focus(main_.panel.JobName);
  }
  void ShowOST() override { ost_.Show(); }

 private:
  Shell& shell_;
  TamoForm& main_;
  OSTForm& ost_;
};

}  // namespace tamo
