#pragma once

#include "plans/ostform.h"
#include "workspace/planofproject.h"
#include "workspace/tamoform.h"

// The plan form's hand-overs, both ways.

namespace tamo {

// What the project record and the life cycle ask of the plan form.
class PlanOfProjectOnOst : public PlanOfProject {
 public:
  explicit PlanOfProjectOnOst(OSTForm& ost) : ost_(ost) {}

  Record Fields() const override {
    return {ost_.PlanLocation.Text(), ost_.PageText.Text(), ost_.ZoomLevel.Text(),
            ost_.Scale1.Text(),       ost_.Scale2.Text(),   ost_.Text5.Text()};
  }
  void SetPlanLocation(const QString& path) override { ost_.PlanLocation.SetText(path); }
  void SetPageText(const QString& text) override { ost_.PageText.SetText(text); }
  void SetZoomLevel(const QString& text) override { ost_.ZoomLevel.SetText(text); }
  // Cleared first: the viewer's unit follows a change of Text5, and opening a plan has reset it.
  void SetScale(const QString& scale1, const QString& scale2, const QString& text5) override {
    for (TextField* field : {&ost_.Scale1, &ost_.Scale2, &ost_.Text5}) field->Clear();
    ost_.Scale1.SetText(scale1);
    ost_.Scale2.SetText(scale2);
    ost_.Text5.SetText(text5);
  }
  void SetProjectName(const QString& name) override { ost_.ProjectName.SetText(name); }
  int ViewValue(int index) const override {
    return ost_.Viewer().ViewValue(static_cast<ViewPart>(index));
  }
  void SetViewValue(int index, int value) override {
    ost_.Viewer().SetViewValue(static_cast<ViewPart>(index), value);
  }
  void TurnToPage(int page) override { ost_.Viewer().SetPage(page); }
  void SetZoomByLevel(const QString& level) override { ost_.SetZoomByLevel(level); }
  void LoadFN() override { ost_.LoadFN(); }
  void LoadPDF() override { ost_.LoadPDF(); }
  void OpenBlank() override { ost_.OpenBlank(); }
  void LoadPlanNotes() override { ost_.LoadPlanNotes(); }
  void HideBrowser() override { ost_.Frame1.Hide(); }

 private:
  OSTForm& ost_;
};

// What the plan form asks of the main form.
class ProjectKeeperOnTamo : public ProjectKeeper {
 public:
  explicit ProjectKeeperOnTamo(TamoForm& main) : main_(main) {}

  // Who only reads a project may turn its plans' pages without being told so each time.
  void SaveJobNFO() override {
    if (!main_.hold.ReadOnly()) main_.record.SaveJobNFO();
  }
  void LoadJobNFO(const QString& picked) override { main_.record.LoadJobNFOForPlan(picked); }
  void InitMain() override { main_.Init(); }

 private:
  TamoForm& main_;
};

}  // namespace tamo
