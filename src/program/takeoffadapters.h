#pragma once

#include "plans/ostform.h"
#include "program/shell.h"
#include "reports/reportsform.h"
#include "takeoff/estimateform.h"
#include "takeoff/plantools.h"
#include "takeoff/rfsform.h"
#include "takeoff/takeoffexits.h"
#include "takeoff/takeoffreportrefresh.h"

// What the takeoff forms ask of the rest, and what the plan asks of them.

namespace tamo {

class PlanToolsOnOst : public PlanTools {
 public:
  void Join(OSTForm& ost) { ost_ = &ost; }

  void SetToolMode(int mode) override { ost_->Viewer().PickTool(static_cast<PlanTool>(mode)); }
  void SetPenColour(const QString& code) override { ost_->Viewer().SetMarkColour(code); }
  void ResetMeasure() override { ost_->Viewer().SetUnitName(QStringLiteral("feet")); }
  void SaveIt() override { ost_->SaveIt(); }
  void ClearDistance() override { ost_->ClearDistance(); }
  void ReleaseMode() override { ost_->ClearXY(); }
  // The viewer's answer to the Delete key: the last point of the line in work goes.
  void DeleteKey() override { ost_->Viewer().Key({PlanKey::Backspace, false, false}); }
  QString ScaleText() const override { return ost_->ScaleInForce.Caption(); }

 private:
  OSTForm* ost_ = nullptr;
};

class TakeoffExitsOnForms : public TakeoffExits {
 public:
  void Join(Shell& shell, TamoForm& main, Form& ost) {
    shell_ = &shell;
    main_ = &main;
    ost_ = &ost;
  }

  void ShowMainForm() override { shell_->ShowMainForm(); }
  void ShowProjectPanel() override {
    main_->ShowPanel();
    main_->GetDesk().Focus(main_->JobName);
  }
  void ShowOST() override { ost_->Show(); }

 private:
  Shell* shell_ = nullptr;
  TamoForm* main_ = nullptr;
  Form* ost_ = nullptr;
};

class TakeoffFieldsOnForms : public TakeoffFields {
 public:
  void Join(RFSForm& rooms, EstimateForm& areas) {
    rooms_ = &rooms;
    areas_ = &areas;
  }

  bool FormVisible(Field field) const override { return At(field).Owner().Visible(); }
  void SetText(Field field, const QString& text) override { At(field).SetText(text); }
  void FocusOn(Field field) override { rooms_->GetDesk().FocusWithoutActivation(At(field)); }

 private:
  TextField& At(Field field) const {
    switch (field) {
      case Field::ELength:
        return areas_->eLength;
      case Field::Hite:
        return areas_->Hite;
      case Field::Length:
        return rooms_->Length;
      case Field::How:
        break;
    }
    return rooms_->How;
  }

  RFSForm* rooms_ = nullptr;
  EstimateForm* areas_ = nullptr;
};

}  // namespace tamo
