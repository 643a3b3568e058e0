#include "program/menus.h"

#include "plans/workerengine.h"

namespace tamo {

Menus::Menus(const Kit& kit, Shell& shell, const Forms& forms)
    : kit_(kit), shell_(shell), forms_(forms) {
  BindProject();
  BindProjectFromOst();
  BindWork();
  BindReports();
  BindVersions();
  BindShell();
}

bool Menus::Passes(Guard guard) {
  switch (guard) {
    case Guard::None:
      return true;
    case Guard::Lock:
      return forms_.main.lock.NeedUnlocked();
    case Guard::Project:
      return forms_.main.NeedProject();
    case Guard::LockThenProject:
      return forms_.main.lock.NeedUnlocked() && forms_.main.NeedProject();
    case Guard::ProjectThenLock:
      return forms_.main.NeedProject() && forms_.main.lock.NeedUnlocked();
  }
  return false;
}

void Menus::OnMain(MenuEntry& entry, Guard guard, std::function<void()> action) {
  entry.onClick = [this, guard, action = std::move(action)] {
    if (Passes(guard)) action();
  };
}

void Menus::OnOst(const char* name, Guard guard, std::function<void()> action) {
  OnMain(*forms_.ost.FindMenu(QLatin1String(name)), guard, std::move(action));
}

void Menus::OnBoth(MenuEntry& entry, const char* ostName, Guard guard,
                   const std::function<void()>& action) {
  OnMain(entry, guard, action);
  OnOst(ostName, guard, action);
}

void Menus::BindProject() {
  OnMain(forms_.main.menu.OpenProject, Guard::None, [this] {
    kit_.shared.OPN = QStringLiteral("2");
    forms_.main.projects.OpenProject();
  });
  OnMain(forms_.main.menu.NewProject, Guard::None, [this] { forms_.main.projects.NewProject(); });
  OnMain(forms_.main.menu.ProjectInformation, Guard::Project,
         [this] { forms_.main.ProjectInformation(); });
  OnMain(forms_.main.menu.LockProject, Guard::None, [this] { forms_.main.lock.LockProject(); });
  OnMain(forms_.main.menu.CopyProject, Guard::Project,
         [this] { forms_.main.copies.CopyProject(); });
  OnBoth(forms_.main.menu.ClearProject, "ClearProject", Guard::None,
         [this] { forms_.main.projects.ClearProject(); });
  OnBoth(forms_.main.menu.PasteProject, "PasteProject", Guard::None,
         [this] { forms_.main.copies.PasteProject(); });
  OnBoth(forms_.main.menu.DeleteProject, "DeleteProject", Guard::None,
         [this] { forms_.main.copies.DeleteProject(); });
}

void Menus::BindProjectFromOst() {
  OnOst("OpenProject", Guard::None, [this] { OpenFromOst(); });
  OnOst("NewProject", Guard::None, [this] { NewFromOst(); });
  OnOst("ProjectInformation", Guard::Project, [this] { InformationFromOst(); });
  OnOst("CopyProject", Guard::Project, [this] { CopyFromOst(); });
}

void Menus::BindWork() {
  OnMain(forms_.main.menu.UnitsPricing, Guard::Lock,
         [this] { forms_.pricing.ToggleUnitsPricing(&forms_.ost); });
  OnBoth(forms_.main.menu.Pricing2, "Pricing2", Guard::Lock,
         [this] { forms_.pricing.TogglePricing2(&forms_.ost); });
  OnBoth(forms_.main.menu.EnterRoomFinishSchedule, "EnterRFS", Guard::LockThenProject,
         [this] { forms_.rooms.EnterRoomFinishSchedule(&forms_.ost); });
  OnBoth(forms_.main.menu.TakeOffRoomFinishSchedule, "TakeoffRFS", Guard::LockThenProject,
         [this] { forms_.rooms.TakeOffRoomFinishSchedule(&forms_.ost); });
  OnBoth(forms_.main.menu.NonFinishScheduleItems, "NRFS", Guard::LockThenProject,
         [this] { forms_.areas.NonFinishScheduleItems(&forms_.ost); });
  OnBoth(forms_.main.menu.BottomLineItems, "BottomLine1", Guard::ProjectThenLock,
         [this] { forms_.bottomLine.BottomLineItems(&forms_.ost); });
  OnBoth(forms_.main.menu.PriceAdjustment, "PriceAdjustment", Guard::ProjectThenLock,
         [this] { forms_.adjustment.PriceAdjustment(&forms_.ost); });
}

void Menus::BindVersions() {
  OnBoth(forms_.main.menu.KeepVersion, "KeepVersion", Guard::Project,
         [this] { forms_.versions.KeepThisVersion(&shell_.ShellForm()); });
  OnBoth(forms_.main.menu.Versions, "Versions", Guard::Project,
         [this] { forms_.versions.Versions(&shell_.ShellForm()); });
  OnBoth(forms_.main.menu.DeletedProjects, "DeletedProjects", Guard::None,
         [this] { forms_.versions.DeletedProjects(&shell_.ShellForm()); });
  OnBoth(forms_.main.menu.WhatChanged, "WhatChanged", Guard::Project, [this] {
    forms_.reports.menu.MakeProjectFile.Hide();
    forms_.reports.WhatChanged();
  });
}

void Menus::BindReports() {
  OnBoth(forms_.main.menu.ProjectNFO, "ProjectNFO", Guard::Project,
         [this] { ProjectInformationReport(); });
  OnBoth(forms_.main.menu.Quantities, "Quantities", Guard::Project,
         [this] { ShowReport([this] { forms_.reports.Quantities(); }); });
  OnBoth(forms_.main.menu.RecapSheet, "Recap", Guard::Project,
         [this] { Recap(QStringLiteral("False")); });
  OnBoth(forms_.main.menu.DetailedRecap, "DetailedRecap", Guard::Project,
         [this] { Recap(QStringLiteral("True")); });
  OnBoth(forms_.main.menu.BreakDown, "BreakDown", Guard::None, [this] {
    forms_.reports.menu.MakeProjectFile.Hide();
    forms_.reports.BreakDown();
  });
  OnBoth(forms_.main.menu.BillOfMaterial, "BillofMaterial", Guard::Project,
         [this] { ShowReport([this] { forms_.reports.BillofMaterial(); }); });
  OnBoth(forms_.main.menu.ScheduleCheck, "ScheduleCheck", Guard::Project,
         [this] { ShowReport([this] { forms_.reports.ScheduleCheck(); }); });
  OnBoth(forms_.main.menu.oCopy, "oCopy", Guard::Project, [this] { OfficeCopy(); });
  OnBoth(forms_.main.menu.fCopy, "fCopy", Guard::Project, [this] { FieldCopy(); });
  // These two only ask for a project.
  OnMain(forms_.main.menu.BillOfLabor, Guard::Project, [] {});
  OnMain(forms_.main.menu.Proposal, Guard::Project, [] {});
}

void Menus::BindShell() {
  OnMain(forms_.main.menu.OST1, Guard::None, [this] { ShowOst(); });
  OnBoth(forms_.main.menu.Settings1, "Settings1", Guard::None, [this] {
    forms_.settings.PlanGuard.SetCaption(WorkerEngine::MissingGuards());
    forms_.settings.Toggle(&shell_.ShellForm());
  });
  OnBoth(forms_.main.menu.Docs1, "Documentation", Guard::None, [this] { ToggleDocs(); });
  OnMain(forms_.main.menu.Exit, Guard::None, [this] { shell_.ExitMain(); });
  OnOst("Exit", Guard::None, [this] { shell_.ExitOst(); });
}

void Menus::ProjectInformationReport() {
  forms_.reports.menu.MakeProjectFile.Hide();
  if (forms_.main.panel.JobNFOFrame.Shown()) forms_.main.panel.JobNFOFrame.Hide();
  forms_.reports.ProjectInformation();
}

void Menus::ShowReport(const std::function<void()>& report) {
  forms_.reports.menu.MakeProjectFile.Hide();
  forms_.reports.Show(&forms_.ost);
  report();
}

void Menus::Recap(const QString& detailed) {
  ShowReport([&] {
    kit_.shared.DTText = detailed;
    forms_.reports.MinimalRecapSheet();
  });
}

void Menus::OfficeCopy() {
  forms_.reports.menu.MakeProjectFile.Show();
  // The markups may have put it out of reach; with an Office Copy it can be chosen.
  forms_.reports.menu.MakeProjectFile.SetEnabled(true);
  forms_.pricing.LoadMarkups();
  forms_.reports.Show(&forms_.ost);
  forms_.reports.Flag = QStringLiteral("True");
  forms_.reports.AreaRoomWP();
}

void Menus::FieldCopy() {
  ShowReport([this] {
    forms_.reports.Flag = QStringLiteral("False");
    forms_.reports.AreaRoomWP();
  });
}

// From OST the list stands on the main form, and a pick comes back to OST.
void Menus::OpenFromOst() {
  const bool away = forms_.main.Visible() && forms_.main.panel.JobsList.Shown();
  kit_.shared.OPN = QStringLiteral("7");
  shell_.ShowMainForm();
  forms_.main.projects.OpenProject();
  if (away) shell_.HideMainForm();
}

void Menus::NewFromOst() {
  shell_.ShowMainForm();
  forms_.main.projects.NewProject();
  if (!forms_.main.panel.JobNFOFrame.Shown()) shell_.HideMainForm();
}

void Menus::InformationFromOst() {
  shell_.ShowMainForm();
  forms_.main.ProjectInformation();
  if (!forms_.main.panel.JobNFOFrame.Shown()) shell_.HideMainForm();
}

void Menus::CopyFromOst() {
  shell_.HideMainForm();
  forms_.main.copies.CopyProject();
}

void Menus::ShowOst() {
  forms_.ost.PlanNotes.Hide();
  forms_.ost.Show();
}

void Menus::ToggleDocs() {
  if (forms_.docs.Visible()) {
    forms_.docs.Hide();
  } else {
    forms_.docs.Show(&shell_.ShellForm());
  }
}

}  // namespace tamo
