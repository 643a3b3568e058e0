#pragma once

#include "reports/projectrecord.h"
#include "workspace/tamoform.h"

// What the reports ask of the rest.

namespace tamo {

class ProjectRecordOnTamo : public ProjectRecord {
 public:
  explicit ProjectRecordOnTamo(TamoForm& main) : main_(main) {}

  void LoadJobNFO() override { main_.record.LoadJobNFO(); }
  ProjectFacts Facts() const override {
    const ProjectPanel& panel = main_.panel;
    return {panel.JobName.Text(),   panel.BidDate.Text(),    panel.Phase.Text(),
            panel.Addenda.Text(),   panel.Inclusions.Text(), panel.Exclusions.Text(),
            panel.Architect.Text(), panel.Notes.Text()};
  }

 private:
  TamoForm& main_;
};

}  // namespace tamo
